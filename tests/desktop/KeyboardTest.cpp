#include <wx/frame.h>
#include <wx/menu.h>

#include "RulesWindow.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class KeyboardWindow : public RulesWindow {
  protected:
    KeyboardWindow() { PutRules(ThreeRules()); }

    static std::vector<std::string> EntriesOf(const wxMenu& menu) {
        std::vector<std::string> entries;
        for (const auto* item : menu.GetMenuItems()) {
            entries.push_back(item->IsSeparator() ? "-" : item->GetItemLabel().utf8_string());
        }
        return entries;
    }
};

TEST_F(KeyboardWindow, StartsInTheList) {
    Play([&] { WaitForFocus(page().lstRulesList); });
}

TEST_F(KeyboardWindow, TabGoesThroughTheControlsAsAPersonReadsThem) {
    Play([&] {
        for (const auto* control : ControlsInOrder()) {
            WaitForFocus(*control);
            Press(WXK_TAB);
        }
        WaitForFocus(page().lstRulesList); // round to the first one
    });
}

TEST_F(KeyboardWindow, ShiftTabGoesTheSameWayBack) {
    Play([&] {
        WaitForFocus(page().lstRulesList);
        const auto order = ControlsInOrder();
        for (auto control = order.rbegin(); control != order.rend(); ++control) {
            Press(WXK_TAB, wxMOD_SHIFT);
            WaitForFocus(**control);
        }
    });
}

TEST_F(KeyboardWindow, AltWithALabelsLetterGoesToTheControlThatItNames) {
    Play([&] {
        const std::vector<std::pair<char, const Control*>> labels{
            {'N', &page().txtMin},  {'X', &page().txtMax},         {'C', &page().cboCondition},
            {'Z', &page().cboZone}, {'D', &page().txtDescription}, {'R', &page().txtCode}};
        for (const auto& [letter, control] : labels) {
            Press(letter, wxMOD_ALT);
            WaitForFocus(*control);
        }
    });
}

TEST_F(KeyboardWindow, AltWithAButtonsLetterPressesIt) {
    Play([&] {
        Press('A', wxMOD_ALT);
        WaitForSelection(4);
        Press('L', wxMOD_ALT);
        ExpectBox("Are you Sure you want to Delete this Rule", "Confirm Delete");
        PressInBox('Y', wxMOD_ALT);
        WaitForSelection(3);
        Press('S', wxMOD_ALT);
        WaitForStatus("Saved");
    });
}

TEST_F(KeyboardWindow, EnterPressesTheButtonThatHasTheFocus) {
    Play([&] {
        WaitForFocus(page().lstRulesList);
        for (int i = 0; i < 3; ++i) {
            Press(WXK_TAB);
        }
        WaitForFocus(page().cmdAddList);
        Press(WXK_RETURN);
        WaitForSelection(4);
    });
}

TEST_F(KeyboardWindow, ADropDownListIsOpenedAndClosedByKeys) {
    Play([&] {
        Press('Z', wxMOD_ALT);
        WaitForFocus(page().cboZone);
        Press(WXK_SPACE);
        Press(WXK_DOWN);
        Press(WXK_RETURN);
        WaitUntil("the next zone is picked", [&] { return page().cboZone.ListIndex() == 2; });
        EXPECT_EQ(ItemIn(page().cboZone), "UWL - Upper Warnign Limit (Yellow)");
        WaitForStatus("3 rules   -   R1 edited; File > Save stores it");
    });
}

TEST_F(KeyboardWindow, TheMenusBearTheirCaptions) {
    Play([&] {
        InWindow([&] {
            const auto& bar = *RealFrame().GetMenuBar();
            ASSERT_EQ(bar.GetMenuCount(), 3U);
            EXPECT_EQ(bar.GetMenuLabel(0), "&File");
            EXPECT_EQ(bar.GetMenuLabel(1), "&Edit");
            EXPECT_EQ(bar.GetMenuLabel(2), "&Help");
            EXPECT_THAT(EntriesOf(*bar.GetMenu(0)), ElementsAre("&Save\tCtrl+S", "E&xit"));
            EXPECT_THAT(EntriesOf(*bar.GetMenu(1)),
                        ElementsAre("&Undo\tCtrl+Z", "&Redo\tCtrl+Y", "-", "Cu&t\tCtrl+X", "&Copy\tCtrl+C",
                                    "&Paste\tCtrl+V", "-", "Select &All\tCtrl+A", "-", "U&nsaved Changes...",
                                    "Changes by &Others...", "&Earlier Versions...", "-",
                                    "Insert &Standard Rules...", "Sa&ve Pictures...", "Pr&int..."));
            const auto& help = *bar.GetMenu(2);
            EXPECT_THAT(EntriesOf(help), ElementsAre("&Contents\tF1", "&Index", "-", "Norvale on the &Web...",
                                                     "-", "&About ZY Setup"));
            EXPECT_THAT(EntriesOf(*help.GetMenuItems()[3]->GetSubMenu()),
                        ElementsAre("Products", "Academy Web Based Training", "Mentor Desk", "-",
                                    "Norvale Home Page"));
        });
    });
}

TEST_F(KeyboardWindow, AnEntryThatIsDisabledCannotBeChosen) {
    Play([&] {
        InWindow([&] { program->window.menu.mnuSave.SetEnabled(false); });
        Click(page().cmdAddList);
        WaitForSelection(4);
        Press('S', wxMOD_CONTROL);
        Press('R', wxMOD_ALT);
        WaitForFocus(page().txtCode);
        EXPECT_EQ(Status(), "4 rules");
        InWindow([&] { program->window.menu.mnuSave.SetEnabled(true); });
        Press('S', wxMOD_CONTROL);
        WaitForStatus("Saved");
    });
}

} // namespace
} // namespace zy::test
