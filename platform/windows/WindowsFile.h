#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace zy {

// Files by their paths in the system. Only files on a disk are opened: a device such as "NUL" or a pipe is
// refused (Other).

/// For reading, by one who reads from front to back.
OpenedFile OpenWindowsFile(const std::string& path);
OpenedFile OpenWindowsFile(const std::wstring& path);
/// The same, but that a missing file is created.
OpenedFile OpenOrCreateWindowsFile(const std::string& path);
/// For writing; one that exists is emptied, and keeps its name and permissions.
OpenedFile CreateWindowsFile(const std::string& path);
/// For writing, with permissions for the user alone; one that exists makes it fail.
OpenedFile CreatePrivateWindowsFile(const std::string& path);

} // namespace zy
