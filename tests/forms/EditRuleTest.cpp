#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A rule comes into the detail form.
class EditRule : public RulesForm {
  protected:
    /// Starts with a rule of the first condition and zone, and a second one to look at.
    void StartWithSecond(const std::string& condition, const std::string& zone) {
        RunRule first = RuleOf("A");
        first.Zone = "USL";
        RunRule second = RuleOf("B");
        second.Cond = condition;
        second.Zone = zone;
        StartWith({first, second});
    }
};

TEST_F(EditRule, ShowsTheRuleThatIsPicked) {
    StartWithCodes({"A", "B", "C"});
    list().Pick(3);
    ExpectInHand(3);
    EXPECT_EQ(Details(), "C|1|2|> - Greater Than|UCL - Upper Control Limit (Red)|text  ");
    list().Pick(2);
    ExpectInHand(2);
    EXPECT_EQ(page().txtCode.Text(), "B");
}

TEST_F(EditRule, SelectsTheConditionByItsExactText) {
    const std::pair<const char*, int> conditions[] = {{">", 0}, {">=", 1}, {"<", 2}, {"<=", 3}, {"=", 4}};
    for (const auto& [condition, index] : conditions) {
        StartWithSecond(condition, "UCL");
        list().Pick(2);
        EXPECT_EQ(page().cboCondition.ListIndex(), index) << condition;
    }
}

TEST_F(EditRule, LeavesTheSelectionAsItWasForAnotherCondition) {
    for (const auto* condition : {"", "<>", "==", " >", "> ", "=>", "> - Greater Than"}) {
        StartWithSecond(condition, "UCL");
        page().cboCondition.Pick(3);
        list().Pick(2);
        EXPECT_EQ(page().cboCondition.ListIndex(), 3) << condition;
        EXPECT_EQ(rules().gaRules(2).Cond, condition);
    }
}

TEST_F(EditRule, LeavesNoConditionSelectedWhenTheFirstRuleHasAnotherOne) {
    RunRule rule = RuleOf("A");
    rule.Cond = "<>";
    StartWith({rule});
    EXPECT_EQ(page().cboCondition.ListIndex(), -1);
}

TEST_F(EditRule, SelectsEveryZone) {
    const char* zones[] = {"USL", "UCL", "UWL",  "TARG", "LWL",  "LCL", "LSL", "PREV",
                           "+4S", "+3S", "+15S", "AVG",  "-15S", "-3S", "-4S"};
    for (int index = 0; index < 15; ++index) {
        StartWithSecond(">", zones[index]);
        page().cboZone.SetListIndex(-1);
        list().Pick(2);
        EXPECT_EQ(page().cboZone.ListIndex(), index) << zones[index];
    }
}

TEST_F(EditRule, SelectsTheFirstZoneThatContainsTheCodeWhateverItsCase) {
    const std::pair<const char*, const char*> zones[] = {{"Avg ", "AVG - Average"},
                                                         {"avg", "AVG - Average"},
                                                         {"TARG ", "TARG - Target for Variable (Green)"},
                                                         {"prev", "PREV - Value of Previous Data Point"},
                                                         {"ucl", "UCL - Upper Control Limit (Red)"},
                                                         {"15S", "+15S - Average + 15 SD"},
                                                         {"3 sd", "+3S - Average + 3 SD"},
                                                         {"Average", "+4S - Average + 4 SD"},
                                                         {"L - l", "LWL - Lower Waring Limit (Yellow)"},
                                                         {" ", "USL - Upper Spec. Limit (White)"},
                                                         {"", "USL - Upper Spec. Limit (White)"}};
    for (const auto& [zone, item] : zones) {
        StartWithSecond(">", zone);
        page().cboZone.SetListIndex(-1);
        list().Pick(2);
        EXPECT_EQ(page().cboZone.Text(), item) << zone;
        EXPECT_EQ(rules().gaRules(2).Zone, zone) << "looking changes no rule";
    }
}

TEST_F(EditRule, LeavesTheZoneAsItWasWhenNoItemContainsTheCode) {
    for (const auto* zone : {"NONE", "USL  ", " AVG", "-3S   "}) {
        StartWithSecond(">", zone);
        page().cboZone.Pick(6);
        list().Pick(2);
        EXPECT_EQ(page().cboZone.ListIndex(), 6) << zone;
    }
}

