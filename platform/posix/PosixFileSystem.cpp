#include "platform/posix/PosixFileSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include "basics/Text.h"
#include "platform/posix/ErrorNumber.h"
#include "platform/posix/FolderEntries.h"
#include "platform/posix/LocalTime.h"
#include "platform/posix/Moving.h"
#include "platform/posix/PosixFile.h"
#include "platform/posix/PosixFolderLock.h"
#include "platform/posix/PrivateFolder.h"
#include "platform/posix/StickyFolder.h"

namespace zy {
namespace {

bool IsFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

FileError Access(const std::string& path, int rights) {
    return ToFileError(::faccessat(AT_FDCWD, path.c_str(), rights, AT_EACCESS) == 0 ? 0 : errno);
}

std::optional<std::uint64_t> SizeOfRegularFile(const std::filesystem::directory_entry& entry) {
    std::error_code error;
    const bool isRegular = entry.symlink_status(error).type() == std::filesystem::file_type::regular;
    const auto size = isRegular ? entry.file_size(error) : 0;
    return isRegular && !error ? std::optional<std::uint64_t>(size) : std::nullopt;
}

FileError MayReplaceResolved(const std::string& path) {
    const auto error = Access(FolderOfPath(path), W_OK | X_OK);
    return error == FileError::None ? StickyBitError(path) : error;
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
    return IsFolder(place.path) ? FileError::IsFolder : MayReplaceResolved(place.path);
}

FileError PosixFileSystem::MayOverwrite(std::string_view path) {
    const auto place = paths_.ResolveLinks(path);
    const bool exists = place.error == FileError::None && Access(place.path, F_OK) == FileError::None;
    return exists && !IsFolder(place.path) ? Access(place.path, W_OK) : MayReplace(path);
}

std::optional<std::chrono::local_seconds> PosixFileSystem::LastChange(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    struct stat status {};
    const bool isKnown = resolved && ::stat(resolved->c_str(), &status) == 0;
    return isKnown ? std::optional(ToSeconds(LocalTime(status.st_mtime))) : std::nullopt;
}

std::optional<std::uint64_t> PosixFileSystem::FreeBytes(std::string_view path) {
    const auto place = paths_.ResolveLinks(path);
    struct statvfs disk {};
    const bool isKnown =
        place.error == FileError::None && ::statvfs(FolderOfPath(place.path).c_str(), &disk) == 0;
    return isKnown ? std::optional<std::uint64_t>(disk.f_bavail * disk.f_frsize) : std::nullopt;
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

std::vector<FoundFile> PosixFileSystem::FilesIn(std::string_view folder) {
    std::vector<FoundFile> files;
    for (const auto& entry : EntriesIn(paths_.Resolve(folder).value_or(""))) {
        const auto name = text_.NameToInside(entry.path().filename().string());
        const auto size = SizeOfRegularFile(entry);
        if (size && !Contains(name, PathText::kEscape)) {
            files.push_back({.name = name, .size = *size});
        }
    }
    return files;
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

FileError PosixFileSystem::MakePrivateFolder(std::string_view path) {
    const auto resolved = paths_.Resolve(path);
    return resolved ? zy::MakePrivateFolder(*resolved).error : FileError::NotFound;
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
