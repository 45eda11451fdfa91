// What the file system promises on Windows, beyond what every file system does.

#include "platform/windows/WindowsFileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <fstream>
#include <string>

#include "WindowsPermissions.h"
#include "platform/windows/FilePermissions.h"
#include "support/TemporaryFolder.h"
#include "support/WindowsHandles.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;
using namespace std::string_literals;

class WindowsFileSystemTest : public ::testing::Test {
  protected:
    std::string Path(std::string_view name) { return folder.InsidePath(name); }

    /// As another program opens it, which shares nothing but what is said.
    WindowsHandle OpenAside(std::string_view name, DWORD access, DWORD share) {
        return WindowsHandle(
            ::CreateFileA(Path(name).c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr));
    }
    void SetAttribute(std::string_view name, DWORD attribute) {
        ASSERT_NE(::SetFileAttributesA(Path(name).c_str(), attribute), FALSE);
    }

    TemporaryFolder folder;
    WindowsFileSystem files;
};

// Finding

TEST_F(WindowsFileSystemTest, FindsNoFileThatIsHiddenOrTheSystems) {
    for (const auto attribute : std::array<DWORD, 2>{FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_SYSTEM}) {
        folder.Put("a.sys", "");
        SetAttribute("a.sys", attribute);
        if ((::GetFileAttributesA(Path("a.sys").c_str()) & attribute) == 0) {
            GTEST_SKIP() << "This disk keeps no such attribute.";
        }
        EXPECT_FALSE(files.Exists(Path("a.sys")));
        EXPECT_EQ(files.OpenForReading(Path("a.sys")).error, FileError::None);
        SetAttribute("a.sys", FILE_ATTRIBUTE_NORMAL);
        EXPECT_TRUE(files.Exists(Path("a.sys")));
    }
}

TEST_F(WindowsFileSystemTest, TakesNoNameForAPattern) {
    folder.Put("ZYRules.sys", "");
    for (const char* pattern : {"*", "*.sys", "ZYRules.s?s", "ZYRules.<", "ZYRule>.sys", "ZYRules\"sys"}) {
        EXPECT_FALSE(files.Exists(Path(pattern))) << pattern;
        EXPECT_EQ(files.OpenForReading(Path(pattern)).error, FileError::NotFound) << pattern;
        EXPECT_NE(files.Delete(Path(pattern)), FileError::None) << pattern;
    }
    EXPECT_THAT(folder.Names(), ElementsAre("ZYRules.sys"));
}

TEST_F(WindowsFileSystemTest, FindsAFileByAPathOfTheSystemThatHasNoDrive) {
    folder.Put("a.sys", "");
    char before[MAX_PATH] = "";
    ::GetCurrentDirectoryA(MAX_PATH, before);
    ::SetCurrentDirectoryA(folder.InsidePath().c_str());
    EXPECT_TRUE(files.Exists(Path("a.sys").substr(2)));
    EXPECT_FALSE(files.Exists("a.sys"));
    EXPECT_FALSE(files.Exists(Path("a.sys").substr(0, 2) + "a.sys"));
    ::SetCurrentDirectoryA(before);
}

// Sharing

TEST_F(WindowsFileSystemTest, LetsOthersWriteToAFileThatItReads) {
    folder.Put("a.sys", "old");
    const auto opened = files.OpenForReading(Path("a.sys"));
    ASSERT_TRUE(opened.handle);
    EXPECT_TRUE(OpenAside("a.sys", GENERIC_WRITE, FILE_SHARE_READ));
}

TEST_F(WindowsFileSystemTest, LetsOthersWriteToAFileThatItWrites) {
    const auto created = files.Create(Path("a.sys"));
    ASSERT_TRUE(created.handle);
    EXPECT_TRUE(OpenAside("a.sys", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE));
}

