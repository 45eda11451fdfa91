#include "platform/windows/RootedPath.h"

#include <windows.h>

namespace zy {
namespace {

bool IsSeparator(char c) {
    return c == '\\' || c == '/';
}

bool StartsAtARoot(std::string_view path) {
    const auto afterDrive = path.size() >= 2 && path[1] == ':' ? path.substr(2) : path;
    return !afterDrive.empty() && IsSeparator(afterDrive.front());
}

} // namespace

std::optional<std::string> RootedPath(std::string_view path) {
    if (!StartsAtARoot(path) || path.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    return std::string(path);
}

bool IsFolder(const std::string& path) {
    const auto attributes = ::GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsFile(const std::string& path) {
    const auto attributes = ::GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

} // namespace zy
