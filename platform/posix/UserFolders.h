#pragma once

#include <string>

#include "platform/FileError.h"

namespace zy {

/// The value of an environment variable; empty when it is not set.
std::string Environment(const char* name);

/// The folder for the user's data: $XDG_DATA_HOME when it is absolute, else ".local/share" in the home
/// folder. Empty when the user has none.
std::string UserDataFolder();

/// The folder for the user's settings: $XDG_CONFIG_HOME when it is absolute, else ".config" in the home
/// folder. Empty when the user has none.
std::string UserConfigFolder();

/// The folder for what programs keep from one start to the next: $XDG_STATE_HOME when it is absolute, else
/// ".local/state" in the home folder. Empty when the user has none.
std::string UserStateFolder();

/// The program's own folder in one of the user's; empty when there is none of the user's.
std::string OwnFolderIn(const std::string& folder);

/// The folder for what must reach no disk and goes when the user logs out: $XDG_RUNTIME_DIR. Empty unless
/// that is absolute, lies in memory, and is a folder of the user's that nobody else may enter.
std::string UserRuntimeFolder();

/// Makes a folder and those above it that are missing, for the user alone to enter; those that exist stay as
/// they are. Exists where a file is in the way.
FileError MakeFolders(const std::string& path);

} // namespace zy
