// What every SystemInfo promises, whatever it stands on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "ContractWorlds.h"
#include "platform/memory/MemoryWorld.h"

namespace zy::test {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

class MemoryStart final : public Start {
  public:
    MemoryStart() { world_.system.SetCommandLine("@RULES"); }
    SystemInfo& System() override { return world_.system; }
    FileSystem& Files() override { return world_.files; }

  private:
    MemoryWorld world_;
};

struct StartKind {
    const char* name;
    std::unique_ptr<Start> (*make)();
};

void PrintTo(const StartKind& kind, std::ostream* out) {
    *out << kind.name;
}

class SystemInfoContract : public ::testing::TestWithParam<StartKind> {
  protected:
    std::unique_ptr<Start> start = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(Starts, SystemInfoContract,
                         ::testing::Values(StartKind{"OverMemory",
                                                     []() -> std::unique_ptr<Start> {
                                                         return std::make_unique<MemoryStart>();
                                                     }},
                                           StartKind{kOverSystem, SystemStart}),
                         [](const auto& test) { return test.param.name; });

TEST_P(SystemInfoContract, GivesASystemDirectoryWithoutABackslashAtItsEnd) {
    EXPECT_THAT(start->System().SystemDirectory(), Not(EndsWith("\\")));
}

TEST_P(SystemInfoContract, GivesASystemDirectoryThatFilesCanBeCreatedIn) {
    const auto path = start->System().SystemDirectory() + R"(\ZYRules.sys)";
    EXPECT_EQ(start->Files().Create(path).error, FileError::None);
    EXPECT_TRUE(start->Files().Exists(path));
    EXPECT_EQ(start->Files().Delete(path), FileError::None);
}

TEST_P(SystemInfoContract, GivesTheSameSystemDirectoryEachTime) {
    const auto first = start->System().SystemDirectory();
    EXPECT_EQ(start->System().SystemDirectory(), first);
}

TEST_P(SystemInfoContract, GivesTheArgumentWithoutTheProgramsName) {
    EXPECT_EQ(start->System().CommandLine(), "@RULES");
}

TEST_P(SystemInfoContract, GivesTheProgramsNameWithoutFolderAndExtension) {
    const auto name = start->System().ExecutableName();
    EXPECT_NE(name, "");
    for (const char* part : {"\\", "/", "."}) {
        EXPECT_THAT(name, Not(HasSubstr(part)));
    }
}

TEST_P(SystemInfoContract, GivesTheProgramsFolderWithoutABackslashAtItsEnd) {
    const auto folder = start->System().ExecutableFolder();
    EXPECT_NE(folder, "");
    EXPECT_THAT(folder, Not(EndsWith("\\")));
}

TEST_P(SystemInfoContract, GivesAPointWhereTheLocaleHasOne) {
    EXPECT_EQ(start->System().DecimalSeparator(), '.');
}

TEST_P(SystemInfoContract, GivesADateOfTheCalendar) {
    EXPECT_TRUE(start->System().Today().ok());
}

TEST_P(SystemInfoContract, GivesAStateFolderWithoutABackslashAtItsEnd) {
    const auto folder = start->System().StateFolder();
    EXPECT_NE(folder, "");
    EXPECT_THAT(folder, Not(EndsWith("\\")));
    EXPECT_EQ(start->System().StateFolder(), folder);
}

TEST_P(SystemInfoContract, GivesATimeThatDoesNotGoBack) {
    const auto first = start->System().Now();
    EXPECT_GE(start->System().Now(), first);
}

TEST_P(SystemInfoContract, GivesTheTextOfATimeToTheSecond) {
    using namespace std::chrono_literals;
    const auto time = std::chrono::sys_days(2026y / 11 / 22) + 14h + 7min + 5s;
    const auto text = start->System().TimeText(time);
    EXPECT_EQ(start->System().TimeText(time), text);
    EXPECT_THAT(text, HasSubstr("26"));
    for (const auto other : {time + 1s, time + 1min, time + 1h, time + 24h}) {
        EXPECT_NE(start->System().TimeText(other), text);
    }
}

} // namespace
} // namespace zy::test
