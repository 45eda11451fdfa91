#include "platform/windows/WindowsRecycleBin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "WindowsRecycledFiles.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::string_literals;

class WindowsRecycleBinTest : public ::testing::Test {
  protected:
    TemporaryFolder folder;
    WindowsRecycledFiles recycled;
    WindowsRecycleBin bin;
};

TEST_F(WindowsRecycleBinTest, TakesNoNameForAPattern) {
    folder.Put("a.dbf", "users");
    EXPECT_NE(bin.Delete(folder.InsidePath("*.dbf") + "\0\0"s), 0);
    EXPECT_NE(bin.Delete(folder.InsidePath("?.dbf") + "\0\0"s), 0);
    EXPECT_THAT(folder.Names(), ElementsAre("a.dbf"));
}

TEST_F(WindowsRecycleBinTest, TakesASlashForABackslash) {
    folder.Put("a.dbf", "users");
    EXPECT_EQ(bin.Delete(folder.InsidePath() + "//a.dbf\0\0"s), 0);
    EXPECT_THAT(recycled.Bytes(), ElementsAre("users"));
}

TEST_F(WindowsRecycleBinTest, RecyclesNothingFromTheCurrentFolder) {
    folder.Put("a.dbf", "users");
    char before[MAX_PATH] = "";
    ::GetCurrentDirectoryA(MAX_PATH, before);
    ::SetCurrentDirectoryA(folder.InsidePath().c_str());
    EXPECT_NE(bin.Delete("a.dbf\0\0"s), 0);
    ::SetCurrentDirectoryA(before);
    EXPECT_THAT(recycled.Bytes(), IsEmpty());
}

TEST_F(WindowsRecycleBinTest, RecyclesAFileThatIsHidden) {
    folder.Put("a.dbf", "users");
    ::SetFileAttributesA(folder.InsidePath("a.dbf").c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(bin.Delete(folder.InsidePath("a.dbf") + "\0\0"s), 0);
    EXPECT_THAT(recycled.Bytes(), ElementsAre("users"));
}

} // namespace
} // namespace zy::test
