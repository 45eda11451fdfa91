#include "platform/posix/PosixFileSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/ErrorNumber.h"
#include "platform/posix/PosixFile.h"
#include "platform/posix/Renaming.h"

namespace zy {
namespace {

bool IsFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Makes a new name last. When that fails the file has its new name all the same, so nothing is reported.
void SyncFolderOf(const std::string& path) {
    const auto folder = path.substr(0, path.rfind('/') + 1);
    const FileDescriptor entries(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Uninterrupted([&] { return ::fsync(entries.Number()); });
}

FileError RenameResolved(const std::string& from, const std::string& to) {
    if (IsFolder(from)) {
        return FileError::IsFolder;
    }
    const auto error = ToFileError(RenameWithoutReplacing(from, to));
    if (error == FileError::None) {
        SyncFolderOf(to);
    }
    return error == FileError::Exists && IsFolder(to) ? FileError::IsFolder : error;
}

} // namespace

FileError PosixFileSystem::Locate(std::string_view path) {
    return paths_.Locate(path);
}

LockedFolder PosixFileSystem::LockFolderOf(std::string_view /*path*/) {
    return {};
}

bool PosixFileSystem::Exists(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    struct stat status {};
    return resolved && ::stat(resolved->c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

OpenedFile PosixFileSystem::OpenForReading(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    return resolved ? OpenPosixFileForReading(*resolved)
                    : OpenedFile{.handle = nullptr, .error = FileError::NotFound};
}

OpenedFile PosixFileSystem::Create(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    return resolved ? CreatePosixFile(*resolved, IfExists::Empties)
                    : OpenedFile{.handle = nullptr, .error = FileError::NotFound};
}

OpenedFile PosixFileSystem::CreatePrivate(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    if (!resolved) {
        return {.handle = nullptr, .error = FileError::NotFound};
    }
    auto created = CreatePosixFile(*resolved, IfExists::Fails, For::Owner);
    if (created.error == FileError::Exists && IsFolder(*resolved)) {
        created.error = FileError::IsFolder;
    }
    return created;
}

FileError PosixFileSystem::Delete(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    if (!resolved) {
        return FileError::NotFound;
    }
    return ToFileError(::unlink(resolved->c_str()) == 0 ? 0 : errno);
}

FileError PosixFileSystem::Rename(std::string_view from, std::string_view to) {
    const auto resolvedFrom = paths_.Resolve(from);
    const auto resolvedTo = paths_.Resolve(to);
    return resolvedFrom && resolvedTo ? RenameResolved(*resolvedFrom, *resolvedTo) : FileError::NotFound;
}

FileError PosixFileSystem::CopyPermissions(std::string_view from, std::string_view to) {
    const auto resolvedFrom = paths_.Resolve(from);
    const auto resolvedTo = paths_.Resolve(to);
    return resolvedFrom && resolvedTo ? CopyPosixPermissions(*resolvedFrom, *resolvedTo)
                                      : FileError::NotFound;
}

} // namespace zy
