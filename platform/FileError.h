#pragma once

#include <string_view>

namespace zy {

/// Why a file operation did not succeed, by what the user can do about it.
enum class FileError {
    None,
    NotFound,     ///< no such file or folder
    Exists,       ///< a file of that name is already there
    AccessDenied, ///< the user may not
    ReadOnly,     ///< the disk or the file is read-only
    InUse,        ///< another program holds it
    DiskFull,     ///< no space left, or a quota reached
    IsFolder,     ///< the name is a folder's
    Ambiguous,    ///< names that differ by case alone: the path could mean either
    LinkLoop,     ///< symbolic links that lead to one another, and to no file
    Other,
};

/// A few words for the status bar, such as "the disk is full".
std::string_view Describe(FileError error);

} // namespace zy
