// What every FileSystem promises, whatever it stands on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>

#include "Disk.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::Gt;
using ::testing::IsEmpty;
using ::testing::Optional;
using ::testing::Pair;
using namespace std::string_literals;

constexpr auto kBound = "Permissions do not bind the user of this test.";

class FileSystemContract : public ::testing::TestWithParam<DiskKind> {
  protected:
    FileSystem& Files() { return disk->Files(); }

    FileError OpenError(const std::string& path) {
        const auto opened = Files().OpenForReading(path);
        EXPECT_EQ(opened.handle != nullptr, opened.error == FileError::None);
        return opened.error;
    }

    FileError CreateError(const std::string& path) {
        const auto opened = Files().Create(path);
        EXPECT_EQ(opened.handle != nullptr, opened.error == FileError::None);
        return opened.error;
    }

    /// Everything that can be read of a file.
    std::string ReadAll(const std::string& name) {
        const auto opened = Files().OpenForReading(disk->Path(name));
        return opened.handle ? ReadUpTo(*opened.handle, 1000) : "<cannot be opened>";
    }

    static std::string ReadUpTo(FileHandle& file, std::size_t count) {
        std::string bytes(count, '\0');
        bytes.resize(file.Read(bytes));
        return bytes;
    }

    std::map<std::string, std::uint64_t> SizesIn(const std::string& folder) {
        std::map<std::string, std::uint64_t> sizes;
        for (const auto& file : Files().FilesIn(folder)) {
            sizes[file.name] = file.size;
        }
        return sizes;
    }

    /// What others than the user may do with a file or folder; nothing when there is none.
    std::optional<unsigned> LeftToOthers(const std::string& name) {
        const auto permissions = disk->Permissions(name);
        return permissions ? std::optional(*permissions & 0077U) : std::nullopt;
    }

    std::unique_ptr<FileHandle> Created(const std::string& name) {
        auto opened = Files().Create(disk->Path(name));
        EXPECT_EQ(opened.error, FileError::None);
        return std::move(opened.handle);
    }

    std::unique_ptr<FileHandle> Opened(const std::string& name) {
        auto opened = Files().OpenForReading(disk->Path(name));
        EXPECT_EQ(opened.error, FileError::None);
        return std::move(opened.handle);
    }

