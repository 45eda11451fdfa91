// Where journals lie on Linux, who gets at them, and what becomes of them when processes end.

#include "platform/posix/PosixJournals.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "OtherProcess.h"
#include "platform/JournalFile.h"
#include "support/AnotherDisk.h"
#include "support/ChildProcess.h"
#include "support/EnvironmentVariable.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

/// What stands in for the system's own locks and syncs in between.
struct SystemCalls {
    /// Called once, before a lock is asked for, which fails by an error number that is not 0.
    std::function<int()> beforeNextLock;
    /// Whether each file that was synced was a folder.
    std::vector<bool> synced;
};

SystemCalls& Calls() {
    static SystemCalls calls;
    return calls;
}

bool IsFolder(int file) {
    struct stat status {};
    return ::fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace
} // namespace zy::test

// In place of the system's own, so that another session can come in between.
extern "C" int flock(int file, int operation) noexcept {
    if (const auto before = std::exchange(zy::test::Calls().beforeNextLock, nullptr)) {
        errno = before();
        if (errno != 0) {
            return -1;
        }
    }
    return static_cast<int>(::syscall(SYS_flock, file, operation));
}

// In place of the system's own, which let nobody look at what they did.
extern "C" int fsync(int file) {
    zy::test::Calls().synced.push_back(zy::test::IsFolder(file));
    return static_cast<int>(::syscall(SYS_fsync, file));
}
extern "C" int fdatasync(int file) {
    zy::test::Calls().synced.push_back(zy::test::IsFolder(file));
    return static_cast<int>(::syscall(SYS_fdatasync, file));
}

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::SizeIs;
using namespace std::string_literals;

constexpr auto kName = "units-20261122T140759000042Z-4711.journal";
constexpr auto kLaterName = "units-20261122T140759000043Z-4711.journal";

class PosixJournalsTest : public ::testing::Test {
  protected:
    PosixJournalsTest() { Calls() = {}; }
    ~PosixJournalsTest() override { Calls() = {}; }

    std::string Folder() const { return disk.Path("state/zysetup"); }
    std::vector<std::string> Names() const { return disk.Names("state/zysetup"); }
    void Put(const std::string& name, std::string_view bytes) {
        disk.AddFolder("state/zysetup");
        disk.Put("state/zysetup/" + name, bytes);
    }

    std::unique_ptr<Journal> Create(Secrecy secrecy = Secrecy::None) {
        auto created = journals.Create("units", secrecy);
        EXPECT_EQ(created.error, FileError::None);
        return std::move(created.journal);
    }
    std::vector<std::unique_ptr<Journal>> Orphans(Secrecy secrecy = Secrecy::None) {
        return journals.Orphans("units", secrecy);
    }
    std::vector<std::string> BytesOfOrphans() {
        std::vector<std::string> bytes;
        for (const auto& orphan : Orphans()) {
            bytes.push_back(orphan->Read());
        }
        return bytes;
    }

    static unsigned Mode(const std::string& path) {
        struct stat status {};
        return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0U;
    }

    TemporaryFolder disk;
    TemporaryFolder memory{kAnotherDisk};
    EnvironmentVariable state{"XDG_STATE_HOME", disk.Path("state")};
    EnvironmentVariable runtime{"XDG_RUNTIME_DIR", memory.Path().string()};
    PosixJournals journals;
};

// Where they lie

TEST_F(PosixJournalsTest, LiesInTheUsersFolderForTheStateOfPrograms) {
    const auto journal = Create();
    ASSERT_THAT(Names(), SizeIs(1));
    EXPECT_THAT(Names().front(),
                MatchesRegex("units-[0-9]{8}T[0-9]{12}Z-" + std::to_string(::getpid()) + "\\.journal"));
    EXPECT_TRUE(fs::is_empty(memory.Path()));
}

TEST_F(PosixJournalsTest, LiesInMemoryAloneWhenItHoldsPasswords) {
    EXPECT_EQ(Create(Secrecy::Passwords)->Append("secret"), FileError::None);
    EXPECT_TRUE(fs::is_empty(disk.Path()));
    ASSERT_THAT(memory.Names("zysetup"), SizeIs(1));
    EXPECT_EQ(memory.Get("zysetup/" + memory.Names("zysetup").front()), "secret");
    EXPECT_THAT(Orphans(), IsEmpty());
    EXPECT_THAT(Orphans(Secrecy::Passwords), SizeIs(1));
}

