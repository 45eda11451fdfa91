#pragma once

#include <string>

#include "platform/FileError.h"

namespace zy {

/// Makes a folder of the system that nobody but the user can enter, as FileSystem::MakePrivateFolder says.
FileError MakePrivateWindowsFolder(const std::string& path);

} // namespace zy
