#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileError.h"

namespace zy {

/// An open file. Destroying it closes it without a report; who wrote calls Close and looks at the result.
class FileHandle {
  public:
    virtual ~FileHandle() = default;

    /// The file's size in bytes.
    virtual std::uint64_t Size() const = 0;
    /// Reads from the current position up to the buffer's size. Returns the number of bytes read: fewer at
    /// the end of the file or when the disk fails, 0 when nothing could be read.
    virtual std::size_t Read(std::span<char> buffer) = 0;
    /// Writes the whole text at the current position. On failure part of it may have been written.
    virtual FileError Write(std::string_view text) = 0;
    /// Waits until everything written stands on the disk.
    virtual FileError Flush() = 0;
    /// Closes the file, also when that fails. From then on nothing can be read, and to write,
    /// flush or close it is an error.
    virtual FileError Close() = 0;
};

/// Writes the whole text, waits until it stands on the disk and closes the file. Returns the first error; the
/// file is closed all the same.
FileError WriteAndClose(FileHandle& file, std::string_view text);

/// A handle, or the reason why there is none.
struct OpenedFile {
    std::unique_ptr<FileHandle> handle;
    FileError error = FileError::None;
};

/// A folder that is held for a save. Destroying it lets the next save in.
class FolderLock {
  public:
    virtual ~FolderLock() = default;
};

/// A held folder, or the reason why it is not held. A folder whose file system knows no locks gives neither:
/// that is no reason not to save.
struct LockedFolder {
    std::unique_ptr<FolderLock> lock;
    FileError error = FileError::None;
};

/// A file that stands in a folder.
struct FoundFile {
    std::string name;
    std::uint64_t size = 0;
};

/// The files of the computer. Paths are absolute, in the ANSI code page, with "\" between their parts; names
/// are found without regard to case.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    /// The path as the user writes it on this system, for a text that names a file: where it leads to, be
    /// there a file or not. What can be no path comes back as it is.
    virtual std::string DisplayPath(std::string_view path) = 0;
    /// Whether it is certain which place a path means, be there a file or not. Ambiguous when a name on the
    /// way could be one of several that differ by case alone, though one of them may match exactly;
    /// AccessDenied when a folder on the way hides its names, so that nothing is known of the others. The
    /// folders that the program was started with are certain as they are.
    virtual FileError Locate(std::string_view path) = 0;
    /// Holds the folder that the file of this path stands in, against other programs that ask for the same;
    /// waits up to two seconds for one that holds it already, this one included, and then gives InUse. It
    /// keeps nobody from working with the files who does not ask.
    virtual LockedFolder LockFolderOf(std::string_view path) = 0;

    /// Why a new file could not take the place of this one now, be there a file or not; None when it could.
    /// Nothing is changed by asking.
    virtual FileError MayReplace(std::string_view path) = 0;
    /// The same for one that is emptied and written where it stands, and created where there is none.
    virtual FileError MayOverwrite(std::string_view path) = 0;
    /// When a file was written last, in the user's own time; nothing where there is none, or nobody can tell.
    virtual std::optional<std::chrono::local_seconds> LastChange(std::string_view path) = 0;
    /// How many bytes could still be written in the folder of this path; nothing where the system cannot
    /// tell.
    virtual std::optional<std::uint64_t> FreeBytes(std::string_view path) = 0;

    /// A directory search for a normal file of exactly that name; a folder of the name is not found.
    virtual bool Exists(std::string_view path) = 0;
    /// Whether anything is there by that path, as the desktop's shell tests it: hidden files and folders are
    /// found too. Whatever goes wrong counts as nothing there.
    virtual bool PathExists(std::string_view path) = 0;
    /// The regular files that stand in a folder, in no order. Folders and symbolic links are left out, and so
    /// are names that the code page lacks. Empty also where the folder cannot be read.
    virtual std::vector<FoundFile> FilesIn(std::string_view folder) = 0;
    /// Opens an existing file for reading from its beginning to its end, shared for reading and writing.
    virtual OpenedFile OpenForReading(std::string_view path) = 0;
    /// The same for a file that was found just before: one that has gone since then is created, and empty.
    virtual OpenedFile OpenAlwaysForReading(std::string_view path) = 0;
    /// Creates the file anew for writing, emptying one that exists; shared for reading and writing.
    virtual OpenedFile Create(std::string_view path) = 0;
    /// Creates a new file for writing that its owner alone may read and write, whatever is usual for new
    /// files. One of that name makes it fail, and stays as it is.
    virtual OpenedFile CreatePrivate(std::string_view path) = 0;
    /// Makes a folder that the user alone may enter, and the folders above it that are missing. One that is
    /// there already is kept to the user; AccessDenied where it is somebody else's or a symbolic link. Exists
    /// where a file is in its place or in that of a folder above it.
    virtual FileError MakePrivateFolder(std::string_view path) = 0;
    /// Deletes a file, be it hidden or not. A folder is not deleted (IsFolder).
    virtual FileError Delete(std::string_view path) = 0;
    /// Gives a file another name in its folder. Never replaces a file: one of the new name makes it fail.
    virtual FileError Rename(std::string_view from, std::string_view to) = 0;
    /// Gives the file `to` the access permissions of the file `from`.
    virtual FileError CopyPermissions(std::string_view from, std::string_view to) = 0;
};

} // namespace zy
