#include "platform/posix/UserFolders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/magic.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include "support/AnotherDisk.h"
#include "support/EnvironmentVariable.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

unsigned Mode(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 0777U : 0U;
}

TEST(EnvironmentTest, GivesTheValueOfAVariable) {
    const EnvironmentVariable set("ZY_TEST", "value");
    EXPECT_EQ(Environment("ZY_TEST"), "value");
}

TEST(EnvironmentTest, GivesNothingForAVariableThatIsNotSet) {
    const EnvironmentVariable unset("ZY_TEST", std::nullopt);
    EXPECT_EQ(Environment("ZY_TEST"), "");
}

TEST(UserDataFolderTest, IsTheOneThatTheEnvironmentNames) {
    const EnvironmentVariable data("XDG_DATA_HOME", "/data");
    EXPECT_EQ(UserDataFolder(), "/data");
}

TEST(UserDataFolderTest, IsInTheHomeFolderWhenTheEnvironmentNamesNone) {
    const EnvironmentVariable home("HOME", "/home/u");
    for (const auto& value : {std::optional<std::string>(), std::optional<std::string>("")}) {
        const EnvironmentVariable data("XDG_DATA_HOME", value);
        EXPECT_EQ(UserDataFolder(), "/home/u/.local/share");
    }
}

TEST(UserDataFolderTest, IsNotTakenFromARelativePath) {
    const EnvironmentVariable data("XDG_DATA_HOME", "data");
    const EnvironmentVariable home("HOME", "/home/u");
    EXPECT_EQ(UserDataFolder(), "/home/u/.local/share");
}

TEST(UserConfigFolderTest, IsTheOneThatTheEnvironmentNamesElseInTheHomeFolder) {
    const EnvironmentVariable home("HOME", "/home/u");
    const EnvironmentVariable config("XDG_CONFIG_HOME", "/config");
    EXPECT_EQ(UserConfigFolder(), "/config");
    const EnvironmentVariable relative("XDG_CONFIG_HOME", "config");
    EXPECT_EQ(UserConfigFolder(), "/home/u/.config");
    const EnvironmentVariable unset("XDG_CONFIG_HOME", std::nullopt);
    EXPECT_EQ(UserConfigFolder(), "/home/u/.config");
}

TEST(UserStateFolderTest, IsTheOneThatTheEnvironmentNamesElseInTheHomeFolder) {
    const EnvironmentVariable home("HOME", "/home/u");
    const EnvironmentVariable state("XDG_STATE_HOME", "/state");
    EXPECT_EQ(UserStateFolder(), "/state");
    const EnvironmentVariable relative("XDG_STATE_HOME", "state");
    EXPECT_EQ(UserStateFolder(), "/home/u/.local/state");
    const EnvironmentVariable unset("XDG_STATE_HOME", std::nullopt);
    EXPECT_EQ(UserStateFolder(), "/home/u/.local/state");
}

TEST(OwnFolderInTest, IsCalledAsTheProductAndIsNoneInNone) {
    EXPECT_EQ(OwnFolderIn("/home/u/.local/state"), "/home/u/.local/state/zysetup");
    EXPECT_EQ(OwnFolderIn(""), "");
}

/// The folder for what must reach no disk, when the environment names this one.
std::string RuntimeFolderOf(const std::optional<std::string>& named) {
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", named);
    return UserRuntimeFolder();
}

TEST(UserRuntimeFolderTest, IsTheOneInMemoryThatTheEnvironmentNames) {
    const TemporaryFolder memory(kAnotherDisk);
    EXPECT_EQ(RuntimeFolderOf(memory.Path()), memory.Path());
}

TEST(UserRuntimeFolderTest, IsNoneWhereTheEnvironmentNamesNone) {
    const TemporaryFolder memory(kAnotherDisk);
    memory.Put("file", "");
    std::filesystem::permissions(memory.Path("file"), std::filesystem::perms{0700});
    for (const auto& named : {std::optional<std::string>(), std::optional<std::string>(""),
                              std::optional(memory.Path("missing")), std::optional(memory.Path("file"))}) {
        EXPECT_EQ(RuntimeFolderOf(named), "") << named.value_or("unset");
    }
}

