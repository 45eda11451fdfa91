#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// The keys that work on the rule that is selected in the list.
class ListKeys : public RulesForm {
  protected:
    ListKeys() {
        StartWithCodes({"A", "B", "C"});
        list().Pick(2);
        Traces();
    }

    /// Presses the key with every set of modifiers but this one; nothing may come of it.
    void ExpectNothingFromOthers(Key key, KeyPress meant) {
        for (int modifiers = 0; modifiers < 8; ++modifiers) {
            const KeyPress press{.key = key,
                                 .ctrl = (modifiers & 1) != 0,
                                 .alt = (modifiers & 2) != 0,
                                 .shift = (modifiers & 4) != 0};
            if (press.ctrl != meant.ctrl || press.alt != meant.alt || press.shift != meant.shift) {
                list().Press(press);
                EXPECT_THAT(Codes(), ElementsAre("A", "B", "C")) << modifiers;
                ExpectInHand(2);
            }
        }
        ExpectMarks(false, false);
    }
};

TEST_F(ListKeys, DeleteAsksAndDeletes) {
    ExpectDeleteQuestion(Answer::Yes);
    list().Press({.key = Key::Delete});
    EXPECT_THAT(Codes(), ElementsAre("A", "C"));
    ExpectInHand(1);
}

TEST_F(ListKeys, DeleteLeavesTheRuleOnNo) {
    ExpectDeleteQuestion(Answer::No);
    list().Press({.key = Key::Delete});
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C"));
}

TEST_F(ListKeys, DeleteWithAModifierDoesNothing) {
    ExpectNothingFromOthers(Key::Delete, {.key = Key::Delete});
}

TEST_F(ListKeys, AltUpMovesTheRuleUp) {
    list().Press({.key = Key::Up, .alt = true});
    EXPECT_THAT(Codes(), ElementsAre("B", "A", "C"));
    ExpectInHand(1);
    list().Press({.key = Key::Up, .alt = true});
    ExpectInHand(1);
}

TEST_F(ListKeys, AltDownMovesTheRuleDown) {
    list().Press({.key = Key::Down, .alt = true});
    EXPECT_THAT(Codes(), ElementsAre("A", "C", "B"));
    ExpectInHand(3);
    list().Press({.key = Key::Down, .alt = true});
    ExpectInHand(3);
}

TEST_F(ListKeys, UpAndDownMoveNothingWithOtherModifiers) {
    ExpectNothingFromOthers(Key::Up, {.key = Key::Up, .alt = true});
    ExpectNothingFromOthers(Key::Down, {.key = Key::Down, .alt = true});
}

TEST_F(ListKeys, TraceTheKeyBeforeWhatItDoes) {
    list().Press({.key = Key::Up, .shift = true});
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings lstRulesList_KeyDown Start"));
    ExpectDeleteQuestion(Answer::No);
    list().Press({.key = Key::Delete});
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings lstRulesList_KeyDown Start",
                                      "frmGlobalSettings cmdDeleteList_Click Start",
                                      "frmGlobalSettings cmdDeleteList_Click Rule Deleted"));
}

TEST_F(ListKeys, DoNothingWhileTheButtonsTheyStandForAreDisabled) {
    page().cmdDeleteList.SetEnabled(false);
    page().cmdUpDown.SetEnabled(false);
    list().Press({.key = Key::Delete});
    list().Press({.key = Key::Up, .alt = true});
    list().Press({.key = Key::Down, .alt = true});
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C"));
}

} // namespace
} // namespace zy::test