TEST_F(WindowsFileSystemTest, SaysWhenAnotherProgramHoldsAFile) {
    folder.Put("a.sys", "held");
    const auto held = OpenAside("a.sys", GENERIC_READ, 0);
    ASSERT_TRUE(held);
    EXPECT_TRUE(files.Exists(Path("a.sys")));
    EXPECT_EQ(files.OpenForReading(Path("a.sys")).error, FileError::InUse);
    EXPECT_EQ(files.Create(Path("a.sys")).error, FileError::InUse);
    EXPECT_EQ(files.Delete(Path("a.sys")), FileError::InUse);
    EXPECT_EQ(files.Rename(Path("a.sys"), Path("b.sys")), FileError::InUse);
    EXPECT_EQ(files.MayReplace(Path("a.sys")), FileError::InUse);
    EXPECT_EQ(files.MayOverwrite(Path("a.sys")), FileError::InUse);
    EXPECT_THAT(folder.Names(), ElementsAre("a.sys"));
}

TEST_F(WindowsFileSystemTest, DeletesAndRenamesNoFileThatItStillHasOpen) {
    const auto created = files.Create(Path("a.sys"));
    ASSERT_TRUE(created.handle);
    EXPECT_EQ(files.Delete(Path("a.sys")), FileError::InUse);
    EXPECT_EQ(files.Rename(Path("a.sys"), Path("b.sys")), FileError::InUse);
    EXPECT_EQ(created.handle->Close(), FileError::None);
    EXPECT_EQ(files.Rename(Path("a.sys"), Path("b.sys")), FileError::None);
    EXPECT_EQ(files.Delete(Path("b.sys")), FileError::None);
}

