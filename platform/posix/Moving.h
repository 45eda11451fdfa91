#pragma once

#include <string>

#include "platform/FileError.h"

namespace zy {

// Moving a file, by its paths in the system, so that one that already has the new name is never replaced.

/// Within a disk by renaming; to another one by a copy with the same bytes and permissions, which gets its
/// name when it stands on the disk as a whole. The new name stands on the disk when this returns. On failure
/// the file is where it was, and nothing is left at the new place.
FileError MoveWithoutReplacing(const std::string& from, const std::string& to);

/// The same, with another way to rename, which returns 0 or the error number: EXDEV for a place on another
/// disk.
FileError MoveBy(int (*rename)(const std::string& from, const std::string& to), const std::string& from,
                 const std::string& to);

} // namespace zy
