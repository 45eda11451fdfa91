#pragma once

#include <string>

namespace zy {

/// The user's folder for data that stays on this computer; empty where the system has none.
std::wstring UsersLocalFolder();

/// The program's own folder in one of the user's; empty when there is none of the user's.
std::wstring OwnFolderIn(const std::wstring& folder);

/// The same for a folder that exists, as a path in the code page: where that lacks a letter, through the
/// short name that the system gave the folder. Empty also where it gave none.
std::string InsideOwnFolderIn(const std::wstring& folder);

} // namespace zy
