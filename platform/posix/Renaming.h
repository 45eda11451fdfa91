#pragma once

#include <span>
#include <string>

namespace zy {

// Renaming a file so that one that already has the new name is never replaced. Each returns 0 or the error
// number.

/// In the best of the ways below that the file system supports.
int RenameWithoutReplacing(const std::string& from, const std::string& to);

/// By the system's own call for it.
int RenameByFlag(const std::string& from, const std::string& to);
/// By a second link, for file systems without that call. When the old name cannot be removed the new one is
/// taken back.
int RenameByLink(const std::string& from, const std::string& to);
/// By looking first, for file systems that have no links either. A file that another program creates at the
/// same moment would be replaced.
int RenameAfterCheck(const std::string& from, const std::string& to);

/// One way, and the errors by which it says that the file system does not support it.
struct RenamingWay {
    int (*rename)(const std::string& from, const std::string& to);
    bool (*isUnsupported)(int errorNumber);
};

/// In the first of these ways that is supported; the error of the last one when none is.
int RenameInFirstWay(std::span<const RenamingWay> ways, const std::string& from, const std::string& to);

} // namespace zy