TEST_F(PosixJournalsTest, IsNotMadeForPasswordsWhereNothingKeepsThemFromTheDisk) {
    fs::permissions(memory.Path(), fs::perms{0750});
    const auto created = journals.Create("units", Secrecy::Passwords);
    EXPECT_EQ(created.error, FileError::NotFound);
    EXPECT_FALSE(created.journal);
    EXPECT_THAT(Orphans(Secrecy::Passwords), IsEmpty());
    EXPECT_TRUE(fs::is_empty(disk.Path()));
    EXPECT_TRUE(fs::is_empty(memory.Path()));
}

TEST_F(PosixJournalsTest, SaysThatAFileStandsInTheWayOfItsFolder) {
    disk.Put("state", "a file where the folder should be");
    EXPECT_EQ(journals.Create("units", Secrecy::None).error, FileError::Exists);
    EXPECT_THAT(Orphans(), IsEmpty());
}

TEST_F(PosixJournalsTest, SaysWhyItsFolderCannotBeMade) {
    fs::permissions(disk.Path(), fs::perms{0555});
    const OrdinaryUser user(disk.Path());
    EXPECT_EQ(journals.Create("units", Secrecy::None).error, FileError::AccessDenied);
}

TEST_F(PosixJournalsTest, MakesNoFolderBeforeThereIsSomethingToNote) {
    EXPECT_THAT(Orphans(), IsEmpty());
    EXPECT_TRUE(fs::is_empty(disk.Path()));
}

// Who gets at them

TEST_F(PosixJournalsTest, IsForTheUserAlone) {
    const auto journal = Create();
    EXPECT_EQ(Mode(Folder()), 0700U);
    EXPECT_EQ(Mode(Folder() + '/' + Names().front()), 0600U);
}

TEST_F(PosixJournalsTest, LeavesAFolderOfTheUsersToNobodyElse) {
    disk.AddFolder("state/zysetup");
    for (const unsigned mode : {0755U, 0770U, 0710U, 0500U}) {
        fs::permissions(Folder(), fs::perms{mode});
        Create()->Remove();
        EXPECT_EQ(Mode(Folder()), 0700U) << std::oct << mode;
        fs::permissions(Folder(), fs::perms{mode});
        EXPECT_THAT(Orphans(), IsEmpty());
        EXPECT_EQ(Mode(Folder()), 0700U) << std::oct << mode;
    }
}

TEST_F(PosixJournalsTest, LeavesAFileInPlaceOfTheFolderAsItIs) {
    disk.AddFolder("state");
    disk.Put("state/zysetup", "another program's");
    fs::permissions(Folder(), fs::perms{0644});
    EXPECT_EQ(journals.Create("units", Secrecy::None).error, FileError::Exists);
    EXPECT_THAT(Orphans(), IsEmpty());
    EXPECT_EQ(Mode(Folder()), 0644U);
}

TEST_F(PosixJournalsTest, RefusesAFolderThatBelongsToSomebodyElse) {
    Put(kName, "planted");
    if (::chown(Folder().c_str(), ::geteuid() + 1, ::getegid()) != 0) {
        GTEST_SKIP() << "The user of this test may not give a folder away.";
    }
    EXPECT_EQ(journals.Create("units", Secrecy::None).error, FileError::AccessDenied);
    EXPECT_THAT(Orphans(), IsEmpty());
}

TEST_F(PosixJournalsTest, RefusesALinkInPlaceOfTheFolder) {
    disk.AddFolder("state");
    disk.AddFolder("elsewhere");
    disk.Put("elsewhere/"s + kName, "planted");
    fs::create_directory_symlink(disk.Path("elsewhere"), Folder());
    EXPECT_EQ(journals.Create("units", Secrecy::None).error, FileError::AccessDenied);
    EXPECT_THAT(Orphans(), IsEmpty());
    EXPECT_THAT(disk.Names("elsewhere"), ElementsAre(kName));
}

TEST_F(PosixJournalsTest, LeavesOutAFileThatBelongsToSomebodyElse) {
    Put(kName, "planted");
    if (::chown((Folder() + '/' + kName).c_str(), ::geteuid() + 1, ::getegid()) != 0) {
        GTEST_SKIP() << "The user of this test may not give a file away.";
    }
    EXPECT_THAT(Orphans(), IsEmpty());
}

