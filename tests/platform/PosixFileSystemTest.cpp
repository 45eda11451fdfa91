// What the file system promises on the real disk, beyond what every file system does.

#include "platform/posix/PosixFileSystem.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/posix/PosixFile.h"
#include "support/AnotherDisk.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::Optional;
using namespace std::string_literals;

/// What the system was told of how a part of a file will be used.
struct Advice {
    off_t from;
    off_t length; ///< 0: to the end
    int kind;

    bool operator==(const Advice&) const = default;
};

std::vector<Advice>& AdviceGiven() {
    static std::vector<Advice> given;
    return given;
}

} // namespace
} // namespace zy::test

/// In place of the system's own, which lets nobody look at what it was told.
extern "C" int posix_fadvise(int /*file*/, off_t from, off_t length, int kind) noexcept {
    zy::test::AdviceGiven().push_back({from, length, kind});
    return 0;
}

namespace zy::test {
namespace {

/// Sets the file creation mask for as long as it lives.
class CreationMask {
  public:
    explicit CreationMask(mode_t mask) : before_(::umask(mask)) {}
    CreationMask(const CreationMask&) = delete;
    CreationMask& operator=(const CreationMask&) = delete;
    ~CreationMask() { ::umask(before_); }

  private:
    mode_t before_;
};

class PosixFileSystemTest : public ::testing::Test {
  protected:
    std::string Path(std::string_view name) { return folder.InsidePath(name); }

    mode_t Mode(std::string_view name) {
        struct stat status {};
        EXPECT_EQ(::stat(folder.Path(name).c_str(), &status), 0);
        return status.st_mode & 07777U;
    }

    static uid_t OwnerOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(::stat(path.c_str(), &status), 0);
        return status.st_uid;
    }

    std::vector<std::string> NamesIn(const std::string& path) {
        std::vector<std::string> names;
        for (const auto& file : files.FilesIn(path)) {
            names.push_back(file.name);
        }
        return names;
    }

    /// The numbers of the descriptors of this process that are open on a file.
    std::vector<int> DescriptorsOf(std::string_view name) {
        std::vector<int> numbers;
        for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
            std::error_code gone;
            if (fs::read_symlink(entry.path(), gone) == folder.Path(name)) {
                numbers.push_back(std::stoi(entry.path().filename().string()));
            }
        }
        return numbers;
    }

    void AddPipe(std::string_view name) { ASSERT_EQ(::mkfifo(folder.Path(name).c_str(), 0600), 0); }

    TemporaryFolder folder;
    PosixFileSystem files{Windows1252()};
};

TEST_F(PosixFileSystemTest, GivesANewFileWhatTheCreationMaskLeaves) {
    {
        const CreationMask mask(0027);
        files.Create(Path("a.sys"));
    }
    {
        const CreationMask mask(0000);
        files.Create(Path("b.sys"));
    }
    EXPECT_EQ(Mode("a.sys"), 0640U);
    EXPECT_EQ(Mode("b.sys"), 0666U);
}

TEST_F(PosixFileSystemTest, GivesAFileForItsOwnerNothingToOthersWhateverTheCreationMask) {
    const CreationMask mask(0000);
    files.CreatePrivate(Path("a.sys"));
    EXPECT_EQ(Mode("a.sys"), 0600U);
}

TEST_F(PosixFileSystemTest, KeepsItsFilesFromProgramsThatItStarts) {
    folder.Put("read.sys", "");
    const auto read = files.OpenForReading(Path("read.sys"));
    const auto written = files.Create(Path("written.sys"));
    for (const char* name : {"read.sys", "written.sys"}) {
        const auto numbers = DescriptorsOf(name);
        ASSERT_EQ(numbers.size(), 1U) << name;
        EXPECT_NE(::fcntl(numbers.front(), F_GETFD) & FD_CLOEXEC, 0) << name;
    }
}

