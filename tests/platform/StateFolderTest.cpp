#include "platform/windows/StateFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/windows/ProgramFolder.h"
#include "platform/windows/WindowsFileSystem.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

TEST(StateFolderTest, IsCalledAsTheProductAndIsNoneInNone) {
    EXPECT_EQ(OwnFolderIn(L"C:\\u"), L"C:\\u\\zysetup");
    EXPECT_EQ(OwnFolderIn(L""), L"");
    EXPECT_EQ(InsideOwnFolderIn(L""), "");
}

TEST(StateFolderTest, IsInTheUsersFolderForDataThatStaysOnThisComputer) {
    EXPECT_TRUE(std::filesystem::is_directory(UsersLocalFolder()));
}

TEST(StateFolderTest, IsNamedAsItsFolderIsWhereTheCodePageHasItsLetters) {
    const TemporaryFolder folder;
    EXPECT_EQ(InsideOwnFolderIn(folder.Path().wstring()), folder.InsidePath("zysetup"));
}

TEST(StateFolderTest, IsReachedThroughTheShortNameOfAFolderWhoseLettersTheCodePageLacks) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / L"\u0416";
    std::filesystem::create_directory(path);
    const auto inside = InsideOwnFolderIn(path.wstring());
    if (inside.empty()) {
        GTEST_SKIP() << "This disk has no short names.";
    }
    EXPECT_EQ(WindowsFileSystem().MakePrivateFolder(inside), FileError::None);
    EXPECT_TRUE(std::filesystem::is_directory(path / "zysetup"));
}

TEST(StateFolderTest, IsNoneWhereThereIsNoShortName) {
    const TemporaryFolder folder;
    EXPECT_EQ(InsideOwnFolderIn((folder.Path() / L"\u0416").wstring()), "");
}

} // namespace
} // namespace zy::test
