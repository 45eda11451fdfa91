#include <algorithm>
#include <set>
#include <string>

#include "rules/RuleChecks.h"
#include "rules/RulesControls.h"
#include "rules/mRules.h"
#include "support/Samples.h"
#include "support/WorldTest.h"

namespace zy::test {
namespace {

constexpr std::string_view kRulesFile = R"(C:\SYS\ZYRules.sys)";

/// The rules of the sample settings, loaded as the program loads them.
class Samples : public WorldTest {
  protected:
    Samples() {
        world.files.Put(kRulesFile, bytes);
        rules.Build_Rules_Array();
    }

    template <typename Cut>
    static std::set<std::string> FrontOf(const ComboBox& list, Cut cut) {
        std::set<std::string> fronts;
        for (const auto& item : list.Items()) {
            fronts.emplace(cut(item));
        }
        return fronts;
    }

    const std::string bytes = SampleBytes("ZYRules.sys");
    TraceChannel trace{world.traceServers, "zyGlobal"};
    mRules rules{world.files, world.system, trace};
};

TEST_F(Samples, HoldTheClassicRunRules) {
    EXPECT_EQ(rules.gaRules.UBound(), 14);
    EXPECT_EQ(rules.SkippedLines(), 0u);
}

TEST_F(Samples, AreTheSameBytesAfterALoadAndASave) {
    ASSERT_FALSE(bytes.empty());
    rules.Write_Rules_File();
    EXPECT_EQ(world.files.Get(kRulesFile), bytes);
}

TEST_F(Samples, PassEveryCheckOfTheDetailForm) {
    RuleChecks checks(rules.gaRules, world.system, world.dialogs, world.codePage, trace);
    for (int i = 1; i <= rules.gaRules.UBound(); ++i) {
        const auto& rule = rules.gaRules(i);
        SCOPED_TRACE(rule.Code);
        EXPECT_TRUE(checks.CheckCode(rule.Code, i));
        EXPECT_TRUE(checks.Check_Min(rule.Min));
        EXPECT_TRUE(checks.Check_Max(rule.Max));
        EXPECT_TRUE(checks.Verify_MinMax(rule.Min, rule.Max));
        EXPECT_TRUE(checks.CheckDescription(rule.Description));
    }
}

TEST_F(Samples, UseConditionsAndZonesThatTheListsOffer) {
    Frame page(nullptr, "fraRules", "");
    const RulesControls controls(page, {});
    const auto conditions = FrontOf(controls.cboCondition, ConditionOfItem);
    const auto zones = FrontOf(controls.cboZone, ZoneOfItem);
    for (int i = 1; i <= rules.gaRules.UBound(); ++i) {
        const auto& rule = rules.gaRules(i);
        SCOPED_TRACE(rule.Code);
        EXPECT_THAT(conditions, ::testing::Contains(rule.Cond));
        EXPECT_THAT(zones, ::testing::Contains(rule.Zone));
    }
}

} // namespace
} // namespace zy::test
