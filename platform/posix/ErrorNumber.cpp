#include "platform/posix/ErrorNumber.h"

#include <cerrno>

namespace zy {

FileError ToFileError(int errorNumber) {
    switch (errorNumber) {
    case 0:
        return FileError::None;
    case ENOENT:
    case ENOTDIR:
        return FileError::NotFound;
    case EEXIST:
        return FileError::Exists;
    case EACCES:
    case EPERM:
        return FileError::AccessDenied;
    case EROFS:
        return FileError::ReadOnly;
    case EBUSY:
    case ETXTBSY:
        return FileError::InUse;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return FileError::DiskFull;
    case EISDIR:
        return FileError::IsFolder;
    case ELOOP:
        return FileError::LinkLoop;
    default:
        return FileError::Other;
    }
}

} // namespace zy
