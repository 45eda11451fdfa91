#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zy {

/// A path of the system in the ANSI code page, with "?", which no path holds, for each letter that the page
/// lacks.
std::string InsidePath(const std::wstring& path);

/// A folder of files that are opened although its path may hold letters that the code page lacks.
struct ProgramFolder {
    std::wstring path;

    /// Its file of a path of the program's; nothing when that leads elsewhere.
    std::optional<std::wstring> Find(std::string_view path) const;
};

} // namespace zy