TEST_F(PosixFileSystemTest, TellsTheSystemThatItGoesThroughEveryFileFromItsBeginningToItsEnd) {
    AdviceGiven().clear();
    folder.Put("a.sys", "");
    for (const auto opened :
         {files.OpenForReading(Path("a.sys")).error, files.OpenAlwaysForReading(Path("a.sys")).error,
          files.Create(Path("a.sys")).error, files.CreatePrivate(Path("b.sys")).error}) {
        EXPECT_EQ(opened, FileError::None);
    }
    EXPECT_THAT(
        AdviceGiven(),
        ::testing::AllOf(::testing::SizeIs(4),
                         ::testing::Each(Advice{.from = 0, .length = 0, .kind = POSIX_FADV_SEQUENTIAL})));
}

TEST_F(PosixFileSystemTest, ShowsAPathAsTheSystemHasIt) {
    folder.AddFolder("Settings");
    folder.Put("Settings/ZYUnits.sys", "");
    EXPECT_EQ(files.DisplayPath(Path(R"(SETTINGS\ZYUNITS.SYS)")), folder.Path("Settings/ZYUnits.sys"));
    EXPECT_EQ(files.DisplayPath(Path(R"(SETTINGS\NEW.SYS)")), folder.Path("Settings/NEW.SYS"));
}

TEST_F(PosixFileSystemTest, KnowsTheSizeOfAnOpenedFileThatCanNoLongerBeLookedAt) {
    folder.Put("a", "four");
    const auto opened = OpenPosixFileForReading(folder.Path("a"));
    ASSERT_NE(opened.handle, nullptr);
    const int number = dynamic_cast<const PosixFile&>(*opened.handle).Descriptor().Number();
    const FileDescriptor kept(::dup(number));
    ::close(number);
    EXPECT_EQ(opened.handle->Size(), 4U);
    ::dup2(kept.Number(), number); // for the handle to close
}

TEST_F(PosixFileSystemTest, ClosesTheFileOfAHandleThatGoes) {
    files.Create(Path("a.sys"));
    EXPECT_THAT(DescriptorsOf("a.sys"), ::testing::IsEmpty());
}

TEST_F(PosixFileSystemTest, RefusesAPipeAtOnce) {
    AddPipe("pipe");
    EXPECT_FALSE(files.Exists(Path("pipe")));
    EXPECT_EQ(files.OpenForReading(Path("pipe")).error, FileError::Other);
    EXPECT_EQ(files.Create(Path("pipe")).error, FileError::Other);
}

