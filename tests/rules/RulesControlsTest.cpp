#include "rules/RulesControls.h"

#include <algorithm>

#include "RulesTest.h"
#include "controls/Form.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// The controls of the rules page, without a window.
class ControlsOfRules : public ::testing::Test {
  protected:
    template <typename Cut>
    static std::vector<std::string> FrontOf(const ComboBox& list, Cut cut) {
        std::vector<std::string> fronts;
        for (const auto& item : list.Items()) {
            fronts.emplace_back(cut(item));
        }
        return fronts;
    }

    Form form{"frm"};
    Frame page{&form, "fraRules"};
    RulesControls controls{page, [](int, int) { return std::string_view(); }};
};

TEST_F(ControlsOfRules, OfferTheFiveRelations) {
    EXPECT_THAT(controls.cboCondition.Items(),
                ElementsAre("> - Greater Than", ">= - Greater than or Equal to", "< -  Less than",
                            "<= - Less than or Equal to", "= - Equal to"));
    EXPECT_THAT(FrontOf(controls.cboCondition, ConditionOfItem), ElementsAre(">", ">=", "<", "<=", "="));
}

TEST_F(ControlsOfRules, OfferTheFifteenChartLines) {
    EXPECT_THAT(controls.cboZone.Items(),
                ElementsAre("USL - Upper Spec. Limit (White)", "UCL - Upper Control Limit (Red)",
                            "UWL - Upper Warnign Limit (Yellow)", "TARG - Target for Variable (Green)",
                            "LWL - Lower Waring Limit (Yellow)", "LCL - Lower Control Limit (Red)",
                            "LSL - Lower Spec. Limit (White)", "PREV - Value of Previous Data Point",
                            "+4S - Average + 4 SD", "+3S - Average + 3 SD", "+15S - Average + 15 SD",
                            "AVG - Average", "-15S - Average - 15 SD", "-3S  - Average - 3 SD",
                            "-4S  - Average - 4 SD"));
    EXPECT_THAT(FrontOf(controls.cboZone, ZoneOfItem),
                ElementsAre("USL", "UCL", "UWL", "TARG", "LWL", "LCL", "LSL", "PREV", "+4S", "+3S", "+15S",
                            "AVG", "-15S", "-3S", "-4S"));
}

TEST_F(ControlsOfRules, HaveTheColumnsOfTheList) {
    std::vector<std::string> headers;
    for (const auto& column : controls.lstRulesList.Columns()) {
        headers.push_back(column.header);
    }
    EXPECT_THAT(headers, ElementsAre("Rule ID", "Min", "Max", "Cond", "Zone", "Description"));
}

TEST_F(ControlsOfRules, HaveTheirCaptions) {
    const auto caption = [](const Control& control) { return control.Name() + ": " + control.Caption(); };
    EXPECT_EQ(caption(controls.fraRulesList), "fraRulesList: Current Rules List");
    EXPECT_EQ(caption(controls.FraRuleDetails), "FraRuleDetails: Rule Details");
    EXPECT_EQ(caption(controls.fraGridMode), "fraGridMode: Grid Mode");
    EXPECT_EQ(caption(controls.cmdAddList), "cmdAddList: Add");
    EXPECT_EQ(caption(controls.cmdDeleteList), "cmdDeleteList: Delete");
    EXPECT_EQ(caption(controls.cmdSaveRules), "cmdSaveRules: Save");
    EXPECT_EQ(caption(controls.cmdHelpRules), "cmdHelpRules: Help");
    EXPECT_EQ(caption(controls.lblCode), "lblCode: Rule ID:");
    EXPECT_EQ(caption(controls.lblMin), "lblMin: Minimum:");
    EXPECT_EQ(caption(controls.lblMax), "lblMax: Maximum:");
    EXPECT_EQ(caption(controls.lblDescription), "lblDescription: Description:");
    EXPECT_EQ(caption(controls.lblCondition), "lblCondition: Condition:");
    EXPECT_EQ(caption(controls.lblZone), "lblZone: Zone:");
}

TEST_F(ControlsOfRules, NameEachFieldByItsLabel) {
    const auto buddy = [](const Label& label) { return label.Buddy().Name(); };
    EXPECT_EQ(buddy(controls.lblCode), "txtCode");
    EXPECT_EQ(buddy(controls.lblMin), "txtMin");
    EXPECT_EQ(buddy(controls.lblMax), "txtMax");
    EXPECT_EQ(buddy(controls.lblCondition), "cboCondition");
    EXPECT_EQ(buddy(controls.lblZone), "cboZone");
    EXPECT_EQ(buddy(controls.lblDescription), "txtDescription");
}

TEST_F(ControlsOfRules, HaveAccessKeysThatStandInTheirCaptionsAndDiffer) {
    std::string keys;
    const auto take = [&](const auto& control) {
        EXPECT_NE(control.Caption().find(control.AccessKey()), std::string::npos) << control.Name();
        keys += Windows1252().Upper(control.AccessKey());
    };
    for (const Label* label : {&controls.lblCode, &controls.lblMin, &controls.lblMax, &controls.lblCondition,
                               &controls.lblZone, &controls.lblDescription}) {
        take(*label);
    }
    for (const CommandButton* button :
         {&controls.cmdAddList, &controls.cmdDeleteList, &controls.cmdSaveRules, &controls.cmdHelpRules}) {
        take(*button);
    }
    keys += "FH"; // the menu bar's
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end()), keys.end()) << keys;
}

TEST_F(ControlsOfRules, GiveARuleOfWhatTheFormShows) {
    controls.txtCode.SetText("R9");
    controls.txtMin.SetText("3");
    controls.txtMax.SetText("4");
    controls.cboCondition.SetListIndex(3);
    controls.cboZone.SetListIndex(13);
    controls.txtDescription.SetText(" d ");
    EXPECT_EQ(Shown(RuleInForm(controls, {})), "R9|3|4|<=|-3S| d ||");
}

TEST_F(ControlsOfRules, LeaveConditionAndZoneAsHeldWithoutASelection) {
    const RunRule held{.Code = "A",
                       .Min = "1",
                       .Max = "2",
                       .Cond = "<>",
                       .Zone = "NONE",
                       .Description = "d",
                       .Desc2 = "two",
                       .Desc3 = "three"};
    EXPECT_EQ(Shown(RuleInForm(controls, held)), "|||<>|NONE||two|three");
}

TEST_F(ControlsOfRules, CutAZoneAtBlankDashBlankAndAConditionAtTheFirstDash) {
    EXPECT_EQ(ZoneOfItem("-3S  - Average - 3 SD"), "-3S");
    EXPECT_EQ(ZoneOfItem("A-B - C"), "A-B");
    EXPECT_EQ(ZoneOfItem("no dash"), "no dash");
    EXPECT_EQ(ConditionOfItem(">= - Greater - or"), ">=");
    EXPECT_EQ(ConditionOfItem("=-x"), "=");
    EXPECT_EQ(ConditionOfItem(" none "), "none");
}

} // namespace
} // namespace zy::test
