#include "platform/JournalFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zy::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using namespace std::chrono_literals;

TEST(JournalFileTest, IsNamedByKindTimeAndProcess) {
    const auto made = std::chrono::sys_days(2026y / 1 / 2) + 3h + 4min + 5s + 42us;
    EXPECT_EQ(JournalFileName("units", made, 4711), "units-20260102T030405000042Z-4711.journal");
    EXPECT_EQ(
        JournalFileName("users", std::chrono::sys_days(2026y / 11 / 22) + 23h + 59min + 59s + 999999us, 1),
        "users-20261122T235959999999Z-1.journal");
}

TEST(JournalFileTest, IsFoundByItsKindTheLatestFirst) {
    EXPECT_THAT(
        JournalFileNames(
            {"units-20261122T140759000042Z-4711.journal", "units-20261122T140759000043Z-2.journal",
             "rules-20261122T140759000042Z-4711.journal", "units-20251231T235959999999Z-99999.journal"},
            "units"),
        ElementsAre("units-20261122T140759000043Z-2.journal", "units-20261122T140759000042Z-4711.journal",
                    "units-20251231T235959999999Z-99999.journal"));
}

TEST(JournalFileTest, IsNoFileOfAnotherName) {
    for (const char* name : {
             "",
             "units",
             "units-",
             "units-.journal",
             "units-20261122T140759000042Z-4711",
             "units-20261122T140759000042Z-4711.journal~",
             "units-20261122T140759000042Z-4711.journal.bak",
             "units-20261122T140759000042Z-.journal",
             "units-20261122T140759000042Z-x.journal",
             "units-20261122T140759000042Z--1.journal",
             "units-20261122T140759000042-4711.journal",
             "units-20261122T14075900004Z-4711.journal",
             "units-20261122T1407590000420Z-4711.journal",
             "units-2026112T140759000042Z-4711.journal",
             "units-20261122 140759000042Z-4711.journal",
             "units-20261122T140759000042Z-4711.JOURNAL",
             "Units-20261122T140759000042Z-4711.journal",
             "units-x-20261122T140759000042Z-4711.journal",
             "xunits-20261122T140759000042Z-4711.journal",
             "./units-20261122T140759000042Z-4711.journal",
         }) {
        EXPECT_THAT(JournalFileNames({name}, "units"), IsEmpty()) << name;
    }
}

TEST(JournalFileTest, TakesTheNextNameWhileOneIsTaken) {
    std::vector<std::string> asked;
    const auto made = MakeJournal("units", 7, [&](const std::string& name) {
        asked.push_back(name);
        return OpenedJournal{nullptr, asked.size() < 3 ? FileError::Exists : FileError::DiskFull};
    });
    EXPECT_EQ(made.error, FileError::DiskFull);
    ASSERT_EQ(asked.size(), 3U);
    EXPECT_LT(asked[0], asked[1]);
    EXPECT_LT(asked[1], asked[2]);
    EXPECT_THAT(asked[2], AllOf(StartsWith("units-"), EndsWith("Z-7.journal")));
}

} // namespace
} // namespace zy::test
