#include "platform/posix/PosixJournals.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>

#include "platform/JournalFile.h"
#include "platform/posix/ErrorNumber.h"
#include "platform/posix/FolderEntries.h"
#include "platform/posix/GlibPointer.h"
#include "platform/posix/LocalTime.h"
#include "platform/posix/PosixFile.h"
#include "platform/posix/PrivateFolder.h"
#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

/// A name in an open folder, which the journals of that folder share.
struct Entry {
    std::shared_ptr<const FileDescriptor> folder;
    std::string name;

    FileDescriptor Open(int flags) const {
        constexpr mode_t kReadWriteForOwner = 0600;
        // Pieces go to the end, wherever was read. What is no regular file must not keep the call waiting.
        const int always = O_RDWR | O_APPEND | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
        return FileDescriptor(Uninterrupted(
            [&] { return ::openat(folder->Number(), name.c_str(), flags | always, kReadWriteForOwner); }));
    }

    bool LeadsTo(const FileDescriptor& file) const {
        struct stat named {};
        struct stat opened {};
        return ::fstatat(folder->Number(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
               ::fstat(file.Number(), &opened) == 0 && named.st_dev == opened.st_dev &&
               named.st_ino == opened.st_ino;
    }

    /// Returns 0 or the error number.
    int Remove() const { return ::unlinkat(folder->Number(), name.c_str(), 0) == 0 ? 0 : errno; }
};

class PosixJournal final : public Journal {
  public:
    PosixJournal(Entry entry, FileDescriptor file) : entry_(std::move(entry)), file_(std::move(file)) {}

    std::string Read() override {
        ::lseek(file_.Descriptor().Number(), 0, SEEK_SET);
        std::string bytes(std::min(file_.Size(), kLargestJournal), '\0');
        bytes.resize(file_.Read(bytes));
        return bytes;
    }

    FileError Append(std::string_view piece) override { return file_.Write(piece); }

    FileError Sync() override {
        const auto error = file_.Flush();
        return error == FileError::None ? SyncName() : error;
    }

    FileError Remove() override {
        const int error = entry_.Remove();
        return error == ENOENT ? FileError::None : ToFileError(error);
    }

    std::chrono::local_seconds LastChange() override {
        struct stat status {};
        ::fstat(file_.Descriptor().Number(), &status);
        return ToSeconds(LocalTime(status.st_mtime));
    }

  private:
    /// After a power cut a new file would else be there under no name. Once is enough.
    FileError SyncName() {
        isNameSynced_ = isNameSynced_ || Uninterrupted([&] { return ::fsync(entry_.folder->Number()); }) == 0;
        return isNameSynced_ ? FileError::None : ToFileError(errno);
    }

    Entry entry_;
    PosixFile file_;
    bool isNameSynced_ = false;
};

bool IsOwnRegularFile(const FileDescriptor& file) {
    struct stat status {};
    return ::fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
}

/// Holds the file of a name. Returns 0 or the error number: EWOULDBLOCK when another session holds it, ENOENT
/// when one removed it before it was held here.
int Hold(const Entry& entry, const FileDescriptor& file) {
    const int error = TryLock(file);
    return error == 0 && !entry.LeadsTo(file) ? ENOENT : error;
}

std::unique_ptr<Journal> OpenOrphan(const Entry& entry) {
    auto file = entry.Open(0);
    const bool isHeld = file.IsOpen() && IsOwnRegularFile(file) && Hold(entry, file) == 0;
    return isHeld ? std::make_unique<PosixJournal>(entry, std::move(file)) : nullptr;
}

OpenedJournal CreateNew(const Entry& entry) {
    auto file = entry.Open(O_CREAT | O_EXCL);
    if (!file.IsOpen()) {
        return {.journal = nullptr, .error = ToFileError(errno)};
    }
    switch (const int error = Hold(entry, file)) {
    case 0:
        return {.journal = std::make_unique<PosixJournal>(entry, std::move(file)), .error = FileError::None};
    case EWOULDBLOCK:
    case ENOENT:
        // Another session took it for an orphan before it was held here.
        return {.journal = nullptr, .error = FileError::Exists};
    default:
        entry.Remove();
        return {.journal = nullptr, .error = ToFileError(error)};
    }
}

std::vector<std::string> NamesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : EntriesIn(folder)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

/// Empty where the system has none.
std::string FolderFor(Secrecy secrecy) {
    return OwnFolderIn(secrecy == Secrecy::Passwords ? UserRuntimeFolder() : UserStateFolder());
}

} // namespace

OpenedJournal PosixJournals::Create(std::string_view kind, Secrecy secrecy) {
    auto opened = MakePrivateFolder(FolderFor(secrecy));
    if (opened.error != FileError::None) {
        return {.journal = nullptr, .error = opened.error};
    }
    const auto folder = std::make_shared<const FileDescriptor>(std::move(opened.folder));
    return MakeJournal(kind, static_cast<unsigned long>(::getpid()), [&](const std::string& name) {
        return CreateNew({folder, name});
    });
}

std::vector<std::unique_ptr<Journal>> PosixJournals::Orphans(std::string_view kind, Secrecy secrecy) {
    const auto path = FolderFor(secrecy);
    auto opened = OpenPrivateFolder(path);
    if (opened.error != FileError::None) {
        return {};
    }
    const auto folder = std::make_shared<const FileDescriptor>(std::move(opened.folder));
    return OpenJournals(NamesIn(path), kind, [&](const std::string& name) {
        return OpenOrphan({folder, name});
    });
}

std::string PosixJournals::Fingerprint(std::string_view bytes) const {
    const GlibPointer<gchar> digits(g_compute_checksum_for_data(
        G_CHECKSUM_SHA256, reinterpret_cast<const guchar*>(bytes.data()), bytes.size()));
    return digits.get();
}

} // namespace zy