TEST_F(PosixFileSystemTest, RefusesAPipeThatAnotherProgramReads) {
    AddPipe("pipe");
    const int reader = ::open(folder.Path("pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    EXPECT_EQ(files.Create(Path("pipe")).error, FileError::Other);
    ::close(reader);
}

TEST_F(PosixFileSystemTest, RefusesADevice) {
    EXPECT_FALSE(files.Exists(R"(\dev\zero)"));
    EXPECT_EQ(files.OpenForReading(R"(\dev\zero)").error, FileError::Other);
    EXPECT_EQ(files.Create(R"(\dev\full)").error, FileError::Other);
}

TEST_F(PosixFileSystemTest, FollowsALinkToAFile) {
    folder.Put("target.sys", "old");
    fs::create_symlink("target.sys", folder.Path("link.sys"));
    EXPECT_TRUE(files.Exists(Path("LINK.SYS")));
    EXPECT_EQ(files.Create(Path("link.sys")).handle->Write("new"), FileError::None);
    EXPECT_THAT(folder.Get("target.sys"), Optional("new"s));
}

TEST_F(PosixFileSystemTest, DoesNotFindALinkThatLeadsNowhere) {
    fs::create_symlink("nowhere", folder.Path("link.sys"));
    EXPECT_FALSE(files.Exists(Path("link.sys")));
    EXPECT_EQ(files.OpenForReading(Path("link.sys")).error, FileError::NotFound);
}

TEST_F(PosixFileSystemTest, DeletesTheFileThatALinkLeadsToAndLeavesTheLink) {
    folder.Put("target.sys", "");
    fs::create_symlink("target.sys", folder.Path("link.sys"));
    EXPECT_EQ(files.Delete(Path("LINK.SYS")), FileError::None);
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.sys")));
    EXPECT_FALSE(fs::exists(folder.Path("target.sys")));
    EXPECT_EQ(files.Delete(Path("link.sys")), FileError::NotFound);
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.sys")));
}

TEST_F(PosixFileSystemTest, PutsARenamedFileWhereALinkLeads) {
    folder.Put("a.sys", "new");
    folder.AddFolder("shared");
    fs::create_symlink("shared/target.sys", folder.Path("link.sys"));
    EXPECT_EQ(files.Rename(Path("a.sys"), Path("LINK.sys")), FileError::None);
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.sys")));
    EXPECT_THAT(folder.Get("shared/target.sys"), Optional("new"s));
    EXPECT_FALSE(fs::exists(folder.Path("a.sys")));
}

TEST_F(PosixFileSystemTest, NeverReplacesTheFileThatALinkLeadsToByRenaming) {
    folder.Put("a.sys", "new");
    folder.Put("target.sys", "old");
    fs::create_symlink("target.sys", folder.Path("link.sys"));
    EXPECT_EQ(files.Rename(Path("a.sys"), Path("link.sys")), FileError::Exists);
    EXPECT_THAT(folder.Get("a.sys"), Optional("new"s));
    EXPECT_THAT(folder.Get("target.sys"), Optional("old"s));
}

TEST_F(PosixFileSystemTest, LetsTheFolderThatALinkLeadsIntoDecideOnReplacing) {
    folder.AddFolder("shared");
    fs::create_symlink("shared/target.sys", folder.Path("link.sys"));
    const OrdinaryUser user(folder.Path());
    fs::permissions(folder.Path("shared"), fs::perms(0500));
    EXPECT_EQ(files.MayReplace(Path("link.sys")), FileError::AccessDenied);
    fs::permissions(folder.Path("shared"), fs::perms(0700));
    EXPECT_EQ(files.MayReplace(Path("link.sys")), FileError::None);
}

TEST_F(PosixFileSystemTest, SaysThatAFileMayNotBeWrittenThatMayBeReplaced) {
    folder.Put("a.sys", "old");
    const OrdinaryUser user(folder.Path());
    fs::permissions(folder.Path("a.sys"), fs::perms(0400));
    EXPECT_EQ(files.MayOverwrite(Path("a.sys")), FileError::AccessDenied);
    EXPECT_EQ(files.MayReplace(Path("a.sys")), FileError::None);
}

TEST_F(PosixFileSystemTest, SaysThatSomebodyElsesFileMayNotBeReplacedInAFolderForEverybodysFiles) {
    const TemporaryFolder everybodys;
    everybodys.Put("a.sys", "somebody else's");
    fs::permissions(everybodys.Path(), fs::perms(01777));
    const OrdinaryUser user(folder.Path());
    if (OwnerOf(everybodys.Path("a.sys")) == ::geteuid()) {
        GTEST_SKIP() << "The user of this test cannot make somebody else's file.";
    }
    EXPECT_EQ(files.MayReplace(everybodys.InsidePath("a.sys")), FileError::AccessDenied);
    EXPECT_EQ(files.MayReplace(everybodys.InsidePath("new.sys")), FileError::None);
}

TEST_F(PosixFileSystemTest, RenamesTheFileThatALinkLeadsTo) {
    folder.Put("target.sys", "bytes");
    fs::create_symlink("target.sys", folder.Path("link.sys"));
    EXPECT_EQ(files.Rename(Path("link.sys"), Path("b.sys")), FileError::None);
    EXPECT_THAT(folder.Names(), ElementsAre("b.sys"));
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.sys")));
}

TEST_F(PosixFileSystemTest, CreatesAFileForItsOwnerWhereALinkLeadsUnlessOneIsThere) {
    fs::create_symlink("target.sys", folder.Path("link.sys"));
    EXPECT_EQ(files.CreatePrivate(Path("link.sys")).error, FileError::None);
    EXPECT_THAT(folder.Names(), ElementsAre("link.sys", "target.sys"));
    EXPECT_EQ(Mode("target.sys"), 0600U);
    EXPECT_EQ(files.CreatePrivate(Path("link.sys")).error, FileError::Exists);
}

TEST_F(PosixFileSystemTest, SaysThatLinksLeadInACircle) {
    folder.Put("a.sys", "");
    fs::create_symlink("link.sys", folder.Path("link.sys"));
    EXPECT_FALSE(files.Exists(Path("link.sys")));
    EXPECT_EQ(files.OpenForReading(Path("link.sys")).error, FileError::LinkLoop);
    EXPECT_EQ(files.Create(Path("link.sys")).error, FileError::LinkLoop);
    EXPECT_EQ(files.CreatePrivate(Path("link.sys")).error, FileError::LinkLoop);
    EXPECT_EQ(files.Delete(Path("link.sys")), FileError::LinkLoop);
    EXPECT_EQ(files.Rename(Path("link.sys"), Path("b.sys")), FileError::LinkLoop);
    EXPECT_EQ(files.Rename(Path("a.sys"), Path("link.sys")), FileError::LinkLoop);
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.sys")));
}

/// Replaces a file through a temporary one beside it, in the steps of a save. Returns the last step's error.
FileError ReplaceBySteps(FileSystem& files, const std::string& path, const std::string& temporary) {
    EXPECT_EQ(WriteAndClose(*files.Create(temporary).handle, "new"), FileError::None);
    EXPECT_EQ(files.CopyPermissions(path, temporary), FileError::None);
    EXPECT_EQ(files.Delete(path), FileError::None);
    return files.Rename(temporary, path);
}

TEST_F(PosixFileSystemTest, ReplacesTheFileThatALinkLeadsToInTheStepsOfASave) {
    for (const char* disk : {"/tmp", kAnotherDisk}) {
        const TemporaryFolder shared(disk);
        shared.Put("shared.sys", "old");
        ::chmod(shared.Path("shared.sys").c_str(), 0664);
        fs::create_symlink(shared.Path("shared.sys"), folder.Path("ZYRules.sys"));
        EXPECT_EQ(ReplaceBySteps(files, Path("ZYRules.sys"), Path("Rules.tmp")), FileError::None) << disk;
        EXPECT_EQ(fs::read_symlink(folder.Path("ZYRules.sys")), shared.Path("shared.sys"));
        EXPECT_THAT(shared.Get("shared.sys"), Optional("new"s));
        EXPECT_THAT(shared.Names(), ElementsAre("shared.sys"));
        EXPECT_THAT(folder.Names(), ElementsAre("ZYRules.sys"));
        EXPECT_EQ(Mode("ZYRules.sys"), 0664U);
        fs::remove(folder.Path("ZYRules.sys"));
    }
}

TEST_F(PosixFileSystemTest, CreatesANameThatTheCodePageCannotExpress) {
    files.Create(Path("\x1A"
                      "CE\x1A"
                      "A9.sys"));
    EXPECT_THAT(folder.Names(), ElementsAre("Ω.sys"));
}

TEST_F(PosixFileSystemTest, WritesNamesInUtf8) {
    files.Create(Path("\x80\xE4.sys"));
    EXPECT_THAT(folder.Names(), ElementsAre("€ä.sys"));
}

TEST_F(PosixFileSystemTest, ListsRegularFilesWhoseNamesTheCodePageHasAndNothingElse) {
    for (const char* name : {"€ä.sys", "Ω.sys", "a\\b.sys", "\xFF.sys"}) {
        folder.Put(name, "");
    }
    folder.AddFolder("folder");
    AddPipe("pipe");
    fs::create_symlink("€ä.sys", folder.Path("link.sys"));
    fs::create_symlink("nowhere", folder.Path("nowhere.sys"));
    EXPECT_THAT(NamesIn(folder.InsidePath()), ElementsAre("\x80\xE4.sys"));
}

TEST_F(PosixFileSystemTest, MakesFoldersForTheUserAloneWhateverTheCreationMask) {
    const CreationMask mask(0000);
    EXPECT_EQ(files.MakePrivateFolder(Path(R"(new\deep)")), FileError::None);
    EXPECT_EQ(Mode("new"), 0700U);
    EXPECT_EQ(Mode("new/deep"), 0700U);
}

TEST_F(PosixFileSystemTest, TakesNoLinkForAFolderOfTheUsersOwn) {
    folder.AddFolder("target");
    folder.Put("target.sys", "");
    fs::permissions(folder.Path("target"), fs::perms{0755});
    for (const char* target : {"target", "target.sys", "nowhere"}) {
        fs::create_symlink(target, folder.Path("link"));
        EXPECT_EQ(files.MakePrivateFolder(Path("LINK")), FileError::AccessDenied) << target;
        fs::remove(folder.Path("link"));
    }
    EXPECT_EQ(Mode("target"), 0755U);
    EXPECT_FALSE(fs::exists(folder.Path("nowhere")));
}

TEST_F(PosixFileSystemTest, TakesNoFolderOfSomebodyElseForTheUsersOwn) {
    folder.AddFolder("theirs");
    fs::permissions(folder.Path("theirs"), fs::perms{0777});
    if (::chown(folder.Path("theirs").c_str(), ::geteuid() + 1, ::getegid()) != 0) {
        GTEST_SKIP() << "The user of this test may not give a folder away.";
    }
    EXPECT_EQ(files.MakePrivateFolder(Path("theirs")), FileError::AccessDenied);
    EXPECT_EQ(Mode("theirs"), 0777U);
}

TEST_F(PosixFileSystemTest, LetsTheFolderThatALinkLeadsIntoSayHowMuchCouldBeWritten) {
    folder.AddFolder("shared");
    fs::create_symlink("shared/target.sys", folder.Path("link.sys"));
    EXPECT_NE(files.FreeBytes(Path("link.sys")), std::nullopt);
    fs::remove(folder.Path("shared"));
    EXPECT_EQ(files.FreeBytes(Path("link.sys")), std::nullopt);
}

TEST_F(PosixFileSystemTest, ReportsANameThatIsTooLong) {
    const auto path = Path(std::string(300, 'a'));
    EXPECT_FALSE(files.Exists(path));
    EXPECT_EQ(files.OpenForReading(path).error, FileError::Other);
    EXPECT_EQ(files.Create(path).error, FileError::Other);
    EXPECT_EQ(files.Delete(path), FileError::Other);
}

TEST_F(PosixFileSystemTest, ReportsADiskWithoutRoomForTheFlush) {
    const auto opened = files.Create(Path("a.sys"));
    const auto numbers = DescriptorsOf("a.sys");
    ASSERT_EQ(numbers.size(), 1U);
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    ASSERT_GE(full, 0);
    ASSERT_GE(::dup3(full, numbers.front(), O_CLOEXEC), 0);
    ::close(full);
    EXPECT_EQ(opened.handle->Write("12345"), FileError::DiskFull);
    EXPECT_NE(opened.handle->Flush(), FileError::None);
    EXPECT_EQ(opened.handle->Size(), 0U);
}

TEST_F(PosixFileSystemTest, WritesAndReadsMoreThanOneCallTakes) {
    const std::string bytes(5000000, 'x');
    const auto written = files.Create(Path("a.sys")).handle;
    EXPECT_EQ(written->Write(bytes), FileError::None);
    EXPECT_EQ(written->Close(), FileError::None);
    std::string read(bytes.size() + 1, '\0');
    const auto count = files.OpenForReading(Path("a.sys")).handle->Read(read);
    EXPECT_EQ(count, bytes.size());
    EXPECT_EQ(read.substr(0, count), bytes);
}

TEST_F(PosixFileSystemTest, KeepsThePermissionsOfTheGroupInAFileThatItEmpties) {
    folder.Put("a.sys", "old");
    ::chmod(folder.Path("a.sys").c_str(), 0660);
    files.Create(Path("a.sys"));
    EXPECT_EQ(Mode("a.sys"), 0660U);
}

TEST_F(PosixFileSystemTest, CopiesThePermissionBitsAndNoOthers) {
    folder.Put("a.sys", "");
    folder.Put("b.sys", "");
    ::chmod(folder.Path("a.sys").c_str(), 04751);
    EXPECT_EQ(files.CopyPermissions(Path("a.sys"), Path("b.sys")), FileError::None);
    EXPECT_EQ(Mode("b.sys"), 0751U);
}

TEST_F(PosixFileSystemTest, CopiesTheOwnerAsFarAsTheUserMay) {
    folder.Put("a.sys", "");
    folder.Put("b.sys", "");
    const bool mayGive = ::chown(folder.Path("a.sys").c_str(), 65534, 65534) == 0;
    EXPECT_EQ(files.CopyPermissions(Path("a.sys"), Path("b.sys")), FileError::None);
    struct stat status {};
    ASSERT_EQ(::stat(folder.Path("b.sys").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, mayGive ? 65534U : ::geteuid());
}

} // namespace
} // namespace zy::test
