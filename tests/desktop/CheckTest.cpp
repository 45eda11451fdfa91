#include <wx/frame.h>
#include <wx/utils.h>

#include "RulesWindow.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr auto kBlankCode = "Rule Code cannot be Blank";
constexpr auto kInvalidCode = "Invalid Rule Code";

class CheckWindow : public RulesWindow {
  protected:
    CheckWindow() { PutRules(ThreeRules()); }

    /// Leaves the code empty, which is wrong, with the focus still on it.
    void EmptyTheCode() {
        Enter(page().txtCode);
        Press('A', wxMOD_CONTROL);
        Press(WXK_DELETE);
        WaitUntil("the code is empty", [&] { return page().txtCode.Text().empty(); });
    }
    /// Long enough for the window to have done everything that it does meanwhile.
    void HoldMouseAWhile(const wxPoint& place) {
        hands->PushMouse(place);
        for (int i = 0; i < 20; ++i) {
            InWindow([] { wxMilliSleep(5); });
        }
        EXPECT_TRUE(BoxesSeen().empty());
        hands->LetGoOfMouse();
    }
    void ExpectToBeKept() {
        ExpectBox(kBlankCode, kInvalidCode);
        PressInBox(WXK_RETURN);
        WaitForFocus(page().txtCode);
    }
    /// Puts the code right and leaves the box, which shows that nothing else was asked on the way.
    void PutRightAndLeave() {
        Type("R1");
        Press(WXK_TAB);
        WaitForFocus(page().txtMin);
        EXPECT_THAT(BoxesSeen(), ElementsAre(kBlankCode));
    }
};

TEST_F(CheckWindow, TabDoesNotLeaveAWrongCodeAndTellsWhyOnce) {
    Play([&] {
        EmptyTheCode();
        Press(WXK_TAB);
        ExpectToBeKept();
        PutRightAndLeave();
    });
}

TEST_F(CheckWindow, AWrongTextIsSelectedForCorrection) {
    Play([&] {
        Fill(page().txtMin, "0");
        Press(WXK_TAB);
        ExpectBox("Min Must be between 1 and 100", "Invalid Rule Min Value");
        PressInBox(WXK_RETURN);
        WaitForFocus(page().txtMin);
        Type("2"); // replaces what is selected
        WaitUntil("the new text is taken", [&] { return page().txtMin.Text() == "2"; });
        Press(WXK_TAB);
        WaitForFocus(page().txtMax);
    });
}

TEST_F(CheckWindow, AClickOnAnotherBoxDoesNotLeaveAWrongCode) {
    Play([&] {
        EmptyTheCode();
        Click(page().txtDescription);
        ExpectToBeKept();
        PutRightAndLeave();
    });
}

TEST_F(CheckWindow, AClickOnAButtonDoesNotPressItWhenTheCodeIsWrong) {
    Play([&] {
        EmptyTheCode();
        Click(page().cmdAddList);
        ExpectToBeKept();
        EXPECT_EQ(InWindow([&] { return page().lstRulesList.Count(); }), 3);
        PutRightAndLeave();
        EXPECT_EQ(InWindow([&] { return page().lstRulesList.Count(); }), 3);
    });
}

TEST_F(CheckWindow, AButtonHeldDownForAWhileIsNotPressedWhenTheCodeIsWrong) {
    Play([&] {
        EmptyTheCode();
        HoldMouseAWhile(PlaceOf(page().cmdAddList));
        ExpectToBeKept();
        PutRightAndLeave();
        EXPECT_EQ(InWindow([&] { return page().lstRulesList.Count(); }), 3);
        Click(page().cmdAddList); // works again
        WaitForSelection(4);
    });
}

TEST_F(CheckWindow, AClickOnAnArrowDoesNotMoveTheRuleWhenTheCodeIsWrong) {
    Play([&] {
        EmptyTheCode();
        ClickDown();
        ExpectToBeKept();
        PutRightAndLeave();
        EXPECT_EQ(Row(1).front(), "R1");
    });
}

