#pragma once

#include <string>

namespace zy {

/// The value of an environment variable; empty when it is not set.
std::string Environment(const char* name);

/// The folder for the user's data: $XDG_DATA_HOME when it is absolute, else ".local/share" in the home
/// folder. Empty when the user has none.
std::string UserDataFolder();

/// The folder for the user's settings: $XDG_CONFIG_HOME when it is absolute, else ".config" in the home
/// folder. Empty when the user has none.
std::string UserConfigFolder();

/// Makes a folder and those above it that are missing, for the user alone to enter. False when it does not
/// exist afterwards.
bool MakeFolders(const std::string& path);

} // namespace zy
