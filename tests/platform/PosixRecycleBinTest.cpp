#include "platform/posix/PosixRecycleBin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "RecyclePlaces.h"
#include "support/AnotherDisk.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using namespace std::string_literals;

class PosixRecycleBinTest : public ::testing::Test {
  protected:
    int Recycle(const TemporaryFolder& folder, std::string_view name) {
        return bin.Delete(folder.InsidePath(name) + "\0\0"s);
    }

    RecyclePlaces places;
    PosixRecycleBin bin{Windows1252()};
};

TEST_F(PosixRecycleBinTest, TellsTheDesktopWhereTheFileCameFrom) {
    const TemporaryFolder folder(RecyclePlaces::Home());
    folder.Put("a.dbf", "users");
    EXPECT_EQ(Recycle(folder, "A.DBF"), 0);
    std::ifstream info(RecyclePlaces::Home() / "data/Trash/info/a.dbf.trashinfo");
    const std::string text(std::istreambuf_iterator<char>(info), {});
    EXPECT_THAT(text, ::testing::HasSubstr("Path=" + folder.Path("a.dbf")));
}

TEST_F(PosixRecycleBinTest, KeepsFilesOfADiskWithoutATrashInAFolderOfItsOwn) {
    const TemporaryFolder folder(kAnotherDisk);
    folder.Put("a.dbf", "users");
    EXPECT_EQ(Recycle(folder, "a.dbf"), 0);
    EXPECT_THAT(folder.Names(), IsEmpty());
    EXPECT_THAT(RecyclePlaces::BytesInOwnTrash(), ElementsAre("users"));
    EXPECT_THAT(RecyclePlaces::BytesInDesktopTrash(), IsEmpty());
}

TEST_F(PosixRecycleBinTest, RecyclesTheFileThatALinkLeadsToAndLeavesTheLink) {
    const TemporaryFolder folder(RecyclePlaces::Home());
    folder.Put("target.dbf", "users");
    fs::create_symlink("target.dbf", folder.Path("link.dbf"));
    EXPECT_EQ(Recycle(folder, "link.dbf"), 0);
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.dbf")));
    EXPECT_THAT(folder.Names(), IsEmpty());
    EXPECT_THAT(RecyclePlaces::BytesInDesktopTrash(), ElementsAre("users"));
}

TEST_F(PosixRecycleBinTest, RecyclesTheFileThatALinkLeadsToOnADiskWithoutATrash) {
    const TemporaryFolder folder(RecyclePlaces::Home());
    const TemporaryFolder shared(kAnotherDisk);
    shared.Put("target.dbf", "users");
    fs::create_symlink(shared.Path("target.dbf"), folder.Path("link.dbf"));
    EXPECT_EQ(Recycle(folder, "link.dbf"), 0);
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.dbf")));
    EXPECT_THAT(shared.Names(), IsEmpty());
    EXPECT_THAT(RecyclePlaces::BytesInOwnTrash(), ElementsAre("users"));
}

TEST_F(PosixRecycleBinTest, RecyclesNothingByALinkThatLeadsToNoFile) {
    const TemporaryFolder folder(RecyclePlaces::Home());
    fs::create_symlink("nowhere", folder.Path("link.dbf"));
    fs::create_symlink("circle.dbf", folder.Path("circle.dbf"));
    EXPECT_NE(Recycle(folder, "link.dbf"), 0);
    EXPECT_NE(Recycle(folder, "circle.dbf"), 0);
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.dbf")));
}

TEST_F(PosixRecycleBinTest, RecyclesNothingByAPathThatIsNone) {
    EXPECT_NE(bin.Delete("a.dbf\0\0"s), 0);
    EXPECT_NE(bin.Delete("\x1A\0\0"s), 0);
}

TEST_F(PosixRecycleBinTest, LeavesAFileThatNoTrashTakes) {
    const TemporaryFolder folder(kAnotherDisk);
    folder.Put("a.dbf", "users");
    std::ofstream(RecyclePlaces::Home() / "data") << "a file where the folder should be";
    EXPECT_NE(Recycle(folder, "a.dbf"), 0);
    EXPECT_THAT(folder.Get("a.dbf"), Optional("users"s));
}

} // namespace
} // namespace zy::test