    std::unique_ptr<Disk> disk = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(Files, FileSystemContract, ::testing::ValuesIn(DiskKinds()),
                         [](const auto& test) { return test.param.name; });

// Finding

TEST_P(FileSystemContract, FindsAFileThatExists) {
    disk->Put("ZYRules.sys", "");
    EXPECT_TRUE(Files().Exists(disk->Path("ZYRules.sys")));
}

TEST_P(FileSystemContract, FindsAFileWithoutRegardToCase) {
    disk->Put("ZYRules.sys", "");
    EXPECT_TRUE(Files().Exists(disk->Path("zyRULES.SYS")));
}

TEST_P(FileSystemContract, FindsAFolderOnTheWayWithoutRegardToCase) {
    disk->AddFolder("Settings");
    const auto file = Files().Create(disk->Path(R"(SETTINGS\a.sys)"));
    ASSERT_TRUE(file.handle);
    EXPECT_TRUE(Files().Exists(disk->Path(R"(settings\A.SYS)")));
}

TEST_P(FileSystemContract, ComparesLettersBeyondAsciiWithoutRegardToCaseToo) {
    disk->Put("Gr\xF6\xDF\x65.sys", "x");
    EXPECT_EQ(ReadAll("GR\xD6\xDF\x45.SYS"), "x");
}

TEST_P(FileSystemContract, DoesNotTakeOneLetterForAnother) {
    disk->Put("\xF6.sys", "");
    EXPECT_FALSE(Files().Exists(disk->Path("o.sys")));
}

TEST_P(FileSystemContract, DoesNotFindAMissingFile) {
    EXPECT_FALSE(Files().Exists(disk->Path("missing.sys")));
}

TEST_P(FileSystemContract, DoesNotFindAnythingInAMissingFolder) {
    EXPECT_FALSE(Files().Exists(disk->Path(R"(missing\a.sys)")));
}

TEST_P(FileSystemContract, DoesNotTakeAFolderForAFile) {
    disk->AddFolder("folder");
    EXPECT_FALSE(Files().Exists(disk->Path("folder")));
    EXPECT_FALSE(Files().Exists(disk->Folder()));
}

TEST_P(FileSystemContract, DoesNotFindAnythingBelowAFile) {
    disk->Put("a.sys", "");
    EXPECT_FALSE(Files().Exists(disk->Path(R"(a.sys\b.sys)")));
}

TEST_P(FileSystemContract, FindsNothingByAPathThatIsNone) {
    disk->Put("a.sys", "");
    for (const auto& path : {""s, "a.sys"s, disk->Path("a.sys\0"s), disk->Path("\0"s)}) {
        EXPECT_FALSE(Files().Exists(path)) << path;
    }
}

TEST_P(FileSystemContract, FindsAnythingAtAPathByTheTestOfTheShell) {
    disk->AddFolder("folder");
    disk->Put("ZYRules.sys", "");
    for (const auto& path : {disk->Path("zyRULES.SYS"), disk->Path("FOLDER"), disk->Folder()}) {
        EXPECT_TRUE(Files().PathExists(path)) << path;
    }
}

TEST_P(FileSystemContract, FindsNothingByTheTestOfTheShellWhereNothingIs) {
    disk->Put("a.sys", "");
    for (const auto& path :
         {disk->Path("missing.sys"), disk->Path(R"(missing\a.sys)"), disk->Path(R"(a.sys\b.sys)"),
          disk->Path("*.sys"), ""s, "a.sys"s, disk->Path("a.sys\0"s), disk->Path("\0"s)}) {
        EXPECT_FALSE(Files().PathExists(path)) << path;
    }
}

TEST_P(FileSystemContract, FindsAHiddenFileByTheTestOfTheShellAlone) {
    disk->Put("a.sys", "12345");
    if (!disk->Hide("a.sys")) {
        GTEST_SKIP() << "This system hides files by their names alone.";
    }
    EXPECT_FALSE(Files().Exists(disk->Path("a.sys")));
    EXPECT_TRUE(Files().PathExists(disk->Path("a.sys")));
    EXPECT_EQ(ReadAll("a.sys"), "12345");
    EXPECT_EQ(Files().Delete(disk->Path("a.sys")), FileError::None);
    EXPECT_FALSE(Files().PathExists(disk->Path("a.sys")));
}

TEST_P(FileSystemContract, ShowsAPathByWhichTheFileIsFound) {
    disk->AddFolder("folder");
    disk->Put("a.sys", "");
    EXPECT_TRUE(Files().Exists(Files().DisplayPath(disk->Path("A.SYS"))));
    EXPECT_TRUE(Files().Create(Files().DisplayPath(disk->Path(R"(FOLDER\new.sys)"))).handle);
    EXPECT_TRUE(Files().Exists(disk->Path(R"(folder\new.sys)")));
    EXPECT_THAT(Files().DisplayPath(disk->Path("missing.sys")), EndsWith("missing.sys"));
    EXPECT_EQ(Files().DisplayPath("a.sys"), "a.sys");
}

TEST_P(FileSystemContract, ListsTheFilesOfAFolderWithTheirSizes) {
    disk->AddFolder("folder");
    Files().Create(disk->Path(R"(folder\deep.sys)"));
    disk->Put("a.sys", "12345");
    disk->Put("\xDC\x80.sys", "");
    EXPECT_THAT(SizesIn(disk->Folder()), ElementsAre(Pair("a.sys", 5U), Pair("\xDC\x80.sys", 0U)));
}

TEST_P(FileSystemContract, ListsAFolderWithoutRegardToCase) {
    disk->AddFolder("Folder");
    Files().Create(disk->Path(R"(Folder\A.sys)"));
    EXPECT_THAT(SizesIn(disk->Path("FOLDER")), ElementsAre(Pair("A.sys", 0U)));
}

TEST_P(FileSystemContract, ListsAHiddenFileToo) {
    disk->Put("a.sys", "12345");
    if (!disk->Hide("a.sys")) {
        GTEST_SKIP() << "This system hides files by their names alone.";
    }
    EXPECT_THAT(SizesIn(disk->Folder()), ElementsAre(Pair("a.sys", 5U)));
}

TEST_P(FileSystemContract, ListsNothingWhereThereIsNoFolder) {
    disk->Put("a.sys", "");
    for (const auto& path :
         {disk->Path("missing"), disk->Path("a.sys"), ""s, "a"s, disk->Path("\0"s), disk->Path("*")}) {
        EXPECT_THAT(SizesIn(path), IsEmpty()) << path;
    }
}

TEST_P(FileSystemContract, ListsNothingOfAFolderThatHidesItsNames) {
    disk->Put("a.sys", "");
    if (!disk->HideNames()) {
        GTEST_SKIP() << kBound;
    }
    EXPECT_THAT(SizesIn(disk->Folder()), IsEmpty());
}

TEST_P(FileSystemContract, TakesASlashForABackslash) {
    disk->AddFolder("folder");
    const auto file = Files().Create(disk->Path(R"(folder\a.sys)"));
    ASSERT_TRUE(file.handle);
    EXPECT_TRUE(Files().Exists(disk->Folder() + "/folder/a.sys"));
}

TEST_P(FileSystemContract, TakesSeveralBackslashesForOne) {
    disk->Put("a.sys", "");
    EXPECT_TRUE(Files().Exists(disk->Folder() + R"(\\a.sys)"));
}

// Reading

TEST_P(FileSystemContract, ReadsEveryByteAsItStands) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    disk->Put("all.sys", bytes);
    EXPECT_EQ(ReadAll("ALL.sys"), bytes);
}

