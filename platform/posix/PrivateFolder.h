#pragma once

#include <string>

#include "platform/FileError.h"
#include "platform/posix/FileDescriptor.h"

namespace zy {

/// An open folder that nobody but the user can enter, or the reason why there is none.
struct PrivateFolder {
    FileDescriptor folder;
    FileError error = FileError::None;
};

/// Opens a folder, after taking from others what they may do with it. AccessDenied where it is somebody
/// else's, or a symbolic link.
PrivateFolder OpenPrivateFolder(const std::string& path);

/// The same, made where there is none; where it cannot be made, the reason is that of the making.
PrivateFolder MakePrivateFolder(const std::string& path);

} // namespace zy
