// Holding a folder against other processes, and behind links.

#include "platform/posix/PosixFolderLock.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>

#include "platform/posix/PosixFileSystem.h"
#include "support/ChildProcess.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;

/// Another process, which asks for a folder and keeps it until it is killed.
class Holder {
  public:
    explicit Holder(const std::string& path) : Holder(path, Pipe()) {}
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;
    ~Holder() { Kill(); }

    /// "held" or "refused"; waits for it.
    std::string Answer() { return answers_.Next().value_or("none"); }

    void Kill() {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
            ::waitpid(std::exchange(process_, 0), nullptr, 0);
        }
    }

  private:
    struct Pipe {
        Pipe() {
            std::array<int, 2> ends{};
            EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
            reader = ends[0];
            writer = ends[1];
        }
        int reader = -1;
        int writer = -1;
    };

    Holder(const std::string& path, Pipe pipe)
        : process_(Start(path, pipe.writer)), answers_(FileDescriptor(pipe.reader)) {
        ::close(pipe.writer);
    }

    static pid_t Start(const std::string& path, int answers) {
        const pid_t process = ::fork();
        if (process == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            Hold(path, answers);
        }
        return process;
    }

    [[noreturn]] static void Hold(const std::string& path, int answers) {
        const auto held = PosixFileSystem(Windows1252()).LockFolderOf(path);
        const std::string answer = held.lock ? "held\n" : "refused\n";
        [[maybe_unused]] const auto written = ::write(answers, answer.data(), answer.size());
        while (true) {
            ::pause();
        }
    }

    pid_t process_;
    LineReader answers_;
};

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
    Holder other(folder.InsidePath("B.SYS"));
    EXPECT_EQ(other.Answer(), "refused");
}

TEST_F(PosixFolderLockTest, IsKeptOutByAnotherProcessAndFreeWhenThatIsKilled) {
    Holder other(folder.InsidePath("a.sys"));
    ASSERT_EQ(other.Answer(), "held");
    EXPECT_EQ(Lock(folder, "a.sys").error, FileError::InUse);
    other.Kill();
    EXPECT_TRUE(Lock(folder, "a.sys").lock);
}

TEST_F(PosixFolderLockTest, WaitsForOneWhoLetsGo) {
    Holder other(folder.InsidePath("a.sys"));
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