TEST_P(FileSystemContract, TellsTheSizeOfAFile) {
    disk->Put("a.sys", "12345");
    EXPECT_EQ(Opened("a.sys")->Size(), 5U);
}

TEST_P(FileSystemContract, ReadsOnFromWhereItStopped) {
    disk->Put("a.sys", "12345");
    const auto file = Opened("a.sys");
    EXPECT_EQ(ReadUpTo(*file, 3), "123");
    EXPECT_EQ(ReadUpTo(*file, 3), "45");
    EXPECT_EQ(ReadUpTo(*file, 3), "");
}

TEST_P(FileSystemContract, ReadsAnEmptyFileAsNothing) {
    disk->Put("a.sys", "");
    EXPECT_EQ(Opened("a.sys")->Size(), 0U);
    EXPECT_EQ(ReadAll("a.sys"), "");
}

TEST_P(FileSystemContract, SaysWhyAFileCannotBeOpened) {
    disk->AddFolder("folder");
    disk->Put("a.sys", "");
    EXPECT_EQ(OpenError(disk->Path("missing.sys")), FileError::NotFound);
    EXPECT_EQ(OpenError(disk->Path(R"(missing\a.sys)")), FileError::NotFound);
    EXPECT_EQ(OpenError(disk->Path(R"(a.sys\b.sys)")), FileError::NotFound);
    EXPECT_EQ(OpenError("a.sys"), FileError::NotFound);
    EXPECT_EQ(OpenError(disk->Path("folder")), FileError::IsFolder);
}

TEST_P(FileSystemContract, OpensAFileThatWasFoundAsItIs) {
    disk->Put("a.sys", "12345");
    const auto opened = Files().OpenAlwaysForReading(disk->Path("A.SYS"));
    ASSERT_TRUE(opened.handle);
    EXPECT_EQ(ReadUpTo(*opened.handle, 10), "12345");
    EXPECT_NE(opened.handle->Write("x"), FileError::None);
    EXPECT_THAT(disk->Names(), ElementsAre("a.sys"));
    EXPECT_THAT(disk->Get("a.sys"), Optional("12345"s));
}

TEST_P(FileSystemContract, OpensAFileThatHasGoneSinceItWasFoundAsAnEmptyOne) {
    const auto opened = Files().OpenAlwaysForReading(disk->Path("Gone.sys"));
    ASSERT_TRUE(opened.handle);
    EXPECT_EQ(opened.handle->Size(), 0U);
    EXPECT_EQ(ReadUpTo(*opened.handle, 10), "");
    EXPECT_THAT(disk->Names(), ElementsAre("Gone.sys"));
    EXPECT_THAT(disk->Get("Gone.sys"), Optional(""s));
}

TEST_P(FileSystemContract, SaysWhyAFileThatWasFoundCannotBeOpened) {
    disk->AddFolder("folder");
    const auto error = [&](const std::string& path) { return Files().OpenAlwaysForReading(path).error; };
    EXPECT_EQ(error(disk->Path("folder")), FileError::IsFolder);
    EXPECT_EQ(error(disk->Path(R"(missing\a.sys)")), FileError::NotFound);
    EXPECT_EQ(error("a.sys"), FileError::NotFound);
    EXPECT_THAT(disk->Names(), IsEmpty());
}

TEST_P(FileSystemContract, RefusesToOpenAFileThatTheUserMayNotRead) {
    disk->Put("a.sys", "secret");
    if (!disk->ForbidReading("a.sys")) {
        GTEST_SKIP() << kBound;
    }
    EXPECT_EQ(OpenError(disk->Path("a.sys")), FileError::AccessDenied);
    EXPECT_TRUE(Files().Exists(disk->Path("a.sys")));
}

TEST_P(FileSystemContract, DoesNotWriteToAFileOpenedForReading) {
    disk->Put("a.sys", "12345");
    EXPECT_NE(Opened("a.sys")->Write("x"), FileError::None);
    EXPECT_THAT(disk->Get("a.sys"), Optional("12345"s));
}

TEST_P(FileSystemContract, ReadsAFileThatIsOpenForReadingAlready) {
    disk->Put("a.sys", "12345");
    const auto first = Opened("a.sys");
    EXPECT_EQ(ReadAll("a.sys"), "12345");
}