TEST_F(PosixJournalsTest, LeavesOutWhatIsNoFileOfItsOwnName) {
    disk.AddFolder("state/zysetup/"s + kName);
    disk.Put("target", "another program's");
    fs::create_symlink(disk.Path("target"), Folder() + '/' + kLaterName);
    ASSERT_EQ(::mkfifo((Folder() + "/units-20261122T140759000044Z-1.journal").c_str(), 0600), 0);
    for (const char* name : {"units.journal", "units-20261122T140759000042Z-4711.journal~", "notes.txt"}) {
        Put(name, "another program's");
    }
    EXPECT_THAT(Orphans(), IsEmpty());
}

TEST_F(PosixJournalsTest, RemovesNothingButItself) {
    disk.AddFolder("state/zysetup/"s + kName);
    disk.Put("target", "another program's");
    fs::create_symlink(disk.Path("target"), Folder() + '/' + kLaterName);
    Put("notes.txt", "another program's");
    Create();
    for (const auto& orphan : Orphans()) {
        EXPECT_EQ(orphan->Remove(), FileError::None);
    }
    EXPECT_THAT(Names(), ElementsAre("notes.txt", kLaterName)); // a link to a file counts as one
    EXPECT_TRUE(fs::is_directory(Folder() + '/' + kName));
    EXPECT_EQ(disk.Get("target"), "another program's");
}

// Several processes

/// Makes a journal, tells so, and holds it until it is killed.
void HoldOne(const OtherProcess::Tell& tell) {
    const auto created = PosixJournals().Create("units", Secrecy::None);
    tell(created.journal && created.journal->Append("held") == FileError::None ? "held" : "failed");
    OtherProcess::StayAlive();
}

TEST_F(PosixJournalsTest, LeavesOutWhatAnotherProcessHoldsUntilThatIsKilled) {
    OtherProcess other(HoldOne);
    ASSERT_EQ(other.Answer(), "held");
    EXPECT_THAT(Orphans(), IsEmpty());
    other.Kill();
    EXPECT_THAT(BytesOfOrphans(), ElementsAre("held"));
}

TEST_F(PosixJournalsTest, KeepsAnotherProcessFromWhatIsHeldHere) {
    const auto held = Create();
    OtherProcess other([](const OtherProcess::Tell& tell) {
        tell(std::to_string(PosixJournals().Orphans("units", Secrecy::None).size()));
    });
    EXPECT_EQ(other.Answer(), "0");
}

TEST_F(PosixJournalsTest, StaysWithTheProcessThatHoldsItNotWithProgramsThatItStarts) {
    auto journal = Create();
    ChildProcess started({"sh", "-c", "echo started; exec sleep 60"});
    ASSERT_EQ(started.Output().Next(), "started");
    journal.reset();
    EXPECT_THAT(Orphans(), SizeIs(1));
}

/// Notes one number a piece, and tells each as soon as it is noted.
void NoteNumbers(const OtherProcess::Tell& tell) {
    const auto journal = PosixJournals().Create("units", Secrecy::None).journal;
    for (int number = 0; journal->Append(std::to_string(number) + '\n') == FileError::None; ++number) {
        tell(std::to_string(number));
    }
}

TEST_F(PosixJournalsTest, LosesNothingThatWasNotedWhenTheProcessIsKilled) {
    OtherProcess other(NoteNumbers);
    for (int number = 0; number < 1000; ++number) {
        ASSERT_EQ(other.Answer(), std::to_string(number));
    }
    other.Kill();
    std::string noted;
    int count = 1000;
    for (auto answer = other.Answer(); answer == std::to_string(count); answer = other.Answer()) {
        ++count;
    }
    for (int number = 0; number < count; ++number) {
        noted += std::to_string(number) + '\n';
    }
    ASSERT_THAT(Orphans(), SizeIs(1));
    EXPECT_EQ(BytesOfOrphans().front().substr(0, noted.size()), noted);
}

TEST_F(PosixJournalsTest, DoesNotTakeWhatAnotherSessionRemovesBeforeItIsHeld) {
    Put(kName, "discarded");
    Calls().beforeNextLock = [this] {
        fs::remove(Folder() + '/' + kName);
        return 0;
    };
    EXPECT_THAT(Orphans(), IsEmpty());
}

