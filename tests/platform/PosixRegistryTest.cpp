#include "platform/posix/PosixRegistry.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "support/EnvironmentVariable.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::Optional;

constexpr auto kKey = R"(software\a\Window)";
constexpr auto kFile = "zysetup/registry.ini";
constexpr std::size_t kRoom = 260;

/// The registry's file in a folder for settings of its own.
class PosixRegistryTest : public ::testing::Test {
  protected:
    bool Set(const std::string& name, const std::string& text) {
        const auto key = registry.Create(kKey);
        if (!key) {
            return false;
        }
        key->SetText(name, text);
        return key->Close();
    }
    std::optional<std::string> Query(const std::string& name) {
        const auto key = registry.Open(kKey);
        return key ? key->QueryText(name, kRoom) : std::nullopt;
    }
    void PutFile(const std::string& text) const {
        fs::create_directories(folder.Path("zysetup"));
        folder.Put(kFile, text);
    }

    TemporaryFolder folder;
    EnvironmentVariable config{"XDG_CONFIG_HOME", folder.Path().string()};
    PosixRegistry registry{Windows1252()};
};

TEST_F(PosixRegistryTest, IsAKeyFileThatAPersonCanRead) {
    EXPECT_TRUE(Set("Top", "15"));
    EXPECT_THAT(folder.Get(kFile), Optional(std::string("[software\\a\\Window]\nTop=15\n")));
}

TEST_F(PosixRegistryTest, KeepsWhatElseStandsInTheFile) {
    PutFile("# mine\n[other]\nTop=1\n\n[software\\a\\Window]\nLeft=2\n");
    EXPECT_TRUE(Set("Top", "15"));
    EXPECT_THAT(folder.Get(kFile), Optional(std::string("# mine\n\n[other]\nTop=1\n\n[software\\a\\Window]\n"
                                                        "Left=2\nTop=15\n")));
}

TEST_F(PosixRegistryTest, HasNoKeysInAFileThatIsDamaged) {
    for (const auto* text :
         {"[software\\a\\Window", "Top=1\n", "\x01\x02\x03", "[software\\a\\Window]\nTop"}) {
        SCOPED_TRACE(text);
        PutFile(text);
        EXPECT_FALSE(registry.Open(kKey));
    }
}

TEST_F(PosixRegistryTest, MovesADamagedFileAsideBeforeItWritesANewOne) {
    PutFile("[software\\a\\Win");
    EXPECT_TRUE(Set("Top", "15"));
    EXPECT_THAT(folder.Get("zysetup/registry.ini.damaged"), Optional(std::string("[software\\a\\Win")));
    EXPECT_THAT(Query("Top"), Optional(std::string("15")));
}

TEST_F(PosixRegistryTest, HasNoValueWhereTheFileHoldsNoTextOfTheCodePage) {
    PutFile("[software\\a\\Window]\nTop=\xC3\xA4\nLeft=\xE2\x98\x83\nWidth=\xFF\n");
    EXPECT_THAT(Query("Top"), Optional(std::string("\xE4")));
    EXPECT_EQ(Query("Left"), std::nullopt);
    EXPECT_EQ(Query("Width"), std::nullopt);
}

TEST_F(PosixRegistryTest, LeavesAFileAloneThatItMayNotRead) {
    PutFile("[software\\a\\Window]\nTop=1\n");
    const OrdinaryUser user(folder.Path());
    fs::permissions(folder.Path(kFile), fs::perms::none);
    EXPECT_FALSE(registry.Open(kKey));
    EXPECT_FALSE(Set("Top", "15"));
    fs::permissions(folder.Path(kFile), fs::perms::owner_all);
    EXPECT_THAT(folder.Get(kFile), Optional(std::string("[software\\a\\Window]\nTop=1\n")));
}

TEST_F(PosixRegistryTest, StoresNothingInAFolderThatItMayNotWrite) {
    PutFile("[software\\a\\Window]\nTop=1\n");
    const OrdinaryUser user(folder.Path());
    fs::permissions(folder.Path("zysetup"), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_THAT(Query("Top"), Optional(std::string("1")));
    EXPECT_FALSE(Set("Top", "15"));
    const auto key = registry.Open(kKey);
    key->SetText("Top", "15");
    EXPECT_FALSE(key->Close());
    fs::permissions(folder.Path("zysetup"), fs::perms::owner_all);
    EXPECT_THAT(Query("Top"), Optional(std::string("1")));
}

TEST_F(PosixRegistryTest, KeepsTheOldFileWhenTheDiskIsFull) {
    PutFile("[software\\a\\Window]\nTop=1\n");
    const FileSizeLimit limit(4);
    EXPECT_FALSE(Set("Top", "15"));
    EXPECT_THAT(Query("Top"), Optional(std::string("1")));
}

TEST_F(PosixRegistryTest, TakesAFolderOfItsNameForADamagedFile) {
    fs::create_directories(folder.Path(kFile));
    EXPECT_FALSE(registry.Open(kKey));
    EXPECT_TRUE(Set("Top", "15"));
    EXPECT_TRUE(fs::is_directory(folder.Path("zysetup/registry.ini.damaged")));
    EXPECT_FALSE(fs::is_directory(folder.Path(kFile)));
}

TEST_F(PosixRegistryTest, HasNoKeysForAUserWithoutAFolderForSettings) {
    const EnvironmentVariable none("XDG_CONFIG_HOME", folder.Path("file"));
    folder.Put("file", "a file, no folder");
    EXPECT_FALSE(registry.Open(kKey));
    EXPECT_FALSE(registry.Create(kKey));
}

TEST_F(PosixRegistryTest, DoesNotWaitLongForAProgramThatKeepsTheLock) {
    EXPECT_TRUE(Set("Top", "1"));
    const int lock = ::open(folder.Path("zysetup/registry.ini.lock").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    EXPECT_FALSE(Set("Top", "15"));
    ::close(lock);
    EXPECT_TRUE(Set("Top", "15"));
}

TEST_F(PosixRegistryTest, LosesNothingWhenManyStoreAtOnce) {
    constexpr int kWriters = 8;
    std::vector<std::thread> writers;
    for (int i = 0; i < kWriters; ++i) {
        writers.emplace_back([i] {
            PosixRegistry own(Windows1252());
            const auto key = own.Create(kKey);
            key->SetText("Value" + std::to_string(i), std::to_string(i));
            key->SetText("Last", std::to_string(i));
            key->SetText("Again", std::to_string(i));
            EXPECT_TRUE(key->Close());
        });
    }
    for (auto& writer : writers) {
        writer.join();
    }
    for (int i = 0; i < kWriters; ++i) {
        EXPECT_THAT(Query("Value" + std::to_string(i)), Optional(std::to_string(i)));
    }
    EXPECT_EQ(Query("Last"), Query("Again"));
    EXPECT_THAT(folder.Names("zysetup"), ElementsAre("registry.ini", "registry.ini.lock"));
}

} // namespace
} // namespace zy::test
