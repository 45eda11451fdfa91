#include "platform/windows/WindowsFileSystem.h"

#include <windows.h>
// After windows.h, which it leans on.
#include <shlwapi.h>

#include "platform/windows/ErrorCode.h"
#include "platform/windows/FilePermissions.h"
#include "platform/windows/FolderEntries.h"
#include "platform/windows/LocalTime.h"
#include "platform/windows/PrivateFolder.h"
#include "platform/windows/ProgramFolder.h"
#include "platform/windows/RootedPath.h"
#include "platform/windows/SystemHandle.h"
#include "platform/windows/WindowsFile.h"
#include "platform/windows/WindowsFolderLock.h"

namespace zy {
namespace {

using Opening = OpenedFile (*)(const std::string& path);

OpenedFile OpenBy(Opening open, std::string_view path) {
    const auto rooted = RootedPath(path);
    return rooted ? open(*rooted) : OpenedFile{.handle = nullptr, .error = FileError::NotFound};
}

/// A directory search takes these for patterns, and could find another file.
bool HasWildcard(std::string_view path) {
    return path.find_first_of("*?<>\"") != std::string_view::npos;
}

/// Looks for the one entry of that path; returns 0 or the error code.
DWORD Find(const std::string& path, WIN32_FIND_DATAA& found) {
    const HANDLE search = ::FindFirstFileA(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return ::GetLastError();
    }
    ::FindClose(search);
    return ERROR_SUCCESS;
}

bool FindsNormalFile(const std::string& path) {
    constexpr DWORD kNotNormal = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    WIN32_FIND_DATAA found{};
    return Find(path, found) == ERROR_SUCCESS && (found.dwFileAttributes & kNotNormal) == 0;
}

/// No two names differ by case alone here; but what cannot be looked for may be missing or not.
FileError Uncertainty(const std::string& path) {
    WIN32_FIND_DATAA found{};
    const auto error = ToFileError(Find(path, found));
    return error == FileError::NotFound ? FileError::None : error;
}

std::uint64_t SizeOf(const WIN32_FIND_DATAW& found) {
    return (std::uint64_t{found.nFileSizeHigh} << 32U) | found.nFileSizeLow;
}

/// With its separator at the end.
std::string FolderPart(const std::string& path) {
    return path.substr(0, path.find_last_of("\\/") + 1);
}

/// Opens what is there with these rights, sharing everything, and closes it again.
FileError TryRights(const std::string& path, DWORD rights) {
    const SystemHandle opened(::CreateFileA(path.c_str(), rights,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                            OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return ToFileError(opened ? ERROR_SUCCESS : ::GetLastError());
}

/// None where there is no file: then the folder alone decides.
FileError TryRightsOfFile(const std::string& path, DWORD rights) {
    if (IsFile(path) && IsWriteProtected(path)) {
        return FileError::ReadOnly;
    }
    return IsFile(path) ? TryRights(path, rights) : FileError::None;
}

FileError MayReplaceRooted(const std::string& path) {
    if (IsFolder(path)) {
        return FileError::IsFolder;
    }
    const auto error = TryRights(FolderPart(path), FILE_ADD_FILE);
    return error == FileError::None ? TryRightsOfFile(path, DELETE) : error;
}

FileError MayOverwriteRooted(const std::string& path) {
    return IsFile(path) ? TryRightsOfFile(path, GENERIC_WRITE) : MayReplaceRooted(path);
}

FileError DeleteRooted(const std::string& path) {
    if (::DeleteFileA(path.c_str()) != FALSE) {
        // A file goes as it is closed, and Wine does not report when that fails.
        return IsFile(path) ? FileError::AccessDenied : FileError::None;
    }
    const auto error = ToFileError(::GetLastError(), path);
    return error == FileError::AccessDenied && IsWriteProtected(path) ? FileError::ReadOnly : error;
}

FileError RenameRooted(const std::string& from, const std::string& to) {
    if (IsFolder(from)) {
        return FileError::IsFolder;
    }
    const auto renamed = ::MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH);
    return renamed != FALSE ? FileError::None : ToFileError(::GetLastError(), to);
}

} // namespace

FileError WindowsFileSystem::Locate(std::string_view path) {
    const auto rooted = RootedPath(path);
    return rooted && !HasWildcard(*rooted) ? Uncertainty(*rooted) : FileError::None;
}

LockedFolder WindowsFileSystem::LockFolderOf(std::string_view path) {
    const auto rooted = RootedPath(path);
    return rooted ? LockWindowsFolder(FolderPart(*rooted)) : LockedFolder{};
}

FileError WindowsFileSystem::MayReplace(std::string_view path) {
    const auto rooted = RootedPath(path);
    return rooted ? MayReplaceRooted(*rooted) : FileError::NotFound;
}

FileError WindowsFileSystem::MayOverwrite(std::string_view path) {
    const auto rooted = RootedPath(path);
    return rooted ? MayOverwriteRooted(*rooted) : FileError::NotFound;
}

std::optional<std::chrono::local_seconds> WindowsFileSystem::LastChange(std::string_view path) {
    const auto rooted = RootedPath(path);
    WIN32_FILE_ATTRIBUTE_DATA found{};
    const bool isKnown =
        rooted && ::GetFileAttributesExA(rooted->c_str(), GetFileExInfoStandard, &found) != FALSE;
    return isKnown ? std::optional(ToSeconds(LocalTime(found.ftLastWriteTime))) : std::nullopt;
}

std::optional<std::uint64_t> WindowsFileSystem::FreeBytes(std::string_view path) {
    const auto rooted = RootedPath(path);
    ULARGE_INTEGER available{};
    const bool isKnown =
        rooted && ::GetDiskFreeSpaceExA(FolderPart(*rooted).c_str(), &available, nullptr, nullptr) != FALSE;
    return isKnown ? std::optional<std::uint64_t>(available.QuadPart) : std::nullopt;
}

bool WindowsFileSystem::Exists(std::string_view path) {
    const auto rooted = RootedPath(path);
    return rooted && !HasWildcard(*rooted) && FindsNormalFile(*rooted);
}

bool WindowsFileSystem::PathExists(std::string_view path) {
    const auto rooted = RootedPath(path);
    return rooted && ::PathFileExistsA(rooted->c_str()) == TRUE;
}

std::vector<FoundFile> WindowsFileSystem::FilesIn(std::string_view folder) {
    std::vector<FoundFile> files;
    const auto rooted = RootedPath(folder);
    if (!rooted || HasWildcard(*rooted)) {
        return files;
    }
    ForEachEntry(OutsidePath(*rooted), [&](const WIN32_FIND_DATAW& found) {
        if ((found.dwFileAttributes & kNotRegular) == 0 && IsInCodePage(found.cFileName)) {
            files.push_back({.name = InsidePath(found.cFileName), .size = SizeOf(found)});
        }
    });
    return files;
}

OpenedFile WindowsFileSystem::OpenForReading(std::string_view path) {
    const auto ofProgram = program_.Find(path);
    return ofProgram ? OpenWindowsFile(*ofProgram) : OpenBy(OpenWindowsFile, path);
}

OpenedFile WindowsFileSystem::OpenAlwaysForReading(std::string_view path) {
    return OpenBy(OpenOrCreateWindowsFile, path);
}

OpenedFile WindowsFileSystem::Create(std::string_view path) {
    return OpenBy(CreateWindowsFile, path);
}

OpenedFile WindowsFileSystem::CreatePrivate(std::string_view path) {
    return OpenBy(CreatePrivateWindowsFile, path);
}

FileError WindowsFileSystem::MakePrivateFolder(std::string_view path) {
    const auto rooted = RootedPath(path);
    return rooted ? MakePrivateWindowsFolder(*rooted) : FileError::NotFound;
}

FileError WindowsFileSystem::Delete(std::string_view path) {
    const auto rooted = RootedPath(path);
    return rooted ? DeleteRooted(*rooted) : FileError::NotFound;
}

FileError WindowsFileSystem::Rename(std::string_view from, std::string_view to) {
    const auto rootedFrom = RootedPath(from);
    const auto rootedTo = RootedPath(to);
    return rootedFrom && rootedTo ? RenameRooted(*rootedFrom, *rootedTo) : FileError::NotFound;
}

FileError WindowsFileSystem::CopyPermissions(std::string_view from, std::string_view to) {
    const auto rootedFrom = RootedPath(from);
    const auto rootedTo = RootedPath(to);
    return rootedFrom && rootedTo ? CopyWindowsPermissions(*rootedFrom, *rootedTo) : FileError::NotFound;
}

} // namespace zy
