#include "platform/posix/TrashFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "support/AnotherDisk.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using namespace std::string_literals;

class TrashFolderTest : public ::testing::Test {
  protected:
    explicit TrashFolderTest(const fs::path& below = fs::temp_directory_path()) : disk(below) {}

    FileError Add(const std::string& name) {
        return TrashFolder(home.Path("data/Trash")).Add(disk.Path(name));
    }

    TemporaryFolder home;
    TemporaryFolder disk;
};

/// The files lie on another disk than the trash.
class TrashFolderAcrossDisks : public TrashFolderTest {
  protected:
    TrashFolderAcrossDisks() : TrashFolderTest(kAnotherDisk) {}
};

TEST_F(TrashFolderTest, TakesAFile) {
    disk.Put("a.dbf", "users");
    EXPECT_EQ(Add("a.dbf"), FileError::None);
    EXPECT_THAT(disk.Names(), IsEmpty());
    EXPECT_THAT(home.Get("data/Trash/a.dbf"), Optional("users"s));
}

TEST_F(TrashFolderTest, IsMadeForTheUserAlone) {
    disk.Put("a.dbf", "users");
    Add("a.dbf");
    struct stat status {};
    ASSERT_EQ(::stat(home.Path("data/Trash").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(TrashFolderTest, NumbersFilesOfTheSameName) {
    for (const char* bytes : {"first", "second", "third"}) {
        disk.Put("a.b.dbf", bytes);
        EXPECT_EQ(Add("a.b.dbf"), FileError::None);
    }
    EXPECT_THAT(home.Names("data/Trash"), ElementsAre("a.b.2.dbf", "a.b.3.dbf", "a.b.dbf"));
    EXPECT_THAT(home.Get("data/Trash/a.b.dbf"), Optional("first"s));
    EXPECT_THAT(home.Get("data/Trash/a.b.3.dbf"), Optional("third"s));
}

TEST_F(TrashFolderTest, NumbersANameWithoutAnExtension) {
    for (const char* bytes : {"first", "second"}) {
        disk.Put("users", bytes);
        EXPECT_EQ(Add("users"), FileError::None);
    }
    EXPECT_THAT(home.Names("data/Trash"), ElementsAre("users", "users.2"));
}

TEST_F(TrashFolderTest, ReportsAMissingFile) {
    EXPECT_EQ(Add("missing.dbf"), FileError::NotFound);
}

TEST_F(TrashFolderTest, LeavesTheFileWhenTheFolderCannotBeMade) {
    home.Put("data", "a file in the way");
    disk.Put("a.dbf", "users");
    EXPECT_NE(Add("a.dbf"), FileError::None);
    EXPECT_THAT(disk.Get("a.dbf"), Optional("users"s));
}

TEST_F(TrashFolderAcrossDisks, TakesAFileWithItsBytesAndPermissions) {
    std::string bytes(200000, 'x');
    bytes += "end\0"s;
    disk.Put("a.dbf", bytes);
    fs::permissions(disk.Path("a.dbf"), fs::perms{0640});
    EXPECT_EQ(Add("a.dbf"), FileError::None);
    EXPECT_THAT(disk.Names(), IsEmpty());
    EXPECT_THAT(home.Get("data/Trash/a.dbf"), Optional(bytes));
    EXPECT_EQ(fs::status(home.Path("data/Trash/a.dbf")).permissions(), fs::perms{0640});
}

TEST_F(TrashFolderAcrossDisks, NumbersFilesOfTheSameName) {
    for (const char* bytes : {"first", "second"}) {
        disk.Put("a.dbf", bytes);
        EXPECT_EQ(Add("a.dbf"), FileError::None);
    }
    EXPECT_THAT(home.Get("data/Trash/a.dbf"), Optional("first"s));
    EXPECT_THAT(home.Get("data/Trash/a.2.dbf"), Optional("second"s));
}

TEST_F(TrashFolderAcrossDisks, LeavesAFileThatCannotBeRemovedAndNoCopyOfIt) {
    disk.Put("a.dbf", "users");
    fs::permissions(disk.Path(), fs::perms{0555});
    home.AddFolder("data/Trash");
    fs::permissions(home.Path(), fs::perms{0777});
    fs::permissions(home.Path("data/Trash"), fs::perms{0777});
    {
        const OrdinaryUser user(disk.Path());
        EXPECT_EQ(Add("a.dbf"), FileError::AccessDenied);
    }
    EXPECT_THAT(disk.Get("a.dbf"), Optional("users"s));
    EXPECT_THAT(home.Names("data/Trash"), IsEmpty());
}

TEST_F(TrashFolderAcrossDisks, LeavesAFileThatFindsNoRoomAndNoCopyOfIt) {
    disk.Put("a.dbf", "users");
    {
        const FileSizeLimit limit(3);
        EXPECT_EQ(Add("a.dbf"), FileError::DiskFull);
    }
    EXPECT_THAT(disk.Get("a.dbf"), Optional("users"s));
    EXPECT_THAT(home.Names("data/Trash"), IsEmpty());
}

TEST_F(TrashFolderAcrossDisks, LeavesAFileThatCannotBeReadAndNoCopyOfIt) {
    disk.Put("a.dbf", "users");
    home.AddFolder("data/Trash");
    fs::permissions(home.Path(), fs::perms{0777});
    fs::permissions(home.Path("data/Trash"), fs::perms{0777});
    fs::permissions(disk.Path("a.dbf"), fs::perms{0200});
    {
        const OrdinaryUser user(disk.Path());
        EXPECT_EQ(Add("a.dbf"), FileError::AccessDenied);
    }
    EXPECT_EQ(fs::file_size(disk.Path("a.dbf")), 5U);
    EXPECT_THAT(home.Names("data/Trash"), IsEmpty());
}

} // namespace
} // namespace zy::test
