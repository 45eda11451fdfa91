#include <wx/dataview.h>

#include <algorithm>
#include <cstddef>

#include "NativeLook.h"
#include "RulesWindow.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class RulesListWindow : public RulesWindow {
  protected:
    RulesListWindow() { world.traceServers.SetRunning(true); }

    /// How often rules were put into the detail form so far.
    std::ptrdiff_t EditRuleCount() {
        return InWindow([&] {
            const auto& records = world.traceServers.Records();
            return std::count_if(records.begin(), records.end(),
                                 [](const auto& record) { return record.procedure == "EditRule"; });
        });
    }
};

TEST_F(RulesListWindow, ShowsTheRulesWithTheFirstOneSelectedAndInTheForm) {
    PutRules(ThreeRules());
    Play([&] {
        WaitForSelection(1);
        EXPECT_THAT(Row(1), ElementsAre("R1", "1", "2", ">", "UCL", "First rule  "));
        EXPECT_THAT(Row(3), ElementsAre("R3", "5", "6", "=", "-3S", "Third rule  "));
        EXPECT_EQ(InWindow([&] { return RealList().GetColumnCount(); }), 6U);
        EXPECT_EQ(TextIn(page().txtCode), "R1");
        EXPECT_EQ(TextIn(page().txtDescription), "First rule  ");
        EXPECT_EQ(ItemIn(page().cboCondition), "> - Greater Than");
        EXPECT_EQ(ItemIn(page().cboZone), "UCL - Upper Control Limit (Red)");
        EXPECT_EQ(Status(), "3 rules");
        EXPECT_EQ(EditRuleCount(), 1);
    });
}

TEST_F(RulesListWindow, HasSixColumnsThatCanBeResizedButNeitherSortedNorMoved) {
    PutRules(ThreeRules());
    Play([&] {
        const auto headers = InWindow([&] {
            std::vector<std::string> texts;
            for (unsigned i = 0; i < RealList().GetColumnCount(); ++i) {
                const auto& column = *RealList().GetColumn(i);
                EXPECT_TRUE(column.IsResizeable());
                EXPECT_FALSE(column.IsReorderable());
                texts.push_back(column.GetTitle().utf8_string());
            }
            return texts;
        });
        EXPECT_THAT(headers, ElementsAre("Rule ID", "Min", "Max", "Cond", "Zone", "Description"));
        hands->Click(PlaceOfRow(1) - PlaceOfRow(2) + PlaceOfRow(1)); // the header of the first column
        ClickRow(2);
        WaitForSelection(2);
        EXPECT_EQ(InWindow([&] { return RealList().GetSortingColumn(); }), nullptr);
        EXPECT_EQ(Row(1).front(), "R1");
    });
}

TEST_F(RulesListWindow, AClickOnARowShowsItsRuleOnce) {
    PutRules(ThreeRules());
    Play([&] {
        WaitForSelection(1);
        ClickRow(2);
        WaitForSelection(2);
        EXPECT_EQ(TextIn(page().txtCode), "R2");
        EXPECT_EQ(TextIn(page().txtMin), "3");
        EXPECT_EQ(ItemIn(page().cboZone), "LWL - Lower Waring Limit (Yellow)");
        EXPECT_EQ(EditRuleCount(), 2);
    });
}

TEST_F(RulesListWindow, TheArrowKeysGoFromRowToRow) {
    PutRules(ThreeRules());
    Play([&] {
        WaitForFocus(page().lstRulesList);
        Press(WXK_DOWN);
        Press(WXK_DOWN);
        WaitForSelection(3);
        Press(WXK_UP);
        WaitForSelection(2);
        EXPECT_EQ(TextIn(page().txtCode), "R2");
        EXPECT_EQ(EditRuleCount(), 4);
    });
}

TEST_F(RulesListWindow, AClickWithControlLeavesTheRowSelected) {
    PutRules(ThreeRules());
    Play([&] {
        ClickRow(2);
        WaitForSelection(2);
        hands->HoldKey(WXK_CONTROL);
        ClickRow(2);
        hands->LetGoOfKey(WXK_CONTROL);
        ClickRow(3);
        WaitForSelection(3);
        hands->HoldKey(WXK_CONTROL);
        ClickRow(3);
        hands->LetGoOfKey(WXK_CONTROL);
        Press(WXK_UP); // comes last, so that the clicks have been taken when it has
        WaitForSelection(2);
        EXPECT_EQ(EditRuleCount(), 4);
    });
}

TEST_F(RulesListWindow, AnEmptyListDisablesWhatNeedsARule) {
    Play([&] {
        WaitForStatus("0 rules");
        EXPECT_EQ(SelectedRow(), 0);
        EXPECT_TRUE(IsEnabled(page().cmdAddList));
        EXPECT_FALSE(IsEnabled(page().cmdDeleteList));
        EXPECT_FALSE(IsEnabled(page().cmdUpDown));
        EXPECT_FALSE(IsEnabled(page().txtCode));
        EXPECT_FALSE(IsEnabled(page().cboZone));
    });
}

TEST_F(RulesListWindow, PageDownShowsRulesFarDownAListOf32767) {
    PutRules(ManyRules(32767));
    Play([&] {
        WaitForFocus(page().lstRulesList);
        Press(WXK_END);
        WaitForSelection(32767);
        EXPECT_TRUE(IsRowVisible(32767));
        EXPECT_EQ(TextIn(page().txtDescription), "Rule number 32767  ");
        Press(WXK_PAGEUP);
        WaitUntil("a page has gone by", [&] { return page().lstRulesList.Selected() < 32767 - 3; });
    });
}

TEST_F(RulesListWindow, TheMouseWheelOverAClosedDropDownListChangesNothing) {
    PutRules(ThreeRules());
    Play([&] {
        Press('C', wxMOD_ALT);
        WaitForFocus(page().cboCondition);
        const auto before = ItemIn(page().cboCondition);
        hands->TurnWheelOver(PlaceOf(page().cboCondition));
        Press(WXK_TAB); // comes behind the wheel
        WaitForFocus(page().cboZone);
        EXPECT_EQ(ItemIn(page().cboCondition), before);
        EXPECT_FALSE(program->form.ChangeFlag);
    });
}

TEST_F(RulesListWindow, CtrlCCopiesTheSelectedRuleAsASpreadsheetDoes) {
    PutRules(ThreeRules());
    Play([&] {
        ClickRow(2);
        WaitForSelection(2);
        Press('C', wxMOD_CONTROL);
        const wxString copied = "R2\t3\t4\t<=\tLWL\tSecond rule  \r\n";
        WaitUntil("it is copied", [&] { return TextOnClipboard() == copied; });
    });
}

} // namespace
} // namespace zy::test