TEST_F(WindowsFileSystemTest, SaysThatAFileMayNotBeReplacedThatAnotherProgramReads) {
    folder.Put("a.sys", "read");
    const auto read = OpenAside("a.sys", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    ASSERT_TRUE(read);
    EXPECT_EQ(files.MayReplace(Path("a.sys")), FileError::InUse);
    EXPECT_EQ(files.MayOverwrite(Path("a.sys")), FileError::None);
}

TEST_F(WindowsFileSystemTest, ClosesTheFileOfAHandleThatGoes) {
    files.Create(Path("a.sys"));
    EXPECT_TRUE(OpenAside("a.sys", GENERIC_READ, 0));
}

// What is no file

TEST_F(WindowsFileSystemTest, RefusesADevice) {
    constexpr auto kNull = R"(\\.\NUL)";
    const WindowsHandle null(::CreateFileA(kNull, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                           OPEN_EXISTING, 0, nullptr));
    if (::GetFileType(null.Get()) == FILE_TYPE_DISK) {
        GTEST_SKIP() << "This system takes its null device for a file.";
    }
    EXPECT_EQ(files.OpenForReading(kNull).error, FileError::Other);
    EXPECT_EQ(files.Create(kNull).error, FileError::Other);
    EXPECT_FALSE(files.Exists(kNull));
}

TEST_F(WindowsFileSystemTest, RefusesAPipe) {
    const auto* name = R"(\\.\pipe\zyGlobal tests)";
    const WindowsHandle pipe(
        ::CreateNamedPipeA(name, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE | PIPE_NOWAIT, 1, 0, 0, 0, nullptr));
    ASSERT_TRUE(pipe);
    EXPECT_EQ(files.OpenForReading(name).error, FileError::Other);
}

// Files that may not be written

TEST_F(WindowsFileSystemTest, ReadsAFileThatIsWriteProtectedAndDoesNotDeleteIt) {
    folder.Put("a.sys", "kept");
    SetAttribute("a.sys", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(files.OpenForReading(Path("a.sys")).error, FileError::None);
    EXPECT_EQ(files.Delete(Path("a.sys")), FileError::ReadOnly);
    EXPECT_THAT(folder.Get("a.sys"), Optional("kept"s));
    SetAttribute("a.sys", FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFileSystemTest, EmptiesNoFileThatIsWriteProtected) {
    folder.Put("a.sys", "kept");
    SetAttribute("a.sys", FILE_ATTRIBUTE_READONLY);
    const bool bound = !OpenAside("a.sys", GENERIC_WRITE, FILE_SHARE_READ);
    const auto error = bound ? files.Create(Path("a.sys")).error : FileError::None;
    SetAttribute("a.sys", FILE_ATTRIBUTE_NORMAL);
    if (!bound) {
        GTEST_SKIP() << "The attribute does not bind the user of this test.";
    }
    EXPECT_EQ(error, FileError::ReadOnly);
    EXPECT_THAT(folder.Get("a.sys"), Optional("kept"s));
}

TEST_F(WindowsFileSystemTest, GivesAFileForItsOwnerToTheUserAndNobodyElse) {
    const PermissionsForTheUserAlone permissions;
    ASSERT_NE(permissions.Get(), nullptr);
    const auto user = UserOfTheTests();
    EXPECT_EQ(DescriptorText(permissions.Get()), "O:" + user + "D:P(A;;FA;;;" + user + ")");
}

TEST_F(WindowsFileSystemTest, CopiesPermissionsToAFileThatIsOpenElsewhere) {
    folder.Put("a.sys", "");
    folder.Put("b.sys", "");
    ASSERT_TRUE(SetAccess(Path("a.sys"), "SDFRFW", "FR"));
    const auto open = OpenAside("b.sys", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_EQ(files.CopyPermissions(Path("a.sys"), Path("b.sys")), FileError::None);
    EXPECT_THAT(AccessFigures(Path("b.sys")), Optional(0604U));
}

// Folders for the user alone

TEST_F(WindowsFileSystemTest, GivesAFolderToTheUserAndNobodyElse) {
    constexpr unsigned kReadWriteForOwner = 0600;
    EXPECT_EQ(files.MakePrivateFolder(Path(R"(new\deep)")), FileError::None);
    EXPECT_EQ(AccessFigures(Path("new")), kReadWriteForOwner);
    EXPECT_EQ(AccessFigures(Path(R"(new\deep)")), kReadWriteForOwner);
    folder.AddFolder("old");
    ASSERT_TRUE(SetAccess(Path("old"), "FRFWFX", "FRFX"));
    EXPECT_EQ(files.MakePrivateFolder(Path("old")), FileError::None);
    EXPECT_EQ(AccessFigures(Path("old")), kReadWriteForOwner);
}

TEST_F(WindowsFileSystemTest, TakesNoLinkForAFolderOfTheUsersOwn) {
    folder.AddFolder("target");
    const auto link = folder.Path() / "link";
    ::CreateSymbolicLinkW(link.c_str(), (folder.Path() / "target").c_str(), SYMBOLIC_LINK_FLAG_DIRECTORY);
    const auto attributes = ::GetFileAttributesW(link.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        GTEST_SKIP() << "The user of this test may make no links, or the system has none.";
    }
    EXPECT_EQ(files.MakePrivateFolder(Path("link")), FileError::AccessDenied);
}

TEST_F(WindowsFileSystemTest, ListsNoFileWhoseNameTheCodePageLacks) {
    folder.Put("a.sys", "12345");
    for (const wchar_t* name : {L"\u0416.sys", L"\u0100.sys"}) { // the second has a letter much like it
        std::ofstream(folder.Path() / name) << "x";
    }
    const auto found = files.FilesIn(folder.InsidePath());
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().name, "a.sys");
    EXPECT_EQ(found.front().size, 5U);
}

// Large and long

TEST_F(WindowsFileSystemTest, ReportsANameThatIsTooLong) {
    const auto path = Path(std::string(300, 'a'));
    EXPECT_FALSE(files.Exists(path));
    EXPECT_NE(files.OpenForReading(path).error, FileError::None);
    EXPECT_NE(files.Create(path).error, FileError::None);
    EXPECT_NE(files.Delete(path), FileError::None);
}

TEST_F(WindowsFileSystemTest, WritesAndReadsManyBytes) {
    const std::string bytes(5000000, 'x');
    const auto written = files.Create(Path("a.sys")).handle;
    EXPECT_EQ(written->Write(bytes), FileError::None);
    EXPECT_EQ(written->Close(), FileError::None);
    std::string read(bytes.size() + 1, '\0');
    const auto count = files.OpenForReading(Path("a.sys")).handle->Read(read);
    EXPECT_EQ(count, bytes.size());
    EXPECT_EQ(read.substr(0, count), bytes);
}

TEST_F(WindowsFileSystemTest, WritesNamesInTheCodePageOfTheSystem) {
    files.Create(Path("\xE4.sys"));
    wchar_t wide[2] = {};
    ::MultiByteToWideChar(CP_ACP, 0, "\xE4", 1, wide, 1);
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / (std::wstring(wide) + L".sys")));
}

} // namespace
} // namespace zy::test