// Creating and writing

TEST_P(FileSystemContract, CreatesAnEmptyFileOfTheNameGiven) {
    EXPECT_EQ(Created("Rules.tmp")->Close(), FileError::None);
    EXPECT_THAT(disk->Names(), ElementsAre("Rules.tmp"));
    EXPECT_THAT(disk->Get("Rules.tmp"), Optional(""s));
}

TEST_P(FileSystemContract, WritesOnePieceBehindTheOther) {
    const auto file = Created("a.sys");
    EXPECT_EQ(file->Write("[RULE]\r\n"), FileError::None);
    EXPECT_EQ(file->Write(""), FileError::None);
    EXPECT_EQ(file->Write("\0\xFF"s), FileError::None);
    EXPECT_EQ(file->Size(), 10U);
    EXPECT_EQ(file->Flush(), FileError::None);
    EXPECT_EQ(file->Close(), FileError::None);
    EXPECT_THAT(disk->Get("a.sys"), Optional("[RULE]\r\n\0\xFF"s));
}

TEST_P(FileSystemContract, EmptiesAFileThatExistsAndLeavesItItsName) {
    disk->Put("ZYRules.sys", "old and long");
    const auto file = Created("ZYRULES.SYS");
    EXPECT_EQ(file->Write("new"), FileError::None);
    EXPECT_THAT(disk->Names(), ElementsAre("ZYRules.sys"));
    EXPECT_THAT(disk->Get("ZYRules.sys"), Optional("new"s));
}

TEST_P(FileSystemContract, KeepsThePermissionsOfAFileThatItEmpties) {
    disk->Put("a.sys", "old");
    disk->SetPermissions("a.sys", 0604);
    Created("a.sys")->Close();
    EXPECT_THAT(disk->Permissions("a.sys"), Optional(0604U));
}

TEST_P(FileSystemContract, KeepsBytesLettersBeyondAsciiInNames) {
    Created("\xDC\x80.sys")->Close();
    EXPECT_THAT(disk->Names(), ElementsAre("\xDC\x80.sys"));
}

TEST_P(FileSystemContract, SaysWhyAFileCannotBeCreated) {
    disk->AddFolder("folder");
    disk->Put("a.sys", "12345");
    EXPECT_EQ(CreateError(disk->Path(R"(missing\a.sys)")), FileError::NotFound);
    EXPECT_EQ(CreateError(disk->Path(R"(a.sys\b.sys)")), FileError::NotFound);
    EXPECT_EQ(CreateError("a.sys"), FileError::NotFound);
    EXPECT_EQ(CreateError(disk->Path("b\0.sys"s)), FileError::NotFound);
    EXPECT_EQ(CreateError(disk->Path("folder")), FileError::IsFolder);
    EXPECT_THAT(disk->Names(), ElementsAre("a.sys"));
    EXPECT_THAT(disk->Get("a.sys"), Optional("12345"s));
}

TEST_P(FileSystemContract, DoesNotReadFromAFileBeingWritten) {
    const auto file = Created("a.sys");
    file->Write("12345");
    EXPECT_EQ(ReadUpTo(*file, 5), "");
}

TEST_P(FileSystemContract, LetsOthersReadAFileBeingWritten) {
    const auto file = Created("a.sys");
    file->Write("12345");
    EXPECT_EQ(ReadAll("a.sys"), "12345");
}

TEST_P(FileSystemContract, WritesThePartThatFitsOnAFullDisk) {
    if (!disk->LimitTo(6)) {
        GTEST_SKIP() << "This system has no limit for the files of a single test.";
    }
    const auto file = Created("a.sys");
    EXPECT_EQ(file->Write("1234"), FileError::None);
    EXPECT_EQ(file->Write("5678"), FileError::DiskFull);
    EXPECT_EQ(file->Close(), FileError::None);
    EXPECT_THAT(disk->Get("a.sys"), Optional("123456"s));
}

TEST_P(FileSystemContract, ClosesAFileOnce) {
    const auto file = Created("a.sys");
    EXPECT_EQ(file->Close(), FileError::None);
    EXPECT_NE(file->Close(), FileError::None);
}

TEST_P(FileSystemContract, DoesNothingWithAClosedFile) {
    disk->Put("read.sys", "12345");
    const auto written = Created("a.sys");
    const auto read = Opened("read.sys");
    written->Close();
    read->Close();
    EXPECT_NE(written->Write("x"), FileError::None);
    EXPECT_NE(written->Flush(), FileError::None);
    EXPECT_EQ(ReadUpTo(*read, 5), "");
    EXPECT_THAT(disk->Get("a.sys"), Optional(""s));
}

