#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// What the rules page shows right after the start.
class ShowRules : public RulesForm {};

TEST_F(ShowRules, FillsTheListInTheOrderOfTheFile) {
    StartWith({{.Code = "B",
                .Min = "1",
                .Max = "2",
                .Cond = ">=",
                .Zone = "-3S",
                .Description = "first",
                .Desc2 = {},
                .Desc3 = {}},
               {.Code = "A",
                .Min = "3",
                .Max = "4",
                .Cond = "<>",
                .Zone = "NONE",
                .Description = "second",
                .Desc2 = {},
                .Desc3 = {}}});
    EXPECT_THAT(Rows(), ElementsAre("B|1|2|>=|-3S|first  ", "A|3|4|<>|NONE|second  "));
}

TEST_F(ShowRules, SelectsTheFirstRuleAndShowsItInTheDetailForm) {
    StartWith({{.Code = "R1",
                .Min = "3",
                .Max = "4",
                .Cond = "<=",
                .Zone = "PREV",
                .Description = "text",
                .Desc2 = {},
                .Desc3 = {}},
               RuleOf("R2")});
    ExpectInHand(1);
    EXPECT_EQ(Details(), "R1|3|4|<= - Less than or Equal to|PREV - Value of Previous Data Point|text  ");
}

TEST_F(ShowRules, ShowsListModeAndHidesTheGrid) {
    StartWithCodes({"A"});
    EXPECT_TRUE(page().fraRulesList.Visible());
    EXPECT_TRUE(page().FraRuleDetails.Visible());
    EXPECT_FALSE(page().fraGridMode.Visible());
    EXPECT_TRUE(page().lstRulesList.IsUsable());
    EXPECT_FALSE(page().grdRules.IsUsable());
}

TEST_F(ShowRules, EnablesEverythingThatWorksOnARule) {
    StartWithCodes({"A"});
    EXPECT_TRUE(page().cmdDeleteList.IsUsable());
    EXPECT_TRUE(page().cmdUpDown.IsUsable());
    EXPECT_TRUE(page().txtCode.IsUsable());
    EXPECT_TRUE(page().cboZone.IsUsable());
}

TEST_F(ShowRules, IsNoChange) {
    StartWithCodes({"A", "B"});
    ExpectMarks(false, false);
    EXPECT_FALSE(rules().gbLoadingRule);
    EXPECT_FALSE(rules().gbNewRule);
    EXPECT_FALSE(rules().gbRulesChanged);
}

TEST_F(ShowRules, GoesThroughTheDetailFormsTabOrderAsAPersonReads) {
    StartWithCodes({"A"});
    std::vector<std::string> names;
    for (const auto* control : page().FraRuleDetails.Children()) {
        const bool takesNoKeys = dynamic_cast<const Label*>(control) != nullptr ||
                                 dynamic_cast<const DrawingBox*>(control) != nullptr;
        if (!takesNoKeys) {
            names.push_back(control->Name());
        }
    }
    EXPECT_THAT(names,
                ElementsAre("txtCode", "txtMin", "txtMax", "cboCondition", "cboZone", "txtDescription"));
}

TEST_F(ShowRules, LeavesTheFileAlone) {
    StartOver("[rule]\nCode=A\n; a comment\n");
    ChooseExit();
    EXPECT_EQ(File(), "[rule]\nCode=A\n; a comment\n");
    EXPECT_EQ(unloaded, 1);
}

} // namespace
} // namespace zy::test