TEST_F(CheckWindow, AClickOnARowDoesNotPickItWhenTheCodeIsWrong) {
    Play([&] {
        EmptyTheCode();
        ClickRow(3);
        ExpectToBeKept();
        WaitForSelection(1);
        PutRightAndLeave();
        EXPECT_EQ(TextIn(page().txtCode), "R1");
        ClickRow(2); // works again
        WaitForSelection(2);
    });
}

TEST_F(CheckWindow, ARowHeldDownForAWhileIsNotPickedWhenTheCodeIsWrong) {
    Play([&] {
        EmptyTheCode();
        HoldMouseAWhile(PlaceOfRow(3));
        ExpectToBeKept();
        WaitForSelection(1);
        PutRightAndLeave();
    });
}

TEST_F(CheckWindow, AClickOnADropDownListDoesNotOpenItWhenTheCodeIsWrong) {
    Play([&] {
        EmptyTheCode();
        Click(page().cboZone);
        ExpectToBeKept();
        PutRightAndLeave();
        EXPECT_EQ(ItemIn(page().cboZone), "UCL - Upper Control Limit (Red)");
    });
}

TEST_F(CheckWindow, AnAccessKeyDoesNotLeaveAWrongCode) {
    Play([&] {
        EmptyTheCode();
        Press('D', wxMOD_ALT);
        ExpectToBeKept();
        Press('A', wxMOD_ALT); // the Add button's
        WaitUntil("the second box opens", [&] { return boxes.Active() != nullptr; });
        PressInBox(WXK_RETURN);
        WaitForFocus(page().txtCode);
        EXPECT_EQ(InWindow([&] { return page().lstRulesList.Count(); }), 3);
    });
}

TEST_F(CheckWindow, MinAboveMaxIsToldOnLeavingEitherOfThem) {
    Play([&] {
        Fill(page().txtMin, "9");
        Press(WXK_TAB);
        ExpectBox("Min Value must be less than Max Value", "Invalid Rule Max or Min Value");
        PressInBox(WXK_RETURN);
        WaitForFocus(page().txtMin);
        Type("1");
        Press(WXK_TAB);
        WaitForFocus(page().txtMax);
        EXPECT_EQ(BoxesSeen().size(), 1U);
    });
}

TEST_F(CheckWindow, AMenuAsksNothingOfAFieldThatIsBeingEdited) {
    Play([&] {
        EmptyTheCode();
        Press('F', wxMOD_ALT);
        Press(WXK_ESCAPE);
        Press(WXK_ESCAPE);
        Type("R1");
        WaitUntil("the keys go to the code again", [&] { return page().txtCode.Text() == "R1"; });
        EXPECT_TRUE(BoxesSeen().empty());
    });
}

TEST_F(CheckWindow, AnotherWindowThatTakesTheFocusAsksNothing) {
    Play([&] {
        EmptyTheCode();
        auto* other = InWindow([] {
            auto* frame = new wxFrame(nullptr, wxID_ANY, "Another program");
            frame->Show();
            return frame;
        });
        WaitUntil("the other window is active", [&] { return other->IsActive(); });
        InWindow([&] { other->Destroy(); });
        WaitForFocus(page().txtCode);
        EXPECT_TRUE(BoxesSeen().empty());
        Press(WXK_TAB);
        ExpectToBeKept();
    });
}

TEST_F(CheckWindow, FileSaveChecksTheWholeFormAndWritesNothingWhenItIsWrong) {
    const auto before = File();
    Play([&] {
        Fill(page().txtDescription, "with \"quotes\"");
        Press('S', wxMOD_CONTROL);
        ExpectBox("Rule Description cannot contain double quotes", "Invalid Rule Description");
        PressInBox(WXK_RETURN);
        WaitForFocus(page().txtDescription);
        EXPECT_EQ(BoxesSeen().size(), 1U);
    });
    EXPECT_EQ(File(), before);
}

} // namespace
} // namespace zy::test