TEST_P(FileSystemContract, KeepsWhatWasWrittenWhenTheHandleGoesWithoutBeingClosed) {
    Created("a.sys")->Write("12345");
    EXPECT_THAT(disk->Get("a.sys"), Optional("12345"s));
}

// Creating for the owner alone

TEST_P(FileSystemContract, CreatesAFileForItsOwnerAlone) {
    const auto created = Files().CreatePrivate(disk->Path("New.Tmp"));
    ASSERT_TRUE(created.handle);
    EXPECT_EQ(created.handle->Write("secret"), FileError::None);
    EXPECT_THAT(disk->Get("New.Tmp"), Optional("secret"s));
    EXPECT_THAT(disk->Permissions("New.Tmp"), Optional(0600U));
}

TEST_P(FileSystemContract, LeavesAFileThatIsThereWhenItShouldCreateOneForItsOwner) {
    disk->Put("a.sys", "old");
    disk->SetPermissions("a.sys", 0604);
    for (const auto* name : {"a.sys", "A.SYS"}) {
        const auto created = Files().CreatePrivate(disk->Path(name));
        EXPECT_FALSE(created.handle);
        EXPECT_EQ(created.error, FileError::Exists);
    }
    EXPECT_THAT(disk->Get("a.sys"), Optional("old"s));
    EXPECT_THAT(disk->Permissions("a.sys"), Optional(0604U));
    EXPECT_THAT(disk->Names(), ElementsAre("a.sys"));
}

TEST_P(FileSystemContract, SaysWhyAFileCannotBeCreatedForItsOwner) {
    disk->AddFolder("folder");
    EXPECT_EQ(Files().CreatePrivate(disk->Path("folder")).error, FileError::IsFolder);
    EXPECT_EQ(Files().CreatePrivate(disk->Path(R"(missing\a.sys)")).error, FileError::NotFound);
    EXPECT_EQ(Files().CreatePrivate("a.sys").error, FileError::NotFound);
}

// Folders for the user alone

TEST_P(FileSystemContract, MakesAFolderForTheUserAloneAndThoseAboveItThatAreMissing) {
    EXPECT_EQ(Files().MakePrivateFolder(disk->Path(R"(New\deep\deeper)")), FileError::None);
    EXPECT_THAT(LeftToOthers("New"), Optional(0U));
    EXPECT_TRUE(Files().CreatePrivate(disk->Path(R"(new\DEEP\deeper\a.sys)")).handle);
}

TEST_P(FileSystemContract, KeepsAFolderThatIsThereToTheUserAndLeavesWhatItHolds) {
    disk->AddFolder("Folder");
    ASSERT_TRUE(Files().Create(disk->Path(R"(Folder\a.sys)")).handle);
    disk->SetPermissions("Folder", 0707);
    ASSERT_NE(LeftToOthers("Folder"), 0U);
    for (int times = 0; times < 2; ++times) {
        EXPECT_EQ(Files().MakePrivateFolder(disk->Path("FOLDER")), FileError::None);
        EXPECT_THAT(LeftToOthers("Folder"), Optional(0U));
    }
    EXPECT_TRUE(Files().Exists(disk->Path(R"(Folder\a.sys)")));
}

TEST_P(FileSystemContract, LeavesAFileThatIsInTheWayOfAFolder) {
    disk->Put("a.sys", "12345");
    EXPECT_EQ(Files().MakePrivateFolder(disk->Path("A.SYS")), FileError::Exists);
    EXPECT_EQ(Files().MakePrivateFolder(disk->Path(R"(A.SYS\b\c)")), FileError::Exists);
    EXPECT_THAT(disk->Get("a.sys"), Optional("12345"s));
}

TEST_P(FileSystemContract, MakesNoFolderByAPathThatIsNone) {
    for (const auto& path : {""s, "folder"s, disk->Path("a\0b"s)}) {
        EXPECT_EQ(Files().MakePrivateFolder(path), FileError::NotFound) << path;
    }
}

TEST_P(FileSystemContract, MakesNoFolderInOneThatTheUserMayNotChange) {
    if (!disk->ForbidChanges()) {
        GTEST_SKIP() << kBound;
    }
    EXPECT_EQ(Files().MakePrivateFolder(disk->Path(R"(new\deep)")), FileError::AccessDenied);
    EXPECT_FALSE(Files().PathExists(disk->Path("new")));
}

// Deleting

TEST_P(FileSystemContract, DeletesAFileWithoutRegardToCase) {
    disk->Put("a.sys", "");
    disk->Put("b.sys", "");
    EXPECT_EQ(Files().Delete(disk->Path("A.SYS")), FileError::None);
    EXPECT_THAT(disk->Names(), ElementsAre("b.sys"));
}