TEST(UserRuntimeFolderTest, IsNoneFromARelativePathThatLeadsToOne) {
    const TemporaryFolder memory(kAnotherDisk);
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(memory.Path());
    EXPECT_EQ(RuntimeFolderOf("."), "");
    std::filesystem::current_path(before);
}

TEST(UserRuntimeFolderTest, IsNoneThatOthersMayDoAnythingWith) {
    const TemporaryFolder memory(kAnotherDisk);
    for (const unsigned mode : {0710U, 0701U, 0740U, 0702U, 01777U}) {
        std::filesystem::permissions(memory.Path(), std::filesystem::perms{mode});
        EXPECT_EQ(RuntimeFolderOf(memory.Path()), "") << std::oct << mode;
    }
}

TEST(UserRuntimeFolderTest, IsNoneThatBelongsToSomebodyElse) {
    const TemporaryFolder memory(kAnotherDisk);
    if (::chown(memory.Path().c_str(), ::geteuid() + 1, ::getegid()) != 0) {
        GTEST_SKIP() << "The user of this test may not give a folder away.";
    }
    EXPECT_EQ(RuntimeFolderOf(memory.Path()), "");
}

TEST(UserRuntimeFolderTest, IsNoneOnADisk) {
    const TemporaryFolder folder;
    struct statfs disk {};
    ASSERT_EQ(::statfs(folder.Path().c_str(), &disk), 0);
    if (disk.f_type == TMPFS_MAGIC) {
        GTEST_SKIP() << "The temporary files of this system lie in memory.";
    }
    EXPECT_EQ(RuntimeFolderOf(folder.Path()), "");
}

TEST(UserDataFolderTest, IsFoundThroughTheUserDatabaseWithoutAHomeInTheEnvironment) {
    const EnvironmentVariable data("XDG_DATA_HOME", std::nullopt);
    const EnvironmentVariable home("HOME", std::nullopt);
    const passwd* entry = ::getpwuid(::geteuid());
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(UserDataFolder(), std::string(entry->pw_dir) + "/.local/share");
}

TEST(MakeFoldersTest, MakesEveryFolderThatIsMissingForTheUserAlone) {
    const TemporaryFolder folder;
    EXPECT_EQ(MakeFolders(folder.Path("a/b/c")), FileError::None);
    EXPECT_EQ(Mode(folder.Path("a")), 0700U);
    EXPECT_EQ(Mode(folder.Path("a/b")), 0700U);
    EXPECT_EQ(Mode(folder.Path("a/b/c")), 0700U);
}

TEST(MakeFoldersTest, LeavesFoldersThatExistAsTheyAre) {
    const TemporaryFolder folder;
    folder.AddFolder("a");
    std::filesystem::permissions(folder.Path("a"), std::filesystem::perms{0755});
    EXPECT_EQ(MakeFolders(folder.Path("a")), FileError::None);
    EXPECT_EQ(Mode(folder.Path("a")), 0755U);
}

TEST(MakeFoldersTest, SaysThatAFileIsInTheWay) {
    const TemporaryFolder folder;
    folder.Put("a", "");
    EXPECT_EQ(MakeFolders(folder.Path("a")), FileError::Exists);
    EXPECT_EQ(MakeFolders(folder.Path("a/b/c")), FileError::Exists);
}

TEST(MakeFoldersTest, SaysThatTheUserMayMakeNoneThere) {
    const TemporaryFolder folder;
    const OrdinaryUser user(folder.Path());
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0500});
    EXPECT_EQ(MakeFolders(folder.Path("a/b")), FileError::AccessDenied);
}

TEST(MakeFoldersTest, SaysThatThereIsNoPathToMake) {
    EXPECT_EQ(MakeFolders(""), FileError::NotFound);
}

} // namespace
} // namespace zy::test
