#pragma once

#include <string>

#include "platform/FileError.h"

namespace zy {

/// What an error code of the operating system, as GetLastError gives it, means to the user; None for 0.
FileError ToFileError(unsigned long errorCode);

/// The same for a failed operation on a path: the system denies access to a folder that is worked with as if
/// it were a file, and says of a folder in the way no more than of a file.
FileError ToFileError(unsigned long errorCode, const std::string& path);

} // namespace zy
