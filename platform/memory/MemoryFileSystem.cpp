#include "platform/memory/MemoryFileSystem.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zy {
namespace {

std::string Line(std::string_view operation, std::string_view path) {
    return std::string(operation) + ' ' + std::string(path);
}

std::string Line(std::string_view operation, std::string_view from, std::string_view to) {
    return Line(operation, from) + " -> " + std::string(to);
}

/// The path with "\" alone between its parts, one at a time, and none at its end.
std::string Normalised(std::string_view path) {
    std::string normalised;
    for (const char c : path) {
        const char next = c == '/' ? '\\' : c;
        if (next != '\\' || normalised.empty() || normalised.back() != '\\') {
            normalised += next;
        }
    }
    while (!normalised.empty() && normalised.back() == '\\') {
        normalised.pop_back();
    }
    return normalised;
}

/// The part before the last "\"; nothing when there is none.
std::optional<std::string> FolderPart(const std::string& path) {
    const auto end = path.rfind('\\');
    return end == std::string::npos ? std::nullopt : std::optional(path.substr(0, end));
}

std::string NamePart(const std::string& path) {
    return path.substr(path.rfind('\\') + 1);
}

void Switch(std::set<std::string>& paths, const std::string& path, bool on) {
    if (on) {
        paths.insert(path);
    } else {
        paths.erase(path);
    }
}

} // namespace

class MemoryFileSystem::Handle final : public FileHandle {
  public:
    Handle(MemoryFileSystem& disk, std::shared_ptr<File> file, std::string_view path, bool writable)
        : disk_(disk), file_(std::move(file)), path_(path), writable_(writable) {}

    std::uint64_t Size() const override { return file_->bytes.size(); }

    std::size_t Read(std::span<char> buffer) override {
        std::size_t count = 0;
        disk_.operations_.Perform(Line("Read", path_), [&] {
            count = open_ && !writable_ ? CopyOut(buffer) : 0;
            return FileError::None;
        });
        return count;
    }

    FileError Write(std::string_view text) override {
        const auto write = [&](std::string_view part) {
            const auto error = disk_.WriteWhatFits(*file_, position_, part);
            position_ = std::min(position_ + part.size(), file_->bytes.size());
            return error;
        };
        return disk_.operations_.Perform(
            Line("Write", path_), [&] { return open_ && writable_ ? write(text) : FileError::Other; },
            [&](const FaultPlan& plan) {
                if (plan.cutShort) {
                    write(text.substr(0, text.size() / 2));
                }
            });
    }

    FileError Flush() override {
        return disk_.operations_.Perform(Line("Flush", path_),
                                         [&] { return open_ ? FileError::None : FileError::Other; });
    }

    FileError Close() override {
        const bool wasOpen = std::exchange(open_, false);
        return disk_.operations_.Perform(Line("Close", path_),
                                         [&] { return wasOpen ? FileError::None : FileError::Other; });
    }

  private:
    std::size_t CopyOut(std::span<char> buffer) {
        const auto start = std::min(position_, file_->bytes.size());
        const auto count = file_->bytes.copy(buffer.data(), buffer.size(), start);
        position_ = start + count;
        return count;
    }

    MemoryFileSystem& disk_;
    std::shared_ptr<File> file_;
    std::string path_;
    bool writable_;
    bool open_ = true;
    std::size_t position_ = 0;
};

