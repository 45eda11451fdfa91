#include "platform/posix/PosixFileSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/ErrorNumber.h"
#include "platform/posix/Moving.h"
#include "platform/posix/PosixFile.h"
#include "platform/posix/PosixFolderLock.h"

namespace zy {
namespace {

bool IsFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

FileError Access(const std::string& path, int rights) {
    return ToFileError(::faccessat(AT_FDCWD, path.c_str(), rights, AT_EACCESS) == 0 ? 0 : errno);
}

FileError RenameResolved(const std::string& from, const std::string& to) {
    if (IsFolder(from)) {
        return FileError::IsFolder;
    }
    const auto error = MoveWithoutReplacing(from, to);
    return error == FileError::Exists && IsFolder(to) ? FileError::IsFolder : error;
}

} // namespace

std::string PosixFileSystem::DisplayPath(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    return resolved ? text_.TextToInside(*resolved) : std::string(path);
}

FileError PosixFileSystem::Locate(std::string_view path) {
    return paths_.Locate(path);
}

LockedFolder PosixFileSystem::LockFolderOf(std::string_view path) {
    const auto place = paths_.ResolveLinks(path);
    return place.error == FileError::None ? LockPosixFolder(FolderOfPath(place.path)) : LockedFolder{};
}

FileError PosixFileSystem::MayReplace(std::string_view path) {
    const auto place = paths_.ResolveLinks(path);
    if (place.error != FileError::None) {
        return place.error;
    }
    return IsFolder(place.path) ? FileError::IsFolder : Access(FolderOfPath(place.path), W_OK | X_OK);
}

FileError PosixFileSystem::MayOverwrite(std::string_view path) {
    const auto place = paths_.ResolveLinks(path);
    const bool exists = place.error == FileError::None && Access(place.path, F_OK) == FileError::None;
    return exists && !IsFolder(place.path) ? Access(place.path, W_OK) : MayReplace(path);
}

bool PosixFileSystem::Exists(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    struct stat status {};
    return resolved && ::stat(resolved->c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool PosixFileSystem::PathExists(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    struct stat status {};
    return resolved && ::stat(resolved->c_str(), &status) == 0;
}

OpenedFile PosixFileSystem::OpenForReading(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    return resolved ? OpenPosixFileForReading(*resolved)
                    : OpenedFile{.handle = nullptr, .error = FileError::NotFound};
}

OpenedFile PosixFileSystem::OpenAlwaysForReading(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    return resolved ? OpenOrCreatePosixFileForReading(*resolved)
                    : OpenedFile{.handle = nullptr, .error = FileError::NotFound};
}

OpenedFile PosixFileSystem::Create(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    return resolved ? CreatePosixFile(*resolved, IfExists::Empties)
                    : OpenedFile{.handle = nullptr, .error = FileError::NotFound};
}

OpenedFile PosixFileSystem::CreatePrivate(std::string_view path) {
    const auto place = paths_.ResolveLinks(path);
    if (place.error != FileError::None) {
        return {.handle = nullptr, .error = place.error};
    }
    auto created = CreatePosixFile(place.path, IfExists::Fails, NewFileAccess::OwnerAlone);
    if (created.error == FileError::Exists && IsFolder(place.path)) {
        created.error = FileError::IsFolder;
    }
    return created;
}

FileError PosixFileSystem::Delete(std::string_view path) {
    const auto place = paths_.ResolveLinks(path);
    if (place.error != FileError::None) {
        return place.error;
    }
    return ToFileError(::unlink(place.path.c_str()) == 0 ? 0 : errno);
}

FileError PosixFileSystem::Rename(std::string_view from, std::string_view to) {
    const auto source = paths_.ResolveLinks(from);
    const auto target = paths_.ResolveLinks(to);
    for (const auto error : {source.error, target.error}) {
        if (error != FileError::None) {
            return error;
        }
    }
    return RenameResolved(source.path, target.path);
}

FileError PosixFileSystem::CopyPermissions(std::string_view from, std::string_view to) {
    const auto resolvedFrom = paths_.Resolve(from);
    const auto resolvedTo = paths_.Resolve(to);
    return resolvedFrom && resolvedTo ? CopyPosixPermissions(*resolvedFrom, *resolvedTo)
                                      : FileError::NotFound;
}

} // namespace zy
