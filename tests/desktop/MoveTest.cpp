#include "RulesWindow.h"

namespace zy::test {
namespace {

class MoveWindow : public RulesWindow {
  protected:
    std::vector<std::string> Codes() {
        std::vector<std::string> codes;
        const int count = InWindow([&] { return page().lstRulesList.Count(); });
        for (int item = 1; item <= count; ++item) {
            codes.push_back(Row(item).front());
        }
        return codes;
    }
    void PressAndLetGoOfAltFirst(int key) {
        hands->HoldKey(WXK_ALT);
        hands->HoldKey(key);
        hands->LetGoOfKey(WXK_ALT);
        hands->LetGoOfKey(key);
    }
};

using ::testing::ElementsAre;

TEST_F(MoveWindow, TheArrowsMoveTheSelectedRule) {
    PutRules(ThreeRules());
    Play([&] {
        ClickRow(2);
        WaitForSelection(2);
        ClickUp();
        WaitForSelection(1);
        EXPECT_THAT(Codes(), ElementsAre("R2", "R1", "R3"));
        ClickDown();
        WaitForSelection(2);
        ClickDown();
        WaitForSelection(3);
        EXPECT_THAT(Codes(), ElementsAre("R1", "R3", "R2"));
        EXPECT_EQ(TextIn(page().txtCode), "R2");
    });
}

TEST_F(MoveWindow, TheFirstRuleDoesNotMoveUpNorTheLastDown) {
    PutRules(ThreeRules());
    Play([&] {
        ClickRow(1);
        WaitForFocus(page().lstRulesList);
        Press(WXK_UP, wxMOD_ALT);
        Press(WXK_END);
        WaitForSelection(3);
        Press(WXK_DOWN, wxMOD_ALT);
        Press(WXK_HOME);
        WaitForSelection(1);
        EXPECT_THAT(Codes(), ElementsAre("R1", "R2", "R3"));
        EXPECT_FALSE(InWindow([&] { return static_cast<bool>(program->form.ChangeFlag); }));
    });
}

TEST_F(MoveWindow, AltWithAnArrowKeyMovesTheRuleAndTheKeyboardGoesOnFromThere) {
    PutRules(ThreeRules());
    Play([&] {
        ClickRow(3);
        WaitForFocus(page().lstRulesList);
        Press(WXK_UP, wxMOD_ALT);
        WaitForSelection(2);
        EXPECT_THAT(Codes(), ElementsAre("R1", "R3", "R2"));
        Press(WXK_UP);
        WaitForSelection(1);
        Press(WXK_DOWN, wxMOD_ALT);
        WaitForSelection(2);
        EXPECT_THAT(Codes(), ElementsAre("R3", "R1", "R2"));
        WaitForFocus(page().lstRulesList);
    });
}

TEST_F(MoveWindow, AltThatIsLetGoBeforeTheArrowKeyLeavesTheMenuBarAlone) {
    PutRules(ThreeRules());
    Play([&] {
        ClickRow(1);
        WaitForFocus(page().lstRulesList);
        PressAndLetGoOfAltFirst(WXK_DOWN);
        WaitForSelection(2);
        Press(WXK_DOWN);
        WaitForSelection(3);
        PressAndLetGoOfAltFirst(WXK_UP);
        WaitForSelection(2);
        Press(WXK_UP);
        WaitForSelection(1);
        EXPECT_THAT(Codes(), ElementsAre("R2", "R3", "R1"));
    });
}

TEST_F(MoveWindow, AKeyPressedRightBehindAnotherMovesTheRowThatWasReached) {
    PutRules(ThreeRules());
    Play([&] {
        WaitForFocus(page().lstRulesList);
        Press(WXK_DOWN);
        Press(WXK_DOWN, wxMOD_ALT);
        WaitForSelection(3);
        EXPECT_THAT(Codes(), ElementsAre("R1", "R3", "R2"));
    });
}

TEST_F(MoveWindow, AltWithAnArrowKeyMovesTheRuleWhileAnArrowHasTheFocusToo) {
    PutRules(ThreeRules());
    Play([&] {
        ClickRow(2);
        WaitForSelection(2);
        ClickUp();
        WaitForSelection(1);
        WaitForFocus(page().cmdUpDown);
        Press(WXK_DOWN, wxMOD_ALT);
        WaitForSelection(2);
        Press(WXK_DOWN, wxMOD_ALT);
        WaitForSelection(3);
        Press(WXK_UP, wxMOD_ALT);
        WaitForSelection(2);
        EXPECT_THAT(Codes(), ElementsAre("R1", "R2", "R3"));
    });
}

TEST_F(MoveWindow, ARuleThatMovesStaysInViewAndTheListDoesNotJump) {
    PutRules(ManyRules(32767));
    Play([&] {
        WaitForFocus(page().lstRulesList);
        Press(WXK_PAGEDOWN); // goes to the end of the first page,
        WaitUntil("a page has gone by", [&] { return page().lstRulesList.Selected() > 1; });
        const int end = InWindow([&] { return page().lstRulesList.Selected(); });
        Press(WXK_PAGEDOWN); // and then to the end of the second
        WaitUntil("two pages have gone by", [&] { return page().lstRulesList.Selected() > end; });
        const int item = InWindow([&] { return page().lstRulesList.Selected(); }) - 2;
        Press(WXK_UP);
        Press(WXK_UP);
        WaitForSelection(item);
        const auto below = PlaceAtRest(item);
        Press(WXK_UP, wxMOD_ALT);
        WaitForSelection(item - 1);
        EXPECT_TRUE(IsRowVisible(item - 1));
        EXPECT_EQ(PlaceAtRest(item), below);
        EXPECT_EQ(Row(item - 1).back(), "Rule number " + std::to_string(item) + "  ");
    });
}

} // namespace
} // namespace zy::test