TEST_P(FileSystemContract, SaysWhyAFileCannotBeDeleted) {
    disk->AddFolder("folder");
    disk->Put("a.sys", "");
    EXPECT_EQ(Files().Delete(disk->Path("missing.sys")), FileError::NotFound);
    EXPECT_EQ(Files().Delete(disk->Path(R"(missing\a.sys)")), FileError::NotFound);
    EXPECT_EQ(Files().Delete("a.sys"), FileError::NotFound);
    EXPECT_EQ(Files().Delete(disk->Path("folder")), FileError::IsFolder);
    EXPECT_THAT(disk->Names(), ElementsAre("a.sys"));
}

// Renaming

TEST_P(FileSystemContract, RenamesAFileWithItsBytes) {
    disk->Put("Rules.tmp", "12345");
    EXPECT_EQ(Files().Rename(disk->Path("RULES.TMP"), disk->Path("ZYRules.sys")), FileError::None);
    EXPECT_THAT(disk->Names(), ElementsAre("ZYRules.sys"));
    EXPECT_THAT(disk->Get("ZYRules.sys"), Optional("12345"s));
}

TEST_P(FileSystemContract, NeverReplacesAFileByRenaming) {
    disk->Put("Rules.tmp", "new");
    disk->Put("ZYRules.sys", "old");
    EXPECT_EQ(Files().Rename(disk->Path("Rules.tmp"), disk->Path("ZYRules.sys")), FileError::Exists);
    EXPECT_THAT(disk->Get("Rules.tmp"), Optional("new"s));
    EXPECT_THAT(disk->Get("ZYRules.sys"), Optional("old"s));
}

TEST_P(FileSystemContract, NeverReplacesAFileWhoseNameDiffersInCaseOnly) {
    disk->Put("Rules.tmp", "new");
    disk->Put("ZYRules.sys", "old");
    EXPECT_EQ(Files().Rename(disk->Path("Rules.tmp"), disk->Path("ZYRULES.SYS")), FileError::Exists);
    EXPECT_THAT(disk->Names(), ElementsAre("Rules.tmp", "ZYRules.sys"));
}

TEST_P(FileSystemContract, SaysWhyAFileCannotBeRenamed) {
    disk->AddFolder("folder");
    disk->Put("a.sys", "12345");
    const auto path = disk->Path("a.sys");
    EXPECT_EQ(Files().Rename(disk->Path("missing.sys"), disk->Path("b.sys")), FileError::NotFound);
    EXPECT_EQ(Files().Rename(path, disk->Path(R"(missing\b.sys)")), FileError::NotFound);
    EXPECT_EQ(Files().Rename(path, "b.sys"), FileError::NotFound);
    EXPECT_EQ(Files().Rename(path, disk->Path("folder")), FileError::IsFolder);
    EXPECT_EQ(Files().Rename(disk->Path("folder"), disk->Path("b.sys")), FileError::IsFolder);
    EXPECT_THAT(disk->Names(), ElementsAre("a.sys"));
    EXPECT_THAT(disk->Get("a.sys"), Optional("12345"s));
}

// Permissions

TEST_P(FileSystemContract, CopiesPermissions) {
    disk->Put("a.sys", "");
    disk->Put("b.sys", "");
    disk->SetPermissions("a.sys", 0604);
    EXPECT_EQ(Files().CopyPermissions(disk->Path("A.SYS"), disk->Path("B.SYS")), FileError::None);
    EXPECT_THAT(disk->Permissions("b.sys"), Optional(0604U));
    EXPECT_THAT(disk->Permissions("a.sys"), Optional(0604U));
}

TEST_P(FileSystemContract, SaysWhyPermissionsCannotBeCopied) {
    disk->AddFolder("folder");
    disk->Put("a.sys", "");
    const auto path = disk->Path("a.sys");
    EXPECT_EQ(Files().CopyPermissions(disk->Path("missing.sys"), path), FileError::NotFound);
    EXPECT_EQ(Files().CopyPermissions(path, disk->Path("missing.sys")), FileError::NotFound);
    EXPECT_EQ(Files().CopyPermissions("a.sys", path), FileError::NotFound);
    EXPECT_EQ(Files().CopyPermissions(disk->Path("folder"), path), FileError::IsFolder);
    EXPECT_EQ(Files().CopyPermissions(path, disk->Path("folder")), FileError::IsFolder);
}

// A folder that the user may not change

TEST_P(FileSystemContract, CreatesNoFileInAFolderThatTheUserMayNotChange) {
    if (!disk->ForbidChanges()) {
        GTEST_SKIP() << kBound;
    }
    EXPECT_EQ(CreateError(disk->Path("new.sys")), FileError::AccessDenied);
    EXPECT_EQ(Files().CreatePrivate(disk->Path("new.sys")).error, FileError::AccessDenied);
    EXPECT_THAT(disk->Names(), IsEmpty());
}

