#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace zy {

/// Holds a folder of the system, as FileSystem::LockFolderOf says, by a hidden file in it that nobody else
/// can open meanwhile. The system removes it as it is closed, however the process ends.
LockedFolder LockWindowsFolder(const std::string& folder);

/// The name of that file.
inline constexpr const char* kFolderLockName = "zysetup.lock";

} // namespace zy
