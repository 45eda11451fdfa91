#pragma once

#include <utility>

#include "platform/FileSystem.h"
#include "platform/windows/ProgramFolder.h"

namespace zy {

/// The files of the system. Paths are its own: from a drive, a root or a server on.
class WindowsFileSystem final : public FileSystem {
  public:
    /// Files of this folder can be read whatever letters its path holds.
    explicit WindowsFileSystem(ProgramFolder program = {}) : program_(std::move(program)) {}

    std::string DisplayPath(std::string_view path) override { return std::string(path); }
    FileError Locate(std::string_view path) override;
    LockedFolder LockFolderOf(std::string_view path) override;
    FileError MayReplace(std::string_view path) override;
    FileError MayOverwrite(std::string_view path) override;
    std::optional<std::chrono::local_seconds> LastChange(std::string_view path) override;
    std::optional<std::uint64_t> FreeBytes(std::string_view path) override;
    /// A file that is hidden or the system's is no normal one.
    bool Exists(std::string_view path) override;
    bool PathExists(std::string_view path) override;
    std::vector<FoundFile> FilesIn(std::string_view folder) override;
    OpenedFile OpenForReading(std::string_view path) override;
    OpenedFile OpenAlwaysForReading(std::string_view path) override;
    OpenedFile Create(std::string_view path) override;
    OpenedFile CreatePrivate(std::string_view path) override;
    FileError MakePrivateFolder(std::string_view path) override;
    FileError Delete(std::string_view path) override;
    /// The new name stands on the disk when this returns.
    FileError Rename(std::string_view from, std::string_view to) override;
    /// The access list and, as far as the user may, owner and group.
    FileError CopyPermissions(std::string_view from, std::string_view to) override;

  private:
    ProgramFolder program_;
};

} // namespace zy