TEST_F(PosixJournalsTest, DoesNotTakeTheNewFileOfANameForTheOneThatIsHeld) {
    Put(kName, "discarded");
    Calls().beforeNextLock = [this] {
        fs::remove(Folder() + '/' + kName);
        Put(kName, "new");
        return 0;
    };
    EXPECT_THAT(Orphans(), IsEmpty());
}

TEST_F(PosixJournalsTest, MakesAnotherWhenASessionTakesTheNewOneForAnOrphan) {
    std::vector<std::unique_ptr<Journal>> taken;
    Calls().beforeNextLock = [&] {
        taken = Orphans();
        return 0;
    };
    const auto journal = Create();
    ASSERT_TRUE(journal);
    EXPECT_THAT(taken, SizeIs(1));
    EXPECT_EQ(journal->Append("own"), FileError::None);
    EXPECT_EQ(taken.front()->Read(), "");
    taken.clear();
    EXPECT_THAT(Orphans(), SizeIs(1));
}

TEST_F(PosixJournalsTest, MakesAnotherWhenASessionRemovesTheNewOneForAnOrphan) {
    Calls().beforeNextLock = [&] {
        EXPECT_EQ(Orphans().at(0)->Remove(), FileError::None);
        return 0;
    };
    EXPECT_EQ(Create()->Append("own"), FileError::None);
    EXPECT_THAT(BytesOfOrphans(), ElementsAre("own"));
}

TEST_F(PosixJournalsTest, LeavesNothingWhereTheDiskKnowsNoLocks) {
    Calls().beforeNextLock = [] { return ENOLCK; };
    const auto created = journals.Create("units", Secrecy::None);
    EXPECT_FALSE(created.journal);
    EXPECT_EQ(created.error, FileError::Other);
    EXPECT_THAT(Names(), IsEmpty());
}

// What is noted

TEST_F(PosixJournalsTest, KeepsWhatThereWasRoomForWhenTheDiskIsFull) {
    const auto journal = Create();
    EXPECT_EQ(journal->Append("1234"), FileError::None);
    {
        const FileSizeLimit limit(6);
        EXPECT_EQ(journal->Append("5678"), FileError::DiskFull);
        EXPECT_EQ(journal->Append("9"), FileError::DiskFull);
        EXPECT_EQ(journal->Read(), "123456");
        EXPECT_EQ(journal->Sync(), FileError::None);
    }
    EXPECT_EQ(journal->Remove(), FileError::None);
}

TEST_F(PosixJournalsTest, SyncsTheNameOfANewFileOnce) {
    const auto journal = Create();
    Calls().synced.clear();
    journal->Sync();
    EXPECT_THAT(Calls().synced, ElementsAre(false, true));
    journal->Sync();
    EXPECT_THAT(Calls().synced, ElementsAre(false, true, false));
}

TEST_F(PosixJournalsTest, ReadsNoMoreThanTheLargestJournalHas) {
    Put(kName, "");
    fs::resize_file(Folder() + '/' + kName, kLargestJournal + 1);
    EXPECT_EQ(Orphans().at(0)->Read().size(), kLargestJournal);
}

TEST_F(PosixJournalsTest, CountsARemovedFileAsRemoved) {
    const auto journal = Create();
    fs::remove_all(Folder());
    EXPECT_EQ(journal->Remove(), FileError::None);
}

TEST_F(PosixJournalsTest, TellsInTheUsersTimeWhenItWasChanged) {
    const EnvironmentVariable zone("TZ", "XST-2:30");
    ::tzset();
    Put(kName, "");
    const timespec times[] = {{.tv_sec = 0, .tv_nsec = 0}, {.tv_sec = 86400 + 3600, .tv_nsec = 999999999}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (Folder() + '/' + kName).c_str(), times, 0), 0);
    using namespace std::chrono_literals;
    EXPECT_EQ(Orphans().at(0)->LastChange(), std::chrono::local_days(1970y / 1 / 2) + 3h + 30min);
}

TEST_F(PosixJournalsTest, FingerprintsBySha256) {
    EXPECT_EQ(journals.Fingerprint(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(journals.Fingerprint("abc"),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

} // namespace
} // namespace zy::test
