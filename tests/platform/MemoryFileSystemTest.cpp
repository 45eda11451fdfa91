// What the disk in memory offers to tests, beyond what every file system promises.

#include "platform/memory/MemoryFileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using namespace std::string_literals;

class MemoryFileSystemTest : public ::testing::Test {
  protected:
    MemoryFileSystem disk{Windows1252()};
};

TEST_F(MemoryFileSystemTest, GivesBackWhatWasPut) {
    disk.Put(R"(C:\SYS\a.sys)", "1\0002"s);
    EXPECT_THAT(disk.Get(R"(c:\sys\A.SYS)"), Optional("1\0002"s));
    EXPECT_EQ(disk.Get(R"(C:\SYS\b.sys)"), std::nullopt);
}

TEST_F(MemoryFileSystemTest, PutsAnewInPlaceOfWhatWasThere) {
    disk.Put(R"(C:\SYS\a.sys)", "long and old");
    disk.Put(R"(C:\SYS\A.SYS)", "new");
    EXPECT_THAT(disk.Get(R"(C:\SYS\a.sys)"), Optional("new"s));
    EXPECT_THAT(disk.Names(R"(C:\SYS)"), ElementsAre("a.sys"));
}

TEST_F(MemoryFileSystemTest, AddsTheFolderOfWhatIsPut) {
    disk.Put(R"(C:\SYS\a.sys)", "");
    EXPECT_EQ(disk.Create(R"(C:\SYS\b.sys)").error, FileError::None);
    EXPECT_EQ(disk.Create(R"(C:\b.sys)").error, FileError::None);
    EXPECT_EQ(disk.Create(R"(D:\b.sys)").error, FileError::NotFound);
}

TEST_F(MemoryFileSystemTest, NamesTheFilesOfOneFolderOnly) {
    disk.Put(R"(\SYS\b.sys)", "");
    disk.Put(R"(\SYS\A.sys)", "");
    disk.Put(R"(\SYS\deep\c.sys)", "");
    disk.Put(R"(\d.sys)", "");
    EXPECT_THAT(disk.Names(R"(\sys)"), ElementsAre("A.sys", "b.sys"));
    EXPECT_THAT(disk.Names(R"(\SYS\)"), ElementsAre("A.sys", "b.sys"));
    EXPECT_THAT(disk.Names(R"(\)"), ElementsAre("d.sys"));
    EXPECT_THAT(disk.Names(R"(\other)"), IsEmpty());
}

TEST_F(MemoryFileSystemTest, TakesAFileAway) {
    disk.Put(R"(\a.sys)", "123");
    EXPECT_THAT(disk.Take(R"(\A.SYS)"), Optional("123"s));
    EXPECT_EQ(disk.Take(R"(\A.SYS)"), std::nullopt);
    EXPECT_EQ(disk.Get(R"(\a.sys)"), std::nullopt);
}

TEST_F(MemoryFileSystemTest, GivesNewFilesTheUsualPermissions) {
    disk.Put(R"(\a.sys)", "");
    disk.Create(R"(\b.sys)");
    EXPECT_THAT(disk.Permissions(R"(\a.sys)"), Optional(0644U));
    EXPECT_THAT(disk.Permissions(R"(\b.sys)"), Optional(0644U));
    EXPECT_EQ(disk.Permissions(R"(\c.sys)"), std::nullopt);
}

TEST_F(MemoryFileSystemTest, GivesFoldersPermissionsToo) {
    disk.AddFolder(R"(\SYS)");
    EXPECT_THAT(disk.Permissions(R"(\sys)"), Optional(0755U));
    EXPECT_EQ(disk.MakePrivateFolder(R"(\SYS\deep)"), FileError::None);
    EXPECT_THAT(disk.Permissions(R"(\SYS\DEEP)"), Optional(0700U));
    EXPECT_THAT(disk.Permissions(R"(\SYS)"), Optional(0755U));
}

TEST_F(MemoryFileSystemTest, HasAsMuchRoomAsItsCapacityLeaves) {
    disk.Put(R"(\SYS\a.sys)", "12345");
    disk.SetCapacity(12);
    EXPECT_THAT(disk.FreeBytes(R"(\SYS\b.sys)"), Optional(7U));
    disk.SetCapacity(4);
    EXPECT_THAT(disk.FreeBytes(R"(\SYS\a.sys)"), Optional(0U));
}

