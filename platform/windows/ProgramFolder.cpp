#include "platform/windows/ProgramFolder.h"

#include <windows.h>

namespace zy {
namespace {

std::wstring Wide(std::string_view text) {
    const auto length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    wide.resize(
        static_cast<std::size_t>(::MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), length)));
    return wide;
}

} // namespace

std::string InsidePath(const std::wstring& path) {
    constexpr std::size_t kMostBytes = 2; // of a character
    const auto length = static_cast<int>(path.size());
    std::string inside(path.size() * kMostBytes, '\0');
    inside.resize(static_cast<std::size_t>(
        ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, path.data(), length, inside.data(),
                              static_cast<int>(inside.size()), "?", nullptr)));
    return inside;
}

std::optional<std::wstring> ProgramFolder::Find(std::string_view file) const {
    const auto folder = InsidePath(path) + '\\';
    if (path.empty() || !file.starts_with(folder)) {
        return std::nullopt;
    }
    return path + L'\\' + Wide(file.substr(folder.size()));
}

} // namespace zy
