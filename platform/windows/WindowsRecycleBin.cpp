#include "platform/windows/WindowsRecycleBin.h"

#include <windows.h>
// After windows.h, which it leans on.
#include <shellapi.h>

#include <array>
#include <string>

#include "platform/windows/RootedPath.h"

namespace zy {
namespace {

/// The path in the one form that the shell takes: "\" alone, and one between two parts.
std::string FullPath(const std::string& path) {
    std::array<char, MAX_PATH> full{};
    const auto length = ::GetFullPathNameA(path.c_str(), MAX_PATH, full.data(), nullptr);
    return length < full.size() ? std::string(full.data(), length) : path;
}

/// `list` ends in two NULs, the text's own being the second one.
int Recycle(const std::string& list) {
    SHFILEOPSTRUCTA operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = list.c_str();
    operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT;
    return ::SHFileOperationA(&operation);
}

} // namespace

int WindowsRecycleBin::Delete(std::string_view nulSeparatedPaths) {
    std::string files;
    bool all = true;
    for (const auto path : SplitPathList(nulSeparatedPaths)) {
        const auto rooted = RootedPath(path);
        if (rooted && IsFile(*rooted)) {
            files += FullPath(*rooted) + '\0';
        } else {
            all = false;
        }
    }
    const int result = files.empty() ? 0 : Recycle(files);
    return result == 0 && !all ? ERROR_FILE_NOT_FOUND : result;
}

} // namespace zy
