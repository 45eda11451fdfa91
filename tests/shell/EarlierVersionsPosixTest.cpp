// Who gets at earlier versions on Linux, and what links in their place lead to.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "platform/memory/MemorySystemInfo.h"
#include "platform/posix/PosixWorld.h"
#include "shell/EarlierVersions.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Optional;
using ::testing::SizeIs;
using namespace std::chrono_literals;
using namespace std::string_literals;

constexpr const char* kArguments[] = {"zyGlobal", "@UNITS"};
constexpr auto kName = "20261122T000000Z";

class EarlierVersionsPosix : public ::testing::Test {
  protected:
    EarlierVersionsPosix() {
        clock.SetStateFolder(world.system.StateFolder());
        clock.SetNow(std::chrono::sys_days(2026y / 11 / 22));
    }

    /// The folder of the versions in the system.
    std::string Folder() const {
        for (const auto& entry : fs::recursive_directory_iterator(Backups())) {
            if (entry.path().filename() == "ZYUNITS.SYS") {
                return entry.path().string();
            }
        }
        return "<none>";
    }
    std::string Backups() const { return folder.Path("My State/zysetup/backups"); }
    static unsigned Mode(const std::string& path) {
        struct stat status {};
        return ::lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0U;
    }
    FileError Keep(std::string_view bytes) { return versions.Keep(path, bytes); }
    void KeepMany(int count) {
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(Keep(std::to_string(i)), FileError::None);
        }
    }

    TemporaryFolder folder;
    EnvironmentVariable state{"XDG_STATE_HOME", folder.Path("My State")};
    EnvironmentVariable settings{"ZYSETUP_SYSTEM_DIR", folder.Path().string()};
    PosixWorld world{2, kArguments};
    MemorySystemInfo clock;
    EarlierVersions versions{world.files, world.journals, clock};
    std::string path = folder.InsidePath("ZYUNITS.SYS");
};

TEST_F(EarlierVersionsPosix, AreTheUsersAlone) {
    EXPECT_EQ(Keep("bytes"), FileError::None);
    EXPECT_EQ(Mode(Folder() + '/' + kName), 0600U);
    for (fs::path at = Folder(); at != folder.Path(); at = at.parent_path()) {
        EXPECT_EQ(Mode(at.string()), 0700U) << at;
    }
    EXPECT_THAT(fs::path(Folder()).parent_path().filename().string(), MatchesRegex("[0-9a-f]{16}"));
}

TEST_F(EarlierVersionsPosix, LieInFoldersThatOthersAreShutOutOfAgain) {
    EXPECT_EQ(Keep("bytes"), FileError::None);
    fs::permissions(Backups(), fs::perms{0777});
    EXPECT_THAT(versions.Of(path), SizeIs(1));
    EXPECT_EQ(Mode(Backups()), 0700U);
}

TEST_F(EarlierVersionsPosix, AreNoneBehindALinkInPlaceOfOneOfTheirFolders) {
    KeepMany(22);
    const auto kept = Folder();
    for (const auto& linked : {kept, fs::path(kept).parent_path().string(), Backups()}) {
        const auto aside = folder.Path("aside");
        fs::rename(linked, aside);
        fs::create_directory_symlink(aside, linked);
        EXPECT_EQ(Keep("one more"), FileError::AccessDenied) << linked;
        EXPECT_THAT(versions.Of(path), IsEmpty()) << linked;
        versions.Prune(path);
        fs::remove(linked);
        fs::rename(aside, linked);
        EXPECT_THAT(versions.Of(path), SizeIs(22)) << linked;
    }
}

TEST_F(EarlierVersionsPosix, AreNoneInAFolderOfSomebodyElse) {
    EXPECT_EQ(Keep("bytes"), FileError::None);
    if (::chown(Backups().c_str(), ::geteuid() + 1, ::getegid()) != 0) {
        GTEST_SKIP() << "The user of this test may not give a folder away.";
    }
    EXPECT_EQ(Keep("one more"), FileError::AccessDenied);
    EXPECT_THAT(versions.Of(path), IsEmpty());
}

TEST_F(EarlierVersionsPosix, AreNoLinksThatBearTheNameOfOne) {
    KeepMany(20);
    folder.Put("target", "another's");
    const auto link = Folder() + "/20200101T000000Z";
    fs::create_symlink(folder.Path("target"), link);
    EXPECT_EQ(Keep("one more"), FileError::None);
    EXPECT_THAT(versions.Of(path), SizeIs(21));
    versions.Prune(path);
    EXPECT_THAT(versions.Of(path), SizeIs(20));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_THAT(folder.Get("target"), Optional("another's"s));
}

TEST_F(EarlierVersionsPosix, LeaveAFileAloneThatALinkLeadsToFromTheirPlace) {
    EXPECT_EQ(Keep("bytes"), FileError::None);
    folder.Put("target", "another's");
    std::ofstream(Folder() + "/unfinished~") << "another's";
    for (const char* name : {"20261122T000001Z", "unfinished"}) {
        const auto link = Folder() + '/' + name;
        fs::create_symlink(folder.Path("target"), link);
        EXPECT_EQ(Keep("one more"), FileError::Exists) << name;
        EXPECT_THAT(folder.Get("target"), Optional("another's"s)) << name;
        EXPECT_TRUE(fs::is_symlink(link)) << name;
        fs::remove(link);
    }
    EXPECT_THAT(versions.Of(path), SizeIs(1));
    EXPECT_FALSE(fs::exists(Folder() + "/unfinished"));
}

} // namespace
} // namespace zy::test
