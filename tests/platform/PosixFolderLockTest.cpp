// Holding a folder against other processes, and behind links.

#include "platform/posix/PosixFolderLock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "OtherProcess.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/ChildProcess.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;

/// Another process, which asks for a folder and keeps it until it is killed. It tells "held" or "refused".
OtherProcess Holder(const std::string& path) {
    return OtherProcess([&](const OtherProcess::Tell& tell) {
        const auto held = PosixFileSystem(Windows1252()).LockFolderOf(path);
        tell(held.lock ? "held" : "refused");
        OtherProcess::StayAlive();
    });
}

class PosixFolderLockTest : public ::testing::Test {
  protected:
    LockedFolder Lock(const TemporaryFolder& which, std::string_view name) {
        return files.LockFolderOf(which.InsidePath(name));
    }

    TemporaryFolder folder;
    PosixFileSystem files{Windows1252()};
};

TEST_F(PosixFolderLockTest, KeepsAnotherProcessOut) {
    const auto held = Lock(folder, "a.sys");
    ASSERT_TRUE(held.lock);
    auto other = Holder(folder.InsidePath("B.SYS"));
    EXPECT_EQ(other.Answer(), "refused");
}

TEST_F(PosixFolderLockTest, IsKeptOutByAnotherProcessAndFreeWhenThatIsKilled) {
    auto other = Holder(folder.InsidePath("a.sys"));
    ASSERT_EQ(other.Answer(), "held");
    EXPECT_EQ(Lock(folder, "a.sys").error, FileError::InUse);
    other.Kill();
    EXPECT_TRUE(Lock(folder, "a.sys").lock);
}

TEST_F(PosixFolderLockTest, WaitsForOneWhoLetsGo) {
    auto other = Holder(folder.InsidePath("a.sys"));
    ASSERT_EQ(other.Answer(), "held");
    std::thread release([&other] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        other.Kill();
    });
    EXPECT_TRUE(Lock(folder, "a.sys").lock);
    release.join();
}

TEST_F(PosixFolderLockTest, StaysWithTheProcessThatHoldsItNotWithProgramsThatItStarts) {
    auto held = Lock(folder, "a.sys");
    const ChildProcess started({"sleep", "60"});
    held.lock.reset();
    EXPECT_TRUE(Lock(folder, "a.sys").lock);
}

TEST_F(PosixFolderLockTest, HoldsTheFolderThatTheFileReallyStandsIn) {
    const TemporaryFolder shared;
    shared.Put("shared.sys", "");
    fs::create_symlink(shared.Path("shared.sys"), folder.Path("link.sys"));
    fs::create_symlink(shared.Path("new.sys"), folder.Path("nowhere.sys"));
    for (const char* link : {"link.sys", "nowhere.sys"}) {
        const auto held = Lock(folder, link);
        EXPECT_TRUE(held.lock) << link;
        EXPECT_EQ(Lock(shared, "shared.sys").error, FileError::InUse) << link;
        EXPECT_TRUE(Lock(folder, "own.sys").lock) << link;
    }
}

TEST_F(PosixFolderLockTest, HoldsAFolderByWhicheverPathItIsReached) {
    const TemporaryFolder other;
    fs::create_directory_symlink(folder.Path(), other.Path("link"));
    const auto held = Lock(folder, "a.sys");
    EXPECT_EQ(Lock(other, R"(link\a.sys)").error, FileError::InUse);
}

TEST_F(PosixFolderLockTest, LeavesNothingInTheFolder) {
    Lock(folder, "a.sys");
    const auto held = Lock(folder, "a.sys");
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST_F(PosixFolderLockTest, NeitherHoldsNorComplainsOfAFolderThatCannotBeOpened) {
    fs::permissions(folder.Path(), fs::perms{0311});
    const OrdinaryUser user(folder.Path());
    const auto held = Lock(folder, "a.sys");
    EXPECT_FALSE(held.lock);
    EXPECT_EQ(held.error, FileError::None);
}

TEST_F(PosixFolderLockTest, HoldsAFolderThatMayNotBeChanged) {
    fs::permissions(folder.Path(), fs::perms{0555});
    const OrdinaryUser user(folder.Path());
    EXPECT_TRUE(Lock(folder, "a.sys").lock);
}

TEST_F(PosixFolderLockTest, NeitherHoldsNorComplainsWhereLinksLeadInACircle) {
    fs::create_symlink("link.sys", folder.Path("link.sys"));
    const auto held = Lock(folder, "link.sys");
    EXPECT_FALSE(held.lock);
    EXPECT_EQ(held.error, FileError::None);
}

} // namespace
} // namespace zy::test
