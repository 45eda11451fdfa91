#pragma once

#include "platform/FileError.h"

namespace zy {

/// What an error number of the operating system means to the user; None for 0.
FileError ToFileError(int errorNumber);

} // namespace zy
