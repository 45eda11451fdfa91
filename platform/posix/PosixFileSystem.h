#pragma once

#include <utility>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/posix/PathResolver.h"

namespace zy {

/// The files of the system. A path such as "\home\u\ZYRules.sys" means the file of that name below "/", found
/// as PathResolver says; names are created with the case given.
///
/// A symbolic link stands for the file that it leads to, which may have to be made there first: whatever is
/// done by its path, the link itself stays as it is.
class PosixFileSystem final : public FileSystem {
  public:
    explicit PosixFileSystem(const CodePage& codePage, std::vector<KnownFolder> known = {})
        : text_(codePage), paths_(codePage, std::move(known)) {}

    std::string DisplayPath(std::string_view path) override;
    FileError Locate(std::string_view path) override;
    /// Behind links the folder that the file really stands in, so that those who share it keep apart.
    LockedFolder LockFolderOf(std::string_view path) override;
    FileError MayReplace(std::string_view path) override;
    FileError MayOverwrite(std::string_view path) override;
    /// Behind links, as for a lock.
    std::optional<std::chrono::local_seconds> LastChange(std::string_view path) override;
    std::optional<std::uint64_t> FreeBytes(std::string_view path) override;
    bool Exists(std::string_view path) override;
    bool PathExists(std::string_view path) override;
    std::vector<FoundFile> FilesIn(std::string_view folder) override;
    OpenedFile OpenForReading(std::string_view path) override;
    OpenedFile OpenAlwaysForReading(std::string_view path) override;
    OpenedFile Create(std::string_view path) override;
    OpenedFile CreatePrivate(std::string_view path) override;
    FileError MakePrivateFolder(std::string_view path) override;
    FileError Delete(std::string_view path) override;
    /// The new name stands on the disk when this returns. Where a link leads to another disk, the file moves
    /// there as a copy, which gets its name when it is whole.
    FileError Rename(std::string_view from, std::string_view to) override;
    /// The permission bits and, as far as the user may, owner and group.
    FileError CopyPermissions(std::string_view from, std::string_view to) override;

  private:
    PathText text_;
    PathResolver paths_;
};

} // namespace zy
