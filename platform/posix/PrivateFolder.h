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

/// Makes a folder that nobody but the user can enter, as FileSystem::MakePrivateFolder says.
FileError MakePrivateFolder(const std::string& path);

} // namespace zy