TEST_P(FileSystemContract, RewritesAFileInAFolderThatTheUserMayNotChange) {
    disk->Put("a.sys", "old");
    if (!disk->ForbidChanges()) {
        GTEST_SKIP() << kBound;
    }
    EXPECT_EQ(Created("a.sys")->Write("new"), FileError::None);
    EXPECT_THAT(disk->Get("a.sys"), Optional("new"s));
}

TEST_P(FileSystemContract, DeletesAndRenamesNothingInAFolderThatTheUserMayNotChange) {
    disk->Put("a.sys", "old");
    if (!disk->ForbidChanges()) {
        GTEST_SKIP() << kBound;
    }
    EXPECT_EQ(Files().Delete(disk->Path("a.sys")), FileError::AccessDenied);
    EXPECT_EQ(Files().Rename(disk->Path("a.sys"), disk->Path("b.sys")), FileError::AccessDenied);
    EXPECT_THAT(disk->Get("a.sys"), Optional("old"s));
}

// Asking before a save

TEST_P(FileSystemContract, SaysThatAFileMayBeReplacedAndChangesNothingByIt) {
    disk->Put("old.sys", "old");
    for (const auto* name : {"old.sys", "new.sys"}) {
        EXPECT_EQ(Files().MayReplace(disk->Path(name)), FileError::None) << name;
        EXPECT_EQ(Files().MayOverwrite(disk->Path(name)), FileError::None) << name;
    }
    EXPECT_THAT(disk->Names(), ElementsAre("old.sys"));
    EXPECT_THAT(disk->Get("old.sys"), Optional("old"s));
}

TEST_P(FileSystemContract, SaysWhereNoFileCanStand) {
    disk->AddFolder("folder");
    EXPECT_EQ(Files().MayReplace(disk->Path("folder")), FileError::IsFolder);
    EXPECT_EQ(Files().MayOverwrite(disk->Path("folder")), FileError::IsFolder);
    for (const auto& path : {disk->Path(R"(missing\a.sys)"), "a.sys"s, disk->Path("a\0.sys"s)}) {
        EXPECT_EQ(Files().MayReplace(path), FileError::NotFound) << path;
        EXPECT_EQ(Files().MayOverwrite(path), FileError::NotFound) << path;
    }
}

TEST_P(FileSystemContract, SaysThatAFolderThatTheUserMayNotChangeKeepsItsFilesFromBeingReplaced) {
    disk->Put("old.sys", "old");
    if (!disk->ForbidChanges()) {
        GTEST_SKIP() << kBound;
    }
    EXPECT_EQ(Files().MayReplace(disk->Path("old.sys")), FileError::AccessDenied);
    EXPECT_EQ(Files().MayReplace(disk->Path("new.sys")), FileError::AccessDenied);
    EXPECT_EQ(Files().MayOverwrite(disk->Path("old.sys")), FileError::None);
    EXPECT_EQ(Files().MayOverwrite(disk->Path("new.sys")), FileError::AccessDenied);
}

TEST_P(FileSystemContract, TellsHowMuchCouldStillBeWrittenInAFolder) {
    disk->Put("old.sys", "old");
    EXPECT_THAT(Files().FreeBytes(disk->Path("OLD.SYS")), Optional(Gt(0U)));
    EXPECT_THAT(Files().FreeBytes(disk->Path("new.sys")), Optional(Gt(0U)));
}

TEST_P(FileSystemContract, CannotTellHowMuchCouldBeWrittenWhereThereIsNoFolder) {
    for (const auto& path : {disk->Path(R"(missing\a.sys)"), "a.sys"s, ""s}) {
        EXPECT_EQ(Files().FreeBytes(path), std::nullopt) << path;
    }
}

// Certainty about a path

TEST_P(FileSystemContract, IsCertainWhereAFileIsAndWhereNoneIs) {
    disk->AddFolder("folder");
    disk->Put("a.sys", "");
    for (const auto& path : {disk->Path("A.SYS"), disk->Path("missing.sys"), disk->Path("FOLDER"),
                             disk->Path(R"(missing\a.sys)"), disk->Path(R"(a.sys\b.sys)"), disk->Folder(),
                             "a.sys"s, disk->Path("a\0.sys"s), ""s}) {
        EXPECT_EQ(Files().Locate(path), FileError::None) << path;
    }
}

