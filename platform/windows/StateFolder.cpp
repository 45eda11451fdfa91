#include "platform/windows/StateFolder.h"

#include <windows.h>
// After windows.h, which it leans on.
#include <shlobj.h>

#include <memory>

#include "platform/windows/ProgramFolder.h"

namespace zy {
namespace {

struct FreeTaskMemory {
    void operator()(wchar_t* text) const { ::CoTaskMemFree(text); }
};

/// Empty where there is none.
std::wstring ShortPath(const std::wstring& path) {
    constexpr DWORD kLongestPath = 32768;
    std::wstring shortened(kLongestPath, L'\0');
    shortened.resize(::GetShortPathNameW(path.c_str(), shortened.data(), kLongestPath));
    return shortened;
}

} // namespace

std::wstring UsersLocalFolder() {
    wchar_t* path = nullptr;
    const bool isFound = SUCCEEDED(::SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &path));
    const std::unique_ptr<wchar_t, FreeTaskMemory> owned(path);
    return isFound ? owned.get() : L"";
}

std::wstring OwnFolderIn(const std::wstring& folder) {
    return folder.empty() ? L"" : folder + L"\\zysetup";
}

std::string InsideOwnFolderIn(const std::wstring& folder) {
    for (const auto& path : {folder, ShortPath(folder)}) {
        if (IsInCodePage(path)) {
            return InsidePath(OwnFolderIn(path));
        }
    }
    return {};
}

} // namespace zy
