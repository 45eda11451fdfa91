#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace zy {

/// Holds a folder of the system, as FileSystem::LockFolderOf says, by the system's own advisory lock of the
/// folder itself: it leaves no file behind, and goes with the process that holds it, however that ends.
LockedFolder LockPosixFolder(const std::string& folder);

} // namespace zy
