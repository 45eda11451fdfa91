#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"
#include "platform/FileSystem.h"
#include "platform/memory/OperationLog.h"

namespace zy {

/// A disk in memory, which can be full, locked or broken at will.
///
/// Names are found without regard to case, as the code page defines it, and keep the case they were created
/// with. "/" counts as "\", several in a row as one. A file can be created only in a folder that exists.
///
/// Each operation of FileSystem and of its handles is counted, recorded and subject to the fault plan, but
/// for Size and what only asks or holds (DisplayPath, Locate, LockFolderOf, LastChange, MayReplace,
/// MayOverwrite, FreeBytes): a failing Exists or PathExists says false, a failing FilesIn finds none, a
/// failing Read reads nothing, all others return the plan's error and change nothing, but that a Write may be
/// cut short and a Close closes all the same. Destroying a handle is no operation, and neither are the verbs
/// for tests below.
///
/// Handles must not outlive the file system. One whose file is deleted keeps its bytes for itself.
class MemoryFileSystem final : public FileSystem {
  public:
    static constexpr unsigned kNewFilePermissions = 0644;
    static constexpr unsigned kPrivatePermissions = 0600;
    static constexpr unsigned kNewFolderPermissions = 0755;
    static constexpr unsigned kPrivateFolderPermissions = 0700;

    explicit MemoryFileSystem(const CodePage& codePage) : codePage_(codePage) {}

    std::string DisplayPath(std::string_view path) override;
    FileError Locate(std::string_view path) override;
    LockedFolder LockFolderOf(std::string_view path) override;
    FileError MayReplace(std::string_view path) override;
    FileError MayOverwrite(std::string_view path) override;
    /// The capacity that is left, or far more than anybody needs where there is no limit.
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
    FileError Rename(std::string_view from, std::string_view to) override;
    FileError CopyPermissions(std::string_view from, std::string_view to) override;

    /// Adds a folder and those above it.
    void AddFolder(std::string_view path);
    /// Puts a file with these bytes in place, replacing the bytes of one that exists; its folder is added
    /// when missing.
    void Put(std::string_view path, std::string_view bytes);
    /// The bytes of a file; nothing when there is none.
    std::optional<std::string> Get(std::string_view path) const;
    /// Takes a file away. Returns its bytes; nothing when there was none.
    std::optional<std::string> Take(std::string_view path);
    /// The names of the files of a folder as they were created, in the order of their capitals.
    std::vector<std::string> Names(std::string_view folder) const;

    /// The permissions of a file or folder; nothing when there is none.
    std::optional<unsigned> Permissions(std::string_view path) const;
    /// Does nothing when there is none.
    void SetPermissions(std::string_view path, unsigned permissions);

    /// From now on LastChange gives this time for the path.
    void SetLastChange(std::string_view path, std::chrono::local_seconds time);
    /// The paths of all files, in the order of their capitals.
    std::vector<std::string> Paths() const;

    /// Hides a file: Exists does not find it, and it cannot be created anew over (AccessDenied). Does nothing
    /// when there is no such file.
    void SetHidden(std::string_view path);

    // The switches belong to the path, whether the file exists or not.

    /// In a read-only folder no file is created, deleted or renamed (AccessDenied); those that exist can be
    /// emptied and written.
    void SetFolderReadOnly(std::string_view folder, bool readOnly = true);
    /// A file that another program holds cannot be opened, created, deleted or renamed (InUse), nor can
    /// another file get its name.
    void SetHeldOpen(std::string_view path, bool held = true);
    /// An unreadable file cannot be opened for reading (AccessDenied).
    void SetUnreadable(std::string_view path, bool unreadable = true);

    /// How people call a folder, with "/" between the parts of what is below it; without that, the paths are
    /// shown as they are.
    void SetDisplayed(std::string_view folder, std::string_view displayed);
    /// What Locate says of every path below this folder, or of this path itself; None takes it back.
    void SetUncertain(std::string_view path, FileError error);
    /// Another program holds the folder for a save of its own: LockFolderOf gives InUse, without waiting.
    void SetFolderLocked(std::string_view folder, bool locked = true);
    /// The folders that are held by this program now, in capitals.
    const std::set<std::string>& LockedFolders() const { return locked_; }

    /// The bytes that all files together may have; a Write that does not fit writes the part that does and
    /// returns DiskFull. Nothing: no limit. Put is not limited.
    void SetCapacity(std::optional<std::uint64_t> bytes) { capacity_ = bytes; }

    /// Makes operations fail. Counting and recording start anew, so that operation 1 is the next one.
    void Plan(const FaultPlan& plan) { operations_.Plan(plan); }
    /// The operations since the start or the last Plan.
    const OperationLog& Operations() const { return operations_; }
    OperationLog& Operations() { return operations_; }

  private:
    struct File {
        std::string name;
        std::string bytes;
        unsigned permissions = kNewFilePermissions;
        bool hidden = false;
    };
    using Files = std::map<std::string, std::shared_ptr<File>>;
    class Handle;
    class Lock;

    std::string Key(std::string_view path) const;
    bool IsFolder(const std::string& key) const;
    /// Why a name that is no file's cannot be worked with.
    FileError NoFileReason(const std::string& key) const;
    /// Why no file can stand there, whatever its folder allows.
    FileError NoPlaceReason(std::string_view path) const;
    /// Why a file's entry in its folder cannot be added or removed; None when it can.
    FileError EntryLock(const std::string& key) const;

    FileError OpenFound(std::string_view path, OpenedFile& opened);
    FileError CreateOrEmpty(std::string_view path, OpenedFile& opened);
    FileError CreateForOwner(std::string_view path, OpenedFile& opened);
    FileError MakeFolder(const std::string& key);
    FileError MakeFolderForUser(std::string_view path);
    FileError DeleteFound(const std::string& key);
    FileError RenameFound(const std::string& from, std::string_view toPath);
    FileError CopyPermissionsFound(const std::string& from, const std::string& to);
    /// Appends as much of the text as the disk has room for.
    FileError WriteWhatFits(File& file, std::size_t position, std::string_view text) const;
    std::uint64_t Room() const;

    const CodePage& codePage_;
    Files files_;
    std::map<std::string, unsigned> folders_; ///< with their permissions
    std::set<std::string> readOnlyFolders_;
    std::set<std::string> held_;
    std::set<std::string> unreadable_;
    std::map<std::string, std::chrono::local_seconds> lastChanges_;
    std::map<std::string, FileError> uncertain_;
    std::string displayedFolder_;
    std::string displayed_;
    std::set<std::string> lockedByOthers_;
    std::set<std::string> locked_;
    std::optional<std::uint64_t> capacity_;
    OperationLog operations_;
};

} // namespace zy