TEST_P(FileSystemContract, DoubtsANameThatTwoFilesHaveButForCase) {
    if (!disk->PutTwins("a.sys")) {
        GTEST_SKIP() << "On this system names differ by more than case.";
    }
    disk->Put("b.sys", "");
    EXPECT_EQ(Files().Locate(disk->Path("a.sys")), FileError::Ambiguous);
    EXPECT_EQ(Files().Locate(disk->Path("A.SYS")), FileError::Ambiguous);
    EXPECT_EQ(Files().Locate(disk->Path("b.sys")), FileError::None);
}

TEST_P(FileSystemContract, CannotTellWhatAFolderHoldsThatHidesItsNames) {
    disk->Put("a.sys", "");
    if (!disk->HideNames()) {
        GTEST_SKIP() << kBound;
    }
    EXPECT_EQ(Files().Locate(disk->Path("a.sys")), FileError::AccessDenied);
    EXPECT_EQ(Files().Locate(disk->Path("missing.sys")), FileError::AccessDenied);
}

// Holding a folder

TEST_P(FileSystemContract, HoldsAFolderForAllItsFilesUntilTheLockGoes) {
    auto held = Files().LockFolderOf(disk->Path("a.sys"));
    EXPECT_TRUE(held.lock);
    EXPECT_EQ(held.error, FileError::None);
    const auto second = Files().LockFolderOf(disk->Path("B.SYS"));
    EXPECT_FALSE(second.lock);
    EXPECT_EQ(second.error, FileError::InUse);
    held.lock.reset();
    EXPECT_TRUE(Files().LockFolderOf(disk->Path("B.SYS")).lock);
}

TEST_P(FileSystemContract, DoesNotHoldAFolderThatAnotherProgramHolds) {
    disk->HoldFolder(true);
    const auto refused = Files().LockFolderOf(disk->Path("a.sys"));
    EXPECT_FALSE(refused.lock);
    EXPECT_EQ(refused.error, FileError::InUse);
    disk->HoldFolder(false);
    EXPECT_TRUE(Files().LockFolderOf(disk->Path("a.sys")).lock);
}

TEST_P(FileSystemContract, HoldsTheFilesOwnFolderAndNoOther) {
    disk->AddFolder("folder");
    const auto outer = Files().LockFolderOf(disk->Path("folder"));
    const auto inner = Files().LockFolderOf(disk->Path(R"(FOLDER\a.sys)"));
    EXPECT_TRUE(outer.lock);
    EXPECT_TRUE(inner.lock);
}

TEST_P(FileSystemContract, LetsTheFilesOfAHeldFolderBeWorkedWith) {
    disk->Put("a.sys", "12345");
    disk->HoldFolder(true);
    EXPECT_EQ(ReadAll("a.sys"), "12345");
    EXPECT_EQ(Created("b.sys")->Write("x"), FileError::None);
    EXPECT_EQ(Files().Rename(disk->Path("b.sys"), disk->Path("c.sys")), FileError::None);
    EXPECT_EQ(Files().Delete(disk->Path("a.sys")), FileError::None);
    disk->HoldFolder(false);
    EXPECT_THAT(disk->Names(), ElementsAre("c.sys"));
}

TEST_P(FileSystemContract, NeitherHoldsNorComplainsOfAFolderThatIsNone) {
    disk->Put("a.sys", "");
    for (const auto& path : {disk->Path(R"(missing\a.sys)"), disk->Path(R"(a.sys\b.sys)"), "a.sys"s,
                             disk->Path("a\0.sys"s), ""s}) {
        const auto held = Files().LockFolderOf(path);
        EXPECT_FALSE(held.lock) << path;
        EXPECT_EQ(held.error, FileError::None) << path;
    }
}

// The steps of a save

TEST_P(FileSystemContract, PutsANewFileInPlaceOfAnOldOneWithItsPermissions) {
    disk->Put("ZYRules.sys", "old");
    disk->SetPermissions("ZYRules.sys", 0606);
    const auto temporary = disk->Path("Rules.tmp");
    const auto target = disk->Path("ZYRules.sys");
    {
        const auto file = Created("Rules.tmp");
        EXPECT_EQ(file->Write("new"), FileError::None);
        EXPECT_EQ(file->Flush(), FileError::None);
        EXPECT_EQ(file->Close(), FileError::None);
    }
    EXPECT_EQ(Files().CopyPermissions(target, temporary), FileError::None);
    EXPECT_EQ(Files().Delete(target), FileError::None);
    EXPECT_EQ(Files().Rename(temporary, target), FileError::None);
    EXPECT_THAT(disk->Names(), ElementsAre("ZYRules.sys"));
    EXPECT_THAT(disk->Get("ZYRules.sys"), Optional("new"s));
    EXPECT_THAT(disk->Permissions("ZYRules.sys"), Optional(0606U));
}

} // namespace
} // namespace zy::test
