#include "GridModeForm.h"

namespace zy::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// The grid as the program itself leaves it.
class GridOutOfReach : public GridModeForm {
  protected:
    void PressEveryKeyOn(ListView& control) {
        for (const Key key : {Key::Delete, Key::Up, Key::Down, Key::Left, Key::Right, Key::Home, Key::End,
                              Key::PageUp, Key::PageDown, Key::Tab, Key::Enter, Key::Escape, Key::F2,
                              Key::Digit0, Key::Digit2, Key::Digit3}) {
            for (int modifiers = 0; modifiers < 8; ++modifiers) {
                if (key != Key::Delete || modifiers != 0) {
                    control.Press({.key = key,
                                   .ctrl = (modifiers & 1) != 0,
                                   .alt = (modifiers & 2) != 0,
                                   .shift = (modifiers & 4) != 0});
                }
            }
        }
    }
    void ChooseEveryEntryOf(const MenuItem& bar) {
        for (auto* entry : bar.Entries()) {
            EXPECT_NE(entry, &menu().mnuAddRule);
            EXPECT_NE(entry, &menu().mnuDeleteRule);
            ChooseEveryEntryOf(*entry);
            entry->Click();
        }
    }
};

TEST_F(GridOutOfReach, IsNotShownByAnyEntryButtonOrKeyOfAWholeSession) {
    StartWithCodes({"A", "B", "C"});
    int changes = 0;
    page().fraGridMode.appearanceChanged.Connect([&] { ++changes; });
    list().Pick(2);
    PressEveryKeyOn(list());
    page().cmdUpDown.PressDown();
    page().cmdUpDown.PressUp();
    page().cmdAddList.Click();
    page().txtCode.Enter("N");
    Delete(Answer::Yes);
    page().cmdSaveRules.Click();
    page().cmdHelpRules.Click();
    world.dialogs.ExpectForm([](Form& /*about*/) {});
    ChooseEveryEntryOf(menu().mnuHelp);
    world.dialogs.ExpectForm([](Form& /*changes*/) {});
    world.dialogs.ExpectForm([](Form& /*versions*/) {});
    world.dialogs.ExpectForm([](Form& /*standard rules*/) {});
    world.dialogs.ExpectFileToWrite("Save Pictures", "Rules.svg", std::nullopt);
    world.dialogs.ExpectForm([](Form& /*standard rules*/) {});
    world.dialogs.ExpectFileToWrite("Save Pictures", "Rules.svg", std::nullopt);
    ChooseEveryEntryOf(menu().mnuEdit);
    ChooseEveryEntryOf(menu().mnuListPopMenu);
    ChooseEveryEntryOf(menu().mnuFile);
    EXPECT_EQ(unloaded, 1);
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(page().fraGridMode.Visible());
    EXPECT_EQ(grid().cells.Rows(), 1);
    for (const auto& trace : Traces()) {
        EXPECT_THAT(trace, Not(HasSubstr("TabSwitch")));
        EXPECT_THAT(trace, Not(HasSubstr("RulesGrid")));
        EXPECT_THAT(trace, Not(HasSubstr("RulesGRid")));
    }
}

TEST_F(GridOutOfReach, TakesNoKeyAndNoMouseWhileItIsHidden) {
    StartWithCodes({"A"});
    int opened = 0;
    menu().mnuGridPopMenu.popUp.Connect([&] { ++opened; });
    RightClick(0);
    grid().Pick(0, 0);
    grid().TypeOver("X");
    EXPECT_EQ(opened, 0);
    EXPECT_FALSE(grid().HasFocus());
    EXPECT_FALSE(grid().editor.IsOpen());
}

} // namespace
} // namespace zy::test