TEST_F(EditRule, IsNoEditOfThePerson) {
    StartWith({RuleOf("A"),
               {.Code = "B",
                .Min = "3",
                .Max = "4",
                .Cond = "=",
                .Zone = "AVG",
                .Description = "other",
                .Desc2 = {},
                .Desc3 = {}}});
    list().Pick(2);
    ExpectMarks(false, false);
    EXPECT_FALSE(rules().gbLoadingRule);
}

TEST_F(EditRule, LeavesAnEditOfTheFormUnstored) {
    StartWithCodes({"A", "B"});
    page().txtDescription.Enter("another text");
    list().Pick(2);
    EXPECT_EQ(rules().gaRules(1).Description, "text  ");
    list().Pick(1);
    EXPECT_EQ(page().txtDescription.Text(), "text  ");
    ExpectMarks(true, false);
}

TEST_F(EditRule, RunsOnceForAPersonsChoice) {
    StartWithCodes({"A", "B"});
    Traces();
    list().Pick(2);
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings lstRulesList_ItemClick Start",
                                      "mRules EditRule Start", "frmGlobalSettings txtCode_Change Start"));
}

TEST_F(EditRule, DoesNotRunAgainForTheRuleInHand) {
    StartWithCodes({"A", "B"});
    page().txtCode.Enter("X");
    Traces();
    list().Pick(1);
    EXPECT_EQ(page().txtCode.Text(), "X") << "the edit stays in the form";
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings txtCode_Validate Start", "mRules CheckCode Start"));
}

TEST_F(EditRule, TakesItsIndexAsText) {
    StartWithCodes({"A", "B"});
    handlers().details.EditRule(" 2 ");
    EXPECT_EQ(rules().giCurRule, 2);
    EXPECT_EQ(page().txtCode.Text(), "B");
}

TEST_F(EditRule, RaisesARunTimeErrorForAnIndexThatIsNone) {
    StartWithCodes({"A", "B"});
    EXPECT_EQ(ErrorNumber([&] { handlers().details.EditRule("B"); }), 13);
    EXPECT_EQ(ErrorNumber([&] { handlers().details.EditRule(""); }), 13);
    EXPECT_EQ(ErrorNumber([&] { handlers().details.EditRule("32768"); }), 6);
    EXPECT_EQ(rules().giCurRule, 1) << "the rule in hand stays";
    EXPECT_EQ(ErrorNumber([&] { handlers().details.EditRule("3"); }), 9);
    EXPECT_EQ(ErrorNumber([&] { handlers().details.EditRule("0"); }), 9);
}

// Nothing sets the mark that wakes the next step; it is kept ready.

TEST_F(EditRule, StoresTheRuleInHandFirstWhenTheListsMarkIsSet) {
    StartWithCodes({"A", "B"});
    rules().gbRulesChanged = true;
    page().txtCode.Enter("X");
    list().Pick(2);
    EXPECT_THAT(Codes(), ElementsAre("X", "B"));
    ExpectInHand(2);
    ExpectMarks(true, true);
}

TEST_F(EditRule, SetsTheSharedMarkThenAlsoWithoutAChange) {
    StartWithCodes({"A", "B"});
    rules().gbRulesChanged = true;
    list().Pick(2);
    ExpectMarks(false, true);
}

TEST_F(EditRule, ShowsTheNextRuleThenAlsoWhenTheOneInHandFails) {
    StartWithCodes({"A", "B"});
    rules().gbRulesChanged = true;
    page().txtCode.SetText("");
    world.dialogs.ExpectMessage("Rule Code cannot be Blank", "Invalid Rule Code");
    list().Pick(2);
    EXPECT_THAT(Codes(), ElementsAre("A", "B"));
    ExpectInHand(2);
    EXPECT_FALSE(state().gbChanged);
}

TEST_F(EditRule, StoresNothingThenWithoutARuleInHand) {
    StartWithCodes({"A", "B"});
    rules().gbRulesChanged = true;
    rules().giCurRule = -1;
    Traces();
    handlers().details.EditRule("2");
    EXPECT_THAT(Traces(), ::testing::Not(::testing::Contains("mRules Validate_Rule Start")));
    EXPECT_FALSE(state().gbChanged);
}

} // namespace
} // namespace zy::test
