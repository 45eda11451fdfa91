#include "platform/windows/ErrorCode.h"

#include <windows.h>

#include "platform/windows/RootedPath.h"

namespace zy {
namespace {

constexpr unsigned long kQuotaExceeded = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which not every winerror.h has

} // namespace

FileError ToFileError(unsigned long errorCode) {
    switch (errorCode) {
    case ERROR_SUCCESS:
        return FileError::None;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY:
        return FileError::NotFound;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return FileError::Exists;
    case ERROR_ACCESS_DENIED:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_PRIVILEGE_NOT_HELD:
        return FileError::AccessDenied;
    case ERROR_WRITE_PROTECT:
    case ERROR_FILE_READ_ONLY:
        return FileError::ReadOnly;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_DELETE_PENDING:
    case ERROR_BUSY:
        return FileError::InUse;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kQuotaExceeded:
    case ERROR_FILE_TOO_LARGE:
        return FileError::DiskFull;
    case ERROR_CANT_RESOLVE_FILENAME:
        return FileError::LinkLoop;
    default:
        return FileError::Other;
    }
}

FileError ToFileError(unsigned long errorCode, const std::string& path) {
    const auto error = ToFileError(errorCode);
    const bool maybeFolder = error == FileError::AccessDenied || error == FileError::Exists;
    return maybeFolder && IsFolder(path) ? FileError::IsFolder : error;
}

} // namespace zy