TEST_F(MemoryFileSystemTest, HasPermissionsForFilesThatExistOnly) {
    disk.SetPermissions(R"(\a.sys)", 0600);
    disk.Put(R"(\a.sys)", "");
    EXPECT_THAT(disk.Permissions(R"(\a.sys)"), Optional(0644U));
    disk.SetPermissions(R"(\A.SYS)", 0600);
    EXPECT_THAT(disk.Permissions(R"(\a.sys)"), Optional(0600U));
}

TEST_F(MemoryFileSystemTest, RefusesEverythingButLookingWhereAnotherProgramHoldsTheFile) {
    disk.Put(R"(\a.sys)", "123");
    disk.Put(R"(\b.sys)", "");
    disk.SetHeldOpen(R"(\A.SYS)");
    EXPECT_TRUE(disk.Exists(R"(\a.sys)"));
    EXPECT_EQ(disk.OpenForReading(R"(\a.sys)").error, FileError::InUse);
    EXPECT_EQ(disk.Create(R"(\a.sys)").error, FileError::InUse);
    EXPECT_EQ(disk.Delete(R"(\a.sys)"), FileError::InUse);
    EXPECT_EQ(disk.Rename(R"(\a.sys)", R"(\c.sys)"), FileError::InUse);
    EXPECT_EQ(disk.MayReplace(R"(\a.sys)"), FileError::InUse);
    EXPECT_EQ(disk.MayOverwrite(R"(\a.sys)"), FileError::InUse);
    EXPECT_THAT(disk.Get(R"(\a.sys)"), Optional("123"s));
}

TEST_F(MemoryFileSystemTest, LetsGoOfAHeldFile) {
    disk.Put(R"(\a.sys)", "123");
    disk.SetHeldOpen(R"(\a.sys)");
    disk.SetHeldOpen(R"(\a.sys)", false);
    EXPECT_EQ(disk.Delete(R"(\a.sys)"), FileError::None);
}

TEST_F(MemoryFileSystemTest, RefusesANameThatIsHeldAlthoughNoFileHasIt) {
    disk.Put(R"(\a.sys)", "123");
    disk.SetHeldOpen(R"(\new.sys)");
    EXPECT_EQ(disk.Create(R"(\new.sys)").error, FileError::InUse);
    EXPECT_EQ(disk.Rename(R"(\a.sys)", R"(\new.sys)"), FileError::InUse);
}

TEST_F(MemoryFileSystemTest, WritesAnUnreadableFile) {
    disk.Put(R"(\a.sys)", "123");
    disk.SetUnreadable(R"(\a.sys)");
    EXPECT_EQ(disk.OpenForReading(R"(\a.sys)").error, FileError::AccessDenied);
    EXPECT_EQ(disk.Create(R"(\a.sys)").error, FileError::None);
    disk.SetUnreadable(R"(\a.sys)", false);
    EXPECT_EQ(disk.OpenForReading(R"(\a.sys)").error, FileError::None);
}

TEST_F(MemoryFileSystemTest, MakesAFolderWritableAgain) {
    disk.AddFolder(R"(\SYS)");
    disk.SetFolderReadOnly(R"(\SYS)");
    EXPECT_EQ(disk.Create(R"(\SYS\a.sys)").error, FileError::AccessDenied);
    disk.SetFolderReadOnly(R"(\SYS)", false);
    EXPECT_EQ(disk.Create(R"(\SYS\a.sys)").error, FileError::None);
}

TEST_F(MemoryFileSystemTest, IsUncertainOfAllThatIsBelowAFolderUntilThatIsTakenBack) {
    disk.SetUncertain(R"(C:\Sys)", FileError::AccessDenied);
    EXPECT_EQ(disk.Locate(R"(C:\SYS\deep\a.sys)"), FileError::AccessDenied);
    EXPECT_EQ(disk.Locate(R"(c:/sys)"), FileError::AccessDenied);
    EXPECT_EQ(disk.Locate(R"(C:\SYSTEM\a.sys)"), FileError::None);
    disk.SetUncertain(R"(c:\sys)", FileError::None);
    EXPECT_EQ(disk.Locate(R"(C:\SYS\deep\a.sys)"), FileError::None);
}

