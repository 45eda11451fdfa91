#pragma once

#include <sys/types.h>

#include <string>

#include "platform/FileError.h"

namespace zy {

/// Whose a file and its folder are, and whether the folder lets its files be removed by their owners alone,
/// as one for everybody's temporary files does.
struct Ownership {
    bool isFolderSticky = false;
    uid_t folder = 0;
    uid_t file = 0;
};

/// Whether this user may take a file of such a folder away, or put another one in its place. That the user
/// may write in the folder is another matter.
bool MayTakeAway(const Ownership& owners, uid_t user);

/// AccessDenied where the user of this process may not take the file of this path away for that reason. None
/// also where there is no file.
FileError StickyBitError(const std::string& path);

} // namespace zy
