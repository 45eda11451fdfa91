#include "platform/windows/CrashNotes.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/CodePage.h"
#include "platform/windows/MemoryDumps.h"
#include "platform/windows/StateFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// A process that a mistake of its own ends, and whoever comes behind it.
class CrashNotes : public ::testing::Test {
  protected:
    CrashNotes() { fs::remove(Folder() / "crash.txt"); }

    static fs::path Folder() { return OwnFolderIn(UsersLocalFolder()); }
    static void LookAfter() {
        static LastSteps steps;
        steps.Note("mRules", "EditRule");
        LeaveCrashNotes("1.2.3", steps);
    }
    [[noreturn]] static void WriteToNowhere() {
        LookAfter();
        ForbidMemoryDumps();
        auto* volatile nowhere = static_cast<volatile int*>(nullptr);
        *nowhere = 1;
        std::exit(0);
    }
    [[noreturn]] static void Abort() {
        LookAfter();
        std::abort();
    }
    static std::string Note() {
        std::ifstream file(Folder() / "last-crash.txt", std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

TEST_F(CrashNotes, SayWhatEndedTheProgramAndWhatItDidLast) {
    EXPECT_EXIT(WriteToNowhere(), ::testing::ExitedWithCode(static_cast<int>(0xC0000005)), "");
    ASSERT_NE(TakeCrashNote(Windows1252()), std::nullopt);
    EXPECT_THAT(
        Note(),
        StartsWith(
            "zyGlobal 1.2.3\r\nException 0xc0000005\r\nLast steps:\r\nmRules EditRule\r\nStack:\r\n0x"));
    EXPECT_EQ(TakeCrashNote(Windows1252()), std::nullopt) << "it is told of once";
}

TEST_F(CrashNotes, AreLeftWhereTheProgramEndsItself) {
    EXPECT_EXIT(Abort(), ::testing::ExitedWithCode(3), "");
    ASSERT_NE(TakeCrashNote(Windows1252()), std::nullopt);
    EXPECT_THAT(Note(), HasSubstr("0xc0000409"));
}

} // namespace
} // namespace zy::test
