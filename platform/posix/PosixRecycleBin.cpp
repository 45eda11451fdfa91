#include "platform/posix/PosixRecycleBin.h"

#include <sys/stat.h>

#include "platform/posix/GlibPointer.h"
#include "platform/posix/TrashFolder.h"
#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

enum class Trashed { Yes, No, NotSupported };

bool IsFile(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

Trashed MoveToDesktopTrash(const std::string& path) {
    // The local file system alone: the desktop's modules for remote ones may start services.
    const GlibPointer<GFile> file(g_vfs_get_file_for_path(g_vfs_get_local(), path.c_str()));
    GError* raised = nullptr;
    const bool done = g_file_trash(file.get(), nullptr, &raised) != FALSE;
    const GlibPointer<GError> error(raised);
    if (done) {
        return Trashed::Yes;
    }
    return g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_NOT_SUPPORTED) ? Trashed::NotSupported
                                                                              : Trashed::No;
}

bool MoveToOwnTrash(const std::string& path) {
    const auto data = UserDataFolder();
    return !data.empty() && TrashFolder(data + "/zysetup/Trash").Add(path) == FileError::None;
}

} // namespace

int PosixRecycleBin::Delete(std::string_view nulSeparatedPaths) {
    bool all = true;
    for (const auto path : SplitPathList(nulSeparatedPaths)) {
        all = Recycle(path) && all;
    }
    return all ? 0 : 1;
}

bool PosixRecycleBin::Recycle(std::string_view path) const {
    const auto file = paths_.ResolveLinks(path).path;
    if (!IsFile(file)) {
        return false;
    }
    const auto trashed = MoveToDesktopTrash(file);
    return trashed == Trashed::Yes || (trashed == Trashed::NotSupported && MoveToOwnTrash(file));
}

} // namespace zy
