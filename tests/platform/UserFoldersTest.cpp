#include "platform/posix/UserFolders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/EnvironmentVariable.h"
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

TEST(UserDataFolderTest, IsFoundThroughTheUserDatabaseWithoutAHomeInTheEnvironment) {
    const EnvironmentVariable data("XDG_DATA_HOME", std::nullopt);
    const EnvironmentVariable home("HOME", std::nullopt);
    const passwd* entry = ::getpwuid(::geteuid());
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(UserDataFolder(), std::string(entry->pw_dir) + "/.local/share");
}

TEST(MakeFoldersTest, MakesEveryFolderThatIsMissingForTheUserAlone) {
    const TemporaryFolder folder;
    EXPECT_TRUE(MakeFolders(folder.Path("a/b/c")));
    EXPECT_EQ(Mode(folder.Path("a")), 0700U);
    EXPECT_EQ(Mode(folder.Path("a/b")), 0700U);
    EXPECT_EQ(Mode(folder.Path("a/b/c")), 0700U);
}

TEST(MakeFoldersTest, LeavesFoldersThatExistAsTheyAre) {
    const TemporaryFolder folder;
    folder.AddFolder("a");
    std::filesystem::permissions(folder.Path("a"), std::filesystem::perms{0755});
    EXPECT_TRUE(MakeFolders(folder.Path("a")));
    EXPECT_EQ(Mode(folder.Path("a")), 0755U);
}

TEST(MakeFoldersTest, FailsWhereAFileIsInTheWay) {
    const TemporaryFolder folder;
    folder.Put("a", "");
    EXPECT_FALSE(MakeFolders(folder.Path("a")));
    EXPECT_FALSE(MakeFolders(folder.Path("a/b")));
}

} // namespace
} // namespace zy::test
