#pragma once

#include <string>

#include "platform/FileError.h"

namespace zy {

/// Where symbolic links lead, or why they lead nowhere.
struct LinkEnd {
    std::string path;
    FileError error = FileError::None;
};

/// Follows the symbolic links that a path of the system ends in, one after the other, to a path that ends in
/// none, be there a file or not: the path itself when it ends in none. LinkLoop when they come to no end.
LinkEnd FollowLinks(std::string path);

/// The folder that a path of the system leads into, with a "/" at its end.
std::string FolderOfPath(const std::string& path);

} // namespace zy
