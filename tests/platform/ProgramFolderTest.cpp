#include "platform/windows/ProgramFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/windows/WindowsFileSystem.h"
#include "platform/windows/WindowsSystemInfo.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;

// Letters that no code page of one byte a character has together.
constexpr auto kName = L"\u0141\u00F3d\u017A \u0395\u03BB\u03BB\u03AC\u03B4\u03B1";

/// A folder with such a name and a file in it.
class ProgramFolderTest : public ::testing::Test {
  protected:
    ProgramFolderTest() {
        fs::create_directory(folder.path);
        std::ofstream(fs::path(folder.path) / "zysetup.hlp") << "book";
    }
    std::string HelpFile() const { return InsidePath(folder.path) + R"(\zysetup.hlp)"; }

    TemporaryFolder outer;
    ProgramFolder folder{(outer.Path() / kName).wstring()};
};

TEST_F(ProgramFolderTest, HasAQuestionMarkForEachLetterThatTheCodePageLacks) {
    const auto name = InsidePath(kName);
    EXPECT_EQ(name.size(), std::wstring(kName).size());
    EXPECT_NE(name.find('?'), std::string::npos) << name;
    EXPECT_EQ(name.find('L'), std::string::npos) << "a letter that looks alike names another folder";
    EXPECT_EQ(InsidePath(LR"(C:\Program Files\ZY)"), R"(C:\Program Files\ZY)");
}

TEST_F(ProgramFolderTest, HasItsFilesRead) {
    WindowsFileSystem files(folder);
    const auto opened = files.OpenForReading(HelpFile());
    ASSERT_TRUE(opened.handle);
    EXPECT_EQ(opened.handle->Size(), 4U);
}

TEST_F(ProgramFolderTest, LacksAFileLikeAnyOther) {
    EXPECT_EQ(WindowsFileSystem(folder).OpenForReading(InsidePath(folder.path) + R"(\other.hlp)").error,
              FileError::NotFound);
}

TEST_F(ProgramFolderTest, IsNoneOfThoseWhoseNamesGoOn) {
    EXPECT_EQ(folder.Find(InsidePath(folder.path) + R"(x\zysetup.hlp)"), std::nullopt);
    EXPECT_EQ(folder.Find(InsidePath(folder.path)), std::nullopt);
    EXPECT_EQ(ProgramFolder{}.Find(R"(\zysetup.hlp)"), std::nullopt);
}

TEST_F(ProgramFolderTest, IsTheOneThatTheRunningProgramStandsIn) {
    const WindowsSystemInfo system;
    EXPECT_TRUE(fs::exists(fs::path(system.Folder().path) / "windows_tests.exe"));
    EXPECT_EQ(InsidePath(system.Folder().path), system.ExecutableFolder());
}

} // namespace
} // namespace zy::test
