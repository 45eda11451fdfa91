#include "platform/windows/ProgramFolder.h"

#include <windows.h>

namespace zy {
std::string InsidePath(const std::wstring& path) {
    constexpr std::size_t kMostBytes = 2; // of a character
    const auto length = static_cast<int>(path.size());
    std::string inside(path.size() * kMostBytes, '\0');
    inside.resize(static_cast<std::size_t>(
        ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, path.data(), length, inside.data(),
                              static_cast<int>(inside.size()), "?", nullptr)));
    return inside;
}

bool IsInCodePage(const std::wstring& path) {
    return InsidePath(path).find('?') == std::string::npos;
}

std::wstring OutsidePath(std::string_view path) {
    const auto length = static_cast<int>(path.size());
    std::wstring outside(path.size(), L'\0');
    outside.resize(static_cast<std::size_t>(
        ::MultiByteToWideChar(CP_ACP, 0, path.data(), length, outside.data(), length)));
    return outside;
}

std::optional<std::wstring> ProgramFolder::Find(std::string_view file) const {
    const auto folder = InsidePath(path) + '\\';
    if (path.empty() || !file.starts_with(folder)) {
        return std::nullopt;
    }
    return path + L'\\' + OutsidePath(file.substr(folder.size()));
}

} // namespace zy
