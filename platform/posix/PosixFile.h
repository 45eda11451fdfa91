#pragma once

#include <string>

#include "platform/FileSystem.h"
#include "platform/posix/FileDescriptor.h"

namespace zy {

// Files by their paths in the system. Only regular files are opened, at the end of whatever symbolic links: a
// pipe or a device is refused (Other), so that opening or reading one never waits.

/// An open regular file.
class PosixFile final : public FileHandle {
  public:
    /// `size` is what is known of its size, for a disk that fails when it is asked again: a file that cannot
    /// be looked at must not be taken for an empty one.
    explicit PosixFile(FileDescriptor file, std::uint64_t size = 0) : file_(std::move(file)), size_(size) {}

    std::uint64_t Size() const override;
    std::size_t Read(std::span<char> buffer) override;
    FileError Write(std::string_view text) override;
    FileError Flush() override;
    FileError Close() override;

    /// For calls of the system that only some files need.
    const FileDescriptor& Descriptor() const { return file_; }

  private:
    FileDescriptor file_;
    std::uint64_t size_;
};

enum class IfExists { Empties, Fails };
enum class NewFileAccess { All, OwnerAlone };

/// Advises the system that the file is read from its beginning to its end.
OpenedFile OpenPosixFileForReading(const std::string& path);
/// The same, but that a missing file is created.
OpenedFile OpenOrCreatePosixFileForReading(const std::string& path);
/// A new file gets what the user's file creation mask leaves of reading and writing for all, or for its owner
/// alone.
OpenedFile CreatePosixFile(const std::string& path, IfExists ifExists,
                           NewFileAccess access = NewFileAccess::All);
/// Copies the permission bits and, as far as the user may, owner and group.
FileError CopyPosixPermissions(const std::string& from, const std::string& to);

} // namespace zy