TEST_F(MemoryFileSystemTest, IsUncertainInTheWayThatIsSaidOfThePlaceFurthestDown) {
    disk.SetUncertain(R"(C:\SYS)", FileError::AccessDenied);
    disk.SetUncertain(R"(C:\SYS\a.sys)", FileError::Ambiguous);
    EXPECT_EQ(disk.Locate(R"(C:\SYS\A.SYS)"), FileError::Ambiguous);
    EXPECT_EQ(disk.Locate(R"(C:\SYS\B.SYS)"), FileError::AccessDenied);
}

TEST_F(MemoryFileSystemTest, RefusesAFolderThatAnotherProgramHolds) {
    disk.AddFolder(R"(C:\Sys)");
    disk.SetFolderLocked(R"(c:\sys\)");
    EXPECT_EQ(disk.LockFolderOf(R"(C:\SYS\a.sys)").error, FileError::InUse);
    EXPECT_THAT(disk.LockedFolders(), IsEmpty());
    disk.SetFolderLocked(R"(C:\SYS)", false);
    EXPECT_TRUE(disk.LockFolderOf(R"(C:\SYS\a.sys)").lock);
}

TEST_F(MemoryFileSystemTest, TellsWhichFoldersAreHeldNow) {
    disk.AddFolder(R"(C:\Sys)");
    disk.AddFolder(R"(D:\Data)");
    {
        const auto first = disk.LockFolderOf(R"(C:\Sys\a.sys)");
        const auto second = disk.LockFolderOf(R"(D:\Data\a.sys)");
        EXPECT_THAT(disk.LockedFolders(), ElementsAre(R"(C:\SYS)", R"(D:\DATA)"));
    }
    EXPECT_THAT(disk.LockedFolders(), IsEmpty());
}

TEST_F(MemoryFileSystemTest, CountsNeitherLocatingNorLockingAsAnOperation) {
    disk.AddFolder(R"(C:\Sys)");
    disk.Locate(R"(C:\Sys\a.sys)");
    disk.LockFolderOf(R"(C:\Sys\a.sys)");
    EXPECT_EQ(disk.Operations().Count(), 0U);
    EXPECT_THAT(disk.Operations().Lines(), IsEmpty());
}

TEST_F(MemoryFileSystemTest, CountsTheBytesOfAllFilesAgainstTheCapacity) {
    disk.Put(R"(\a.sys)", "12345");
    disk.SetCapacity(7);
    const auto file = disk.Create(R"(\b.sys)").handle;
    EXPECT_EQ(file->Write("123"), FileError::DiskFull);
    EXPECT_THAT(disk.Get(R"(\b.sys)"), Optional("12"s));
}

TEST_F(MemoryFileSystemTest, HasRoomAgainAfterAFileIsDeleted) {
    disk.Put(R"(\a.sys)", "12345");
    disk.SetCapacity(5);
    const auto file = disk.Create(R"(\b.sys)").handle;
    EXPECT_EQ(file->Write("1"), FileError::DiskFull);
    disk.Delete(R"(\a.sys)");
    EXPECT_EQ(file->Write("12345"), FileError::None);
}

TEST_F(MemoryFileSystemTest, WritesNothingWhereMoreIsStoredThanTheCapacity) {
    disk.Put(R"(\a.sys)", "12345");
    disk.SetCapacity(3);
    EXPECT_EQ(disk.Create(R"(\b.sys)").handle->Write("1"), FileError::DiskFull);
    disk.SetCapacity(std::nullopt);
    EXPECT_EQ(disk.Create(R"(\b.sys)").handle->Write("1"), FileError::None);
}

TEST_F(MemoryFileSystemTest, LetsAnOpenFileKeepItsBytesWhenItIsDeleted) {
    disk.Put(R"(\a.sys)", "123");
    const auto file = disk.OpenForReading(R"(\a.sys)").handle;
    disk.Delete(R"(\a.sys)");
    std::string bytes(3, ' ');
    EXPECT_EQ(file->Read(bytes), 3U);
    EXPECT_EQ(bytes, "123");
}

} // namespace
} // namespace zy::test
