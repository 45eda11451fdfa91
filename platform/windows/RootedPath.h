#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zy {

/// The path as the system takes it, when it can be one of the program's: it starts at a drive ("C:\...") or a
/// root
/// ("\...", "\\server\..."), "/" counting as "\", and holds no NUL. The system itself would look for any
/// other path in whatever folder is the current one, and read a path only up to a NUL.
std::optional<std::string> RootedPath(std::string_view path);

/// Whether a folder stands at a path of the system.
bool IsFolder(const std::string& path);
/// Whether a file does, hidden or not.
bool IsFile(const std::string& path);

} // namespace zy
