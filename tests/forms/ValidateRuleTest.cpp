#include <functional>

#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// The check of the whole detail form that File > Save runs first.
class ValidateRule : public RulesForm {
  protected:
    ValidateRule() { StartWithCodes({"A", "B"}); }

    /// The form fails with this box, and the focus stands on that control afterwards.
    void ExpectFails(const char* message, const char* title, Control& focus) {
        SCOPED_TRACE(message);
        world.dialogs.ExpectMessage(message, title);
        EXPECT_FALSE(handlers().detailChecks.Validate_Rule());
        ExpectScriptPlayed(world.dialogs);
        EXPECT_TRUE(focus.HasFocus()) << (form().Focused() ? form().Focused()->Name() : "no focus");
    }
    void ExpectWholeTextSelected(const TextBox& box) {
        EXPECT_EQ(box.SelStart(), 0U);
        EXPECT_EQ(box.SelLength(), box.Text().size());
    }
};

TEST_F(ValidateRule, PassesAFormThatIsRight) {
    Traces();
    EXPECT_TRUE(handlers().detailChecks.Validate_Rule());
    EXPECT_THAT(Traces(),
                ElementsAre("mRules Validate_Rule Start", "mRules CheckCode Start", "mRules Check_Min Start",
                            "mRules Check_Max Start", "mRules Verify_MinMax Start"));
    EXPECT_EQ(form().Focused(), nullptr) << "the focus stays where it was";
}

TEST_F(ValidateRule, SelectsTheWholeTextThatFails) {
    struct Case {
        TextBox& box;
        const char* text;
        const char* message;
        const char* title;
    };
    const Case cases[] = {
        {page().txtCode, "ABCD", "Rule Code must be 1 to 3 characters", "Invalid Rule Code"},
        {page().txtCode, "\"", "Rule Code cannot contain double quotes", "Invalid Rule Code"},
        {page().txtCode, " b ", "Rule Code must be unique", "Invalid Rule Code"},
        {page().txtCode, "", "Rule Code cannot be Blank", "Invalid Rule Code"},
        {page().txtMin, "one", "Min Must be a Numeric Value", "Invalid Rule Min Value"},
        {page().txtMin, "100.5", "Min Must be between 1 and 100", "Invalid Rule Min Value"},
        {page().txtMax, "two", "Max Must be a Numeric Value", "Invalid Rule Max Value"},
        {page().txtMax, "101", "Max Must be between 1 and 100", "Invalid Rule Max Value"},
        {page().txtMin, "3", "Min Value must be less than Max Value", "Invalid Rule Max or Min Value"},
        {page().txtDescription, "say \"so\"", "Rule Description cannot contain double quotes",
         "Invalid Rule Description"},
        {page().txtDescription, "", "Rule Description cannot be Blank", "Invalid Rule Description"}};
    for (const auto& each : cases) {
        const std::string right = each.box.Text();
        each.box.SetText(each.text);
        ExpectFails(each.message, each.title, each.box);
        ExpectWholeTextSelected(each.box);
        EXPECT_EQ(each.box.Text(), each.text) << "the text stays for correction";
        each.box.SetText(right);
    }
}

TEST_F(ValidateRule, SelectsTheMinWhenItIsAboveTheMax) {
    page().txtMin.SetText("20");
    page().txtMax.SetText("10");
    ExpectFails("Min Value must be less than Max Value", "Invalid Rule Max or Min Value", page().txtMin);
    ExpectWholeTextSelected(page().txtMin);
}

TEST_F(ValidateRule, AsksForAMissingCondition) {
    page().cboCondition.SetListIndex(-1);
    ExpectFails("You Must select a Rule Condtion", "Rule Condition Invalid", page().cboCondition);
}

TEST_F(ValidateRule, MovesTheFocusToTheConditionForAMissingZone) {
    page().cboZone.SetListIndex(-1);
    ExpectFails("You Must select a Rule Condtion", "Rule Condition Invalid", page().cboCondition);
}

TEST_F(ValidateRule, StopsAtTheFirstFailureInItsOrder) {
    for (TextBox* box : {&page().txtCode, &page().txtMin, &page().txtMax, &page().txtDescription}) {
        box->SetText("");
    }
    page().cboCondition.SetListIndex(-1);
    page().cboZone.SetListIndex(-1);
    ExpectFails("Rule Code cannot be Blank", "Invalid Rule Code", page().txtCode);
    page().txtCode.SetText("A");
    ExpectFails("Min Must be a Numeric Value", "Invalid Rule Min Value", page().txtMin);
    page().txtMin.SetText("5");
    ExpectFails("Max Must be a Numeric Value", "Invalid Rule Max Value", page().txtMax);
    page().txtMax.SetText("4");
    ExpectFails("Min Value must be less than Max Value", "Invalid Rule Max or Min Value", page().txtMin);
    page().txtMax.SetText("5");
    ExpectFails("You Must select a Rule Condtion", "Rule Condition Invalid", page().cboCondition);
    page().cboCondition.SetListIndex(0);
    ExpectFails("You Must select a Rule Condtion", "Rule Condition Invalid", page().cboCondition);
    page().cboZone.SetListIndex(0);
    ExpectFails("Rule Description cannot be Blank", "Invalid Rule Description", page().txtDescription);
    page().txtDescription.SetText(" ");
    EXPECT_TRUE(handlers().detailChecks.Validate_Rule());
}

TEST_F(ValidateRule, ComparesTheCodeAtTheIndexOfTheRuleInHand) {
    page().txtCode.SetText("a");
    EXPECT_TRUE(handlers().detailChecks.Validate_Rule());
    list().Pick(2);
    page().txtCode.SetText("a");
    ExpectFails("Rule Code must be unique", "Invalid Rule Code", page().txtCode);
}

TEST_F(ValidateRule, ChangesNoRule) {
    page().txtCode.SetText("X");
    EXPECT_TRUE(handlers().detailChecks.Validate_Rule());
    EXPECT_THAT(Codes(), ElementsAre("A", "B"));
}

TEST_F(ValidateRule, ReadsTheLocalesDecimalComma) {
    world.system.SetDecimalSeparator(',');
    page().txtMin.SetText("1,5");
    EXPECT_TRUE(handlers().detailChecks.Validate_Rule());
    page().txtMax.SetText("1,25");
    ExpectFails("Min Value must be less than Max Value", "Invalid Rule Max or Min Value", page().txtMin);
}

TEST_F(ValidateRule, RequiresASelectionForARuleWhoseConditionIsNoneOfTheFive) {
    auto rule = RuleOf("A");
    rule.Cond = "<>";
    StartWith({rule});
    const auto before = File();
    page().txtMin.Enter("2");
    world.dialogs.ExpectMessage("You Must select a Rule Condtion", "Rule Condition Invalid");
    ChooseSave();
    EXPECT_EQ(File(), before);
    page().cboCondition.Pick(4);
    ChooseSave();
    auto expected = Loaded("A");
    expected.Min = "2";
    expected.Cond = "=";
    EXPECT_EQ(File(), Text({expected}));
}

} // namespace
} // namespace zy::test
