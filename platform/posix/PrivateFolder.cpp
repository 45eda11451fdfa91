#include "platform/posix/PrivateFolder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/posix/ErrorNumber.h"
#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

/// Returns 0 or the error number.
int KeepToTheUser(const FileDescriptor& folder) {
    constexpr mode_t kForTheUserAlone = 0700;
    constexpr mode_t kPermissionBits = 0777;
    struct stat status {};
    if (::fstat(folder.Number(), &status) != 0) {
        return errno;
    }
    if (!S_ISDIR(status.st_mode)) {
        return ENOTDIR;
    }
    if (status.st_uid != ::geteuid()) {
        return EACCES;
    }
    const bool isKept = (status.st_mode & kPermissionBits) == kForTheUserAlone ||
                        ::fchmod(folder.Number(), kForTheUserAlone) == 0;
    return isKept ? 0 : errno;
}

} // namespace

PrivateFolder OpenPrivateFolder(const std::string& path) {
    // With O_DIRECTORY the system would not tell a link from a file.
    FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    const int opening = errno == ELOOP ? EACCES : errno;
    const int error = folder.IsOpen() ? KeepToTheUser(folder) : opening;
    return {.folder = std::move(folder), .error = ToFileError(error)};
}

PrivateFolder MakePrivateFolder(const std::string& path) {
    if (path.empty()) {
        return {.folder = FileDescriptor(-1), .error = FileError::NotFound};
    }
    const auto made = MakeFolders(path);
    auto opened = OpenPrivateFolder(path);
    if (opened.error == FileError::NotFound && made != FileError::None) {
        opened.error = made;
    }
    return opened;
}

} // namespace zy
