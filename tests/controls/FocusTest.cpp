#include <gtest/gtest.h>

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"

namespace zy::test {
namespace {

/// A form with two boxes and a button, whose first box can refuse to be left.
class FocusTest : public ::testing::Test {
  protected:
    FocusTest() {
        form.SetVisible(true);
        first.validate = [this] {
            ++asked;
            return mayLeave;
        };
        button.click.Connect([this] { ++clicks; });
    }

    Form form{"frm"};
    Frame frame{&form, "fra"};
    TextBox first{&frame, "txtFirst"};
    TextBox second{&frame, "txtSecond"};
    CommandButton button{&frame, "cmd", "Press"};
    bool mayLeave = true;
    int asked = 0;
    int clicks = 0;
};

TEST_F(FocusTest, NothingHasTheFocusAtFirst) {
    EXPECT_EQ(form.Focused(), nullptr);
    EXPECT_FALSE(first.HasFocus());
}

TEST_F(FocusTest, MovesToTheControlThatTheUserUses) {
    first.Type("x");
    EXPECT_TRUE(first.HasFocus());
    second.Type("y");
    EXPECT_TRUE(second.HasFocus());
    EXPECT_EQ(asked, 1);
}

TEST_F(FocusTest, StaysWhenTheControlThatIsLeftRefuses) {
    first.Type("x");
    mayLeave = false;
    EXPECT_FALSE(second.TakeFocus());
    EXPECT_TRUE(first.HasFocus());
}

TEST_F(FocusTest, KeepsAButtonUnpressedWhenTheControlThatIsLeftRefuses) {
    first.Type("x");
    mayLeave = false;
    button.Click();
    EXPECT_EQ(clicks, 0);
    mayLeave = true;
    button.Click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(FocusTest, KeepsTheTextOfABoxThatCouldNotTakeTheFocus) {
    first.Type("x");
    mayLeave = false;
    second.Type("y");
    second.Enter("z");
    EXPECT_EQ(second.Text(), "");
}

TEST_F(FocusTest, AsksNothingWhenTheFocusStaysInTheSameControl) {
    first.Type("x");
    first.Type("y");
    EXPECT_TRUE(first.TakeFocus());
    EXPECT_EQ(asked, 0);
}

TEST_F(FocusTest, AsksNothingWhenTheProgramMovesIt) {
    first.Type("x");
    mayLeave = false;
    second.SetFocus();
    EXPECT_TRUE(second.HasFocus());
    EXPECT_EQ(asked, 0);
}

TEST_F(FocusTest, AsksNothingOfAControlThatIsNotUsableAnyMore) {
    first.Type("x");
    mayLeave = false;
    first.SetEnabled(false);
    EXPECT_TRUE(second.TakeFocus());
    EXPECT_EQ(asked, 0);
}

TEST_F(FocusTest, AsksNoSecondQuestionWhileOneIsBeingAsked) {
    bool inner = true;
    first.validate = [&] {
        ++asked;
        inner = button.TakeFocus(); // as a click behind a message box would
        return true;
    };
    first.Type("x");
    second.TakeFocus();
    EXPECT_FALSE(inner);
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(second.HasFocus());
}

TEST_F(FocusTest, TellsItsViewAlsoWhenItWasRefused) {
    int told = 0;
    first.Type("x");
    const auto subscription = form.focusChanged.Observe([&] { ++told; });
    mayLeave = false;
    second.TakeFocus();
    EXPECT_EQ(told, 1);
}

TEST_F(FocusTest, GoesUnaskedToAButtonThatCausesNoValidation) {
    button.SetCausesValidation(false);
    first.Type("x");
    mayLeave = false;
    button.Click();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(asked, 0);
    EXPECT_TRUE(button.HasFocus());
}

TEST_F(FocusTest, AsksTheControlThatWasLeftUnaskedAsSoonAsTheFocusGoesOn) {
    button.SetCausesValidation(false);
    first.Type("x");
    mayLeave = false;
    button.Click();
    EXPECT_FALSE(second.TakeFocus());
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(first.HasFocus());
    mayLeave = true;
    EXPECT_TRUE(second.TakeFocus());
}

TEST_F(FocusTest, AsksNothingOnTheWayBackToTheControlThatWasLeftUnasked) {
    button.SetCausesValidation(false);
    first.Type("x");
    mayLeave = false;
    button.Click();
    EXPECT_TRUE(first.TakeFocus());
    EXPECT_EQ(asked, 0);
    EXPECT_FALSE(second.TakeFocus());
    EXPECT_EQ(asked, 1);
}

TEST_F(FocusTest, AsksNothingMoreOfAControlFromWhichTheProgramMovedTheFocusMeanwhile) {
    button.SetCausesValidation(false);
    first.Type("x");
    button.Click();
    button.SetFocus();
    EXPECT_TRUE(second.TakeFocus());
    EXPECT_EQ(asked, 0);
}

TEST_F(FocusTest, PassesOverControlsThatAreDisabledOrHiddenWithWhatContainsThem) {
    button.SetEnabled(false);
    button.Click();
    button.SetEnabled(true);
    button.SetVisible(false);
    button.Click();
    button.SetVisible(true);
    frame.SetEnabled(false);
    button.Click();
    frame.SetEnabled(true);
    frame.SetVisible(false);
    button.Click();
    frame.SetVisible(true);
    form.SetVisible(false);
    button.Click();
    EXPECT_EQ(clicks, 0);
    form.SetVisible(true);
    button.Click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(FocusTest, KnowsTheFormThatAControlStandsOn) {
    EXPECT_EQ(&button.Window(), &form);
    EXPECT_EQ(button.Parent(), &frame);
    EXPECT_EQ(frame.Children().size(), 3U);
}

} // namespace
} // namespace zy::test