class MemoryFileSystem::Lock final : public FolderLock {
  public:
    Lock(std::set<std::string>& locked, std::string folder) : locked_(locked), folder_(std::move(folder)) {
        locked_.insert(folder_);
    }
    ~Lock() override { locked_.erase(folder_); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

  private:
    std::set<std::string>& locked_;
    std::string folder_;
};

std::string MemoryFileSystem::DisplayPath(std::string_view path) {
    if (displayed_.empty() || !Key(path).starts_with(displayedFolder_)) {
        return std::string(path);
    }
    auto rest = Normalised(path).substr(displayedFolder_.size());
    std::replace(rest.begin(), rest.end(), '\\', '/');
    return displayed_ + rest;
}

void MemoryFileSystem::SetDisplayed(std::string_view folder, std::string_view displayed) {
    displayedFolder_ = Key(folder);
    displayed_ = displayed;
}

FileError MemoryFileSystem::Locate(std::string_view path) {
    for (std::optional<std::string> part = Key(path); part; part = FolderPart(*part)) {
        if (const auto found = uncertain_.find(*part); found != uncertain_.end()) {
            return found->second;
        }
    }
    return FileError::None;
}

LockedFolder MemoryFileSystem::LockFolderOf(std::string_view path) {
    auto folder = FolderPart(Key(path));
    if (!folder || !IsFolder(*folder) || path.find('\0') != std::string_view::npos) {
        return {};
    }
    if (lockedByOthers_.contains(*folder) || locked_.contains(*folder)) {
        return {.lock = nullptr, .error = FileError::InUse};
    }
    return {.lock = std::make_unique<Lock>(locked_, std::move(*folder)), .error = FileError::None};
}

FileError MemoryFileSystem::MayReplace(std::string_view path) {
    const auto error = NoPlaceReason(path);
    return error == FileError::None ? EntryLock(Key(path)) : error;
}

FileError MemoryFileSystem::MayOverwrite(std::string_view path) {
    const auto found = files_.find(Key(path));
    if (found == files_.end()) {
        return MayReplace(path);
    }
    if (found->second->hidden) {
        return FileError::AccessDenied;
    }
    const auto error = MayReplace(path);
    return error == FileError::AccessDenied ? FileError::None : error;
}

std::optional<std::chrono::local_seconds> MemoryFileSystem::LastChange(std::string_view path) {
    const auto found = lastChanges_.find(Key(path));
    return found == lastChanges_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::uint64_t> MemoryFileSystem::FreeBytes(std::string_view path) {
    const auto folder = FolderPart(Key(path));
    return folder && IsFolder(*folder) ? std::optional(Room()) : std::nullopt;
}

void MemoryFileSystem::SetUncertain(std::string_view path, FileError error) {
    if (error == FileError::None) {
        uncertain_.erase(Key(path));
    } else {
        uncertain_[Key(path)] = error;
    }
}

void MemoryFileSystem::SetFolderLocked(std::string_view folder, bool locked) {
    Switch(lockedByOthers_, Key(folder), locked);
}

bool MemoryFileSystem::Exists(std::string_view path) {
    bool found = false;
    operations_.Perform(Line("Exists", path), [&] {
        const auto file = files_.find(Key(path));
        found = file != files_.end() && !file->second->hidden;
        return FileError::None;
    });
    return found;
}

bool MemoryFileSystem::PathExists(std::string_view path) {
    bool found = false;
    operations_.Perform(Line("PathExists", path), [&] {
        found = files_.contains(Key(path)) || (!path.empty() && IsFolder(Key(path)));
        return FileError::None;
    });
    return found;
}

std::vector<FoundFile> MemoryFileSystem::FilesIn(std::string_view folder) {
    std::vector<FoundFile> found;
    operations_.Perform(Line("FilesIn", folder), [&] {
        const auto key = Key(folder);
        const bool isListed = !folder.empty() && Locate(folder) != FileError::AccessDenied;
        for (const auto& [path, file] : files_) {
            if (isListed && FolderPart(path) == key) {
                found.push_back({.name = file->name, .size = file->bytes.size()});
            }
        }
        return FileError::None;
    });
    return found;
}

OpenedFile MemoryFileSystem::OpenForReading(std::string_view path) {
    OpenedFile opened;
    opened.error = operations_.Perform(Line("OpenForReading", path), [&] { return OpenFound(path, opened); });
    return opened;
}

OpenedFile MemoryFileSystem::OpenAlwaysForReading(std::string_view path) {
    OpenedFile opened;
    opened.error = operations_.Perform(Line("OpenAlwaysForReading", path), [&] {
        OpenedFile created;
        const auto key = Key(path);
        const auto error = files_.contains(key) ? FileError::None : CreateOrEmpty(path, created);
        return error == FileError::None ? OpenFound(path, opened) : error;
    });
    return opened;
}

OpenedFile MemoryFileSystem::Create(std::string_view path) {
    OpenedFile opened;
    opened.error = operations_.Perform(Line("Create", path), [&] { return CreateOrEmpty(path, opened); });
    return opened;
}

OpenedFile MemoryFileSystem::CreatePrivate(std::string_view path) {
    OpenedFile opened;
    opened.error =
        operations_.Perform(Line("CreatePrivate", path), [&] { return CreateForOwner(path, opened); });
    return opened;
}

FileError MemoryFileSystem::MakePrivateFolder(std::string_view path) {
    return operations_.Perform(Line("MakePrivateFolder", path), [&] { return MakeFolderForUser(path); });
}

FileError MemoryFileSystem::Delete(std::string_view path) {
    return operations_.Perform(Line("Delete", path), [&] { return DeleteFound(Key(path)); });
}

FileError MemoryFileSystem::Rename(std::string_view from, std::string_view to) {
    return operations_.Perform(Line("Rename", from, to), [&] { return RenameFound(Key(from), to); });
}

FileError MemoryFileSystem::CopyPermissions(std::string_view from, std::string_view to) {
    return operations_.Perform(Line("CopyPermissions", from, to),
                               [&] { return CopyPermissionsFound(Key(from), Key(to)); });
}

void MemoryFileSystem::AddFolder(std::string_view path) {
    for (std::optional<std::string> folder = Key(path); folder; folder = FolderPart(*folder)) {
        folders_.try_emplace(*folder, kNewFolderPermissions);
    }
}

void MemoryFileSystem::Put(std::string_view path, std::string_view bytes) {
    const auto normalised = Normalised(path);
    AddFolder(FolderPart(normalised).value_or(""));
    auto& file = files_[Key(path)];
    if (!file) {
        file = std::make_shared<File>(File{.name = NamePart(normalised), .bytes = {}});
    }
    file->bytes = bytes;
}

std::optional<std::string> MemoryFileSystem::Get(std::string_view path) const {
    const auto found = files_.find(Key(path));
    return found == files_.end() ? std::nullopt : std::optional(found->second->bytes);
}

std::optional<std::string> MemoryFileSystem::Take(std::string_view path) {
    auto bytes = Get(path);
    files_.erase(Key(path));
    return bytes;
}

std::vector<std::string> MemoryFileSystem::Names(std::string_view folder) const {
    const auto key = Key(folder);
    std::vector<std::string> names;
    for (const auto& [path, file] : files_) {
        if (FolderPart(path) == key) {
            names.push_back(file->name);
        }
    }
    return names;
}

std::optional<unsigned> MemoryFileSystem::Permissions(std::string_view path) const {
    const auto key = Key(path);
    if (const auto folder = folders_.find(key); folder != folders_.end()) {
        return folder->second;
    }
    const auto found = files_.find(key);
    return found == files_.end() ? std::nullopt : std::optional(found->second->permissions);
}

void MemoryFileSystem::SetPermissions(std::string_view path, unsigned permissions) {
    const auto key = Key(path);
    if (const auto folder = folders_.find(key); folder != folders_.end()) {
        folder->second = permissions;
    }
    if (const auto found = files_.find(key); found != files_.end()) {
        found->second->permissions = permissions;
    }
}

void MemoryFileSystem::SetLastChange(std::string_view path, std::chrono::local_seconds time) {
    lastChanges_[Key(path)] = time;
}

std::vector<std::string> MemoryFileSystem::Paths() const {
    std::vector<std::string> paths;
    for (const auto& [path, file] : files_) {
        paths.push_back(FolderPart(path).value_or("") + "\\" + file->name);
    }
    return paths;
}

void MemoryFileSystem::SetHidden(std::string_view path) {
    if (const auto found = files_.find(Key(path)); found != files_.end()) {
        found->second->hidden = true;
    }
}

void MemoryFileSystem::SetFolderReadOnly(std::string_view folder, bool readOnly) {
    Switch(readOnlyFolders_, Key(folder), readOnly);
}

void MemoryFileSystem::SetHeldOpen(std::string_view path, bool held) {
    Switch(held_, Key(path), held);
}

void MemoryFileSystem::SetUnreadable(std::string_view path, bool unreadable) {
    Switch(unreadable_, Key(path), unreadable);
}

std::string MemoryFileSystem::Key(std::string_view path) const {
    return codePage_.UCase(Normalised(path));
}

bool MemoryFileSystem::IsFolder(const std::string& key) const {
    return key.empty() || folders_.contains(key);
}

FileError MemoryFileSystem::NoFileReason(const std::string& key) const {
    return IsFolder(key) ? FileError::IsFolder : FileError::NotFound;
}

FileError MemoryFileSystem::NoPlaceReason(std::string_view path) const {
    const auto key = Key(path);
    const auto folder = FolderPart(key);
    if (IsFolder(key)) {
        return FileError::IsFolder;
    }
    const bool hasPlace = folder && IsFolder(*folder) && path.find('\0') == std::string_view::npos;
    return hasPlace ? FileError::None : FileError::NotFound;
}

FileError MemoryFileSystem::EntryLock(const std::string& key) const {
    if (held_.contains(key)) {
        return FileError::InUse;
    }
    return readOnlyFolders_.contains(FolderPart(key).value_or("")) ? FileError::AccessDenied
                                                                   : FileError::None;
}

FileError MemoryFileSystem::OpenFound(std::string_view path, OpenedFile& opened) {
    const auto key = Key(path);
    const auto found = files_.find(key);
    if (found == files_.end()) {
        return NoFileReason(key);
    }
    if (held_.contains(key)) {
        return FileError::InUse;
    }
    if (unreadable_.contains(key)) {
        return FileError::AccessDenied;
    }
    opened.handle = std::make_unique<Handle>(*this, found->second, path, false);
    return FileError::None;
}

FileError MemoryFileSystem::CreateOrEmpty(std::string_view path, OpenedFile& opened) {
    if (const auto error = MayOverwrite(path); error != FileError::None) {
        return error;
    }
    Put(path, "");
    opened.handle = std::make_unique<Handle>(*this, files_.at(Key(path)), path, true);
    return FileError::None;
}

FileError MemoryFileSystem::CreateForOwner(std::string_view path, OpenedFile& opened) {
    if (files_.contains(Key(path))) {
        return FileError::Exists;
    }
    const auto error = CreateOrEmpty(path, opened);
    SetPermissions(path, kPrivatePermissions);
    return error;
}

FileError MemoryFileSystem::MakeFolder(const std::string& key) {
    if (IsFolder(key)) {
        return FileError::None;
    }
    if (files_.contains(key)) {
        return FileError::Exists;
    }
    const auto above = FolderPart(key);
    auto error = above ? MakeFolder(*above) : FileError::NotFound;
    if (error == FileError::None) {
        error = EntryLock(key);
    }
    if (error == FileError::None) {
        folders_[key] = kPrivateFolderPermissions;
    }
    return error;
}

FileError MemoryFileSystem::MakeFolderForUser(std::string_view path) {
    const auto key = Key(path);
    const bool isPath = !key.empty() && path.find('\0') == std::string_view::npos;
    const auto error = isPath ? MakeFolder(key) : FileError::NotFound;
    if (error == FileError::None) {
        folders_[key] = kPrivateFolderPermissions;
    }
    return error;
}

FileError MemoryFileSystem::DeleteFound(const std::string& key) {
    if (!files_.contains(key)) {
        return NoFileReason(key);
    }
    const auto lock = EntryLock(key);
    if (lock == FileError::None) {
        files_.erase(key);
    }
    return lock;
}

FileError MemoryFileSystem::RenameFound(const std::string& from, std::string_view toPath) {
    const auto to = Key(toPath);
    if (!files_.contains(from)) {
        return NoFileReason(from);
    }
    if (files_.contains(to) || IsFolder(to)) {
        return IsFolder(to) ? FileError::IsFolder : FileError::Exists;
    }
    if (const auto folder = FolderPart(to); !folder || !IsFolder(*folder)) {
        return FileError::NotFound;
    }
    for (const auto& end : {from, to}) {
        if (const auto lock = EntryLock(end); lock != FileError::None) {
            return lock;
        }
    }
    auto entry = files_.extract(from);
    entry.key() = to;
    entry.mapped()->name = NamePart(Normalised(toPath));
    files_.insert(std::move(entry));
    return FileError::None;
}

FileError MemoryFileSystem::CopyPermissionsFound(const std::string& from, const std::string& to) {
    for (const auto& path : {from, to}) {
        if (!files_.contains(path)) {
            return NoFileReason(path);
        }
    }
    files_.at(to)->permissions = files_.at(from)->permissions;
    return FileError::None;
}

FileError MemoryFileSystem::WriteWhatFits(File& file, std::size_t position, std::string_view text) const {
    const auto overwritten = file.bytes.size() - std::min(position, file.bytes.size());
    const auto fits =
        text.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(text.size(), overwritten + Room())));
    file.bytes.replace(std::min(position, file.bytes.size()), fits.size(), fits);
    return fits.size() == text.size() ? FileError::None : FileError::DiskFull;
}

std::uint64_t MemoryFileSystem::Room() const {
    if (!capacity_) {
        return std::numeric_limits<std::uint64_t>::max() / 2;
    }
    std::uint64_t used = 0;
    for (const auto& [path, file] : files_) {
        used += file->bytes.size();
    }
    return *capacity_ - std::min(used, *capacity_);
}

} // namespace zy
