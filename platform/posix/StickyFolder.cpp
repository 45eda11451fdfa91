#include "platform/posix/StickyFolder.h"

#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/Links.h"

namespace zy {

bool MayTakeAway(const Ownership& owners, uid_t user) {
    constexpr uid_t kRoot = 0;
    return !owners.isFolderSticky || user == kRoot || user == owners.folder || user == owners.file;
}

FileError StickyBitError(const std::string& path) {
    struct stat folder {};
    struct stat file {};
    if (::stat(FolderOfPath(path).c_str(), &folder) != 0 || ::lstat(path.c_str(), &file) != 0) {
        return FileError::None;
    }
    const Ownership owners{
        .isFolderSticky = (folder.st_mode & S_ISVTX) != 0, .folder = folder.st_uid, .file = file.st_uid};
    return MayTakeAway(owners, ::geteuid()) ? FileError::None : FileError::AccessDenied;
}

} // namespace zy
