#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zy {

/// A path of the system in the ANSI code page, with "?", which no path holds, for each letter that the page
/// lacks.
std::string InsidePath(const std::wstring& path);
/// Whether the code page has all letters of a path.
bool IsInCodePage(const std::wstring& path);
/// The path of the system that a path in the code page means.
std::wstring OutsidePath(std::string_view path);

/// A folder of files that are opened although its path may hold letters that the code page lacks.
struct ProgramFolder {
    std::wstring path;

    /// Its file of a path of the program's; nothing when that leads elsewhere.
    std::optional<std::wstring> Find(std::string_view path) const;
};

} // namespace zy
