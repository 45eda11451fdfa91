#include <algorithm>

#include "GridModeForm.h"
#include "rules/RulesFileText.h"
#include "support/CrashedSession.h"
#include "support/UndoWalk.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UndoRules : public GridModeForm {
  protected:
    UndoRules() { StartWithCodes({"A", "B", "C"}); }

    void Undo() { window().menu.mnuUndo.Click(); }
    void Redo() { window().menu.mnuRedo.Click(); }
    std::string UndoEntry() { return menu().mnuUndo.Caption(); }
    std::string RedoEntry() { return menu().mnuRedo.Caption(); }
    void Type(TextBox& box, const std::string& text) {
        for (std::size_t i = 1; i <= text.size(); ++i) {
            box.Enter(text.substr(0, i));
        }
    }
};

TEST_F(UndoRules, NothingCanBeTakenBackAtFirst) {
    EXPECT_EQ(UndoEntry(), "&Undo");
    EXPECT_FALSE(menu().mnuUndo.Enabled());
    EXPECT_FALSE(menu().mnuRedo.Enabled());
    list().Pick(2);
    EXPECT_FALSE(menu().mnuUndo.Enabled()) << "to pick a rule is no step";
}

TEST_F(UndoRules, ADeletedRuleComesBackWhereItWas) {
    list().Pick(2);
    Delete(Answer::Yes);
    EXPECT_EQ(UndoEntry(), "&Undo Delete Rule B");
    Undo();
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C"));
    ExpectInHand(2);
    EXPECT_TRUE(list().HasFocus());
    EXPECT_EQ(Status(), "3 rules   -   Undone: Delete Rule B");
    ExpectMarks(false, false);
    Redo();
    EXPECT_THAT(Codes(), ElementsAre("A", "C"));
    ExpectMarks(true, false);
}

TEST_F(UndoRules, TheOnlyRuleThatWasDeletedComesBack) {
    StartWithCodes({"A"});
    Delete(Answer::Yes);
    Undo();
    ExpectInHand(1);
    EXPECT_EQ(page().txtCode.Text(), "A");
    EXPECT_TRUE(page().txtCode.IsUsable());
    EXPECT_TRUE(page().cmdDeleteList.Enabled());
    Redo();
    EXPECT_EQ(rules().giCurRule, -1);
    EXPECT_FALSE(page().txtCode.IsUsable());
}

TEST_F(UndoRules, AnAddedRuleGoesAndComes) {
    page().cmdAddList.Click();
    EXPECT_EQ(UndoEntry(), "&Undo Add Rule");
    Undo();
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C"));
    ExpectInHand(1);
    Redo();
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C", "NEW"));
    ExpectInHand(4);
    EXPECT_TRUE(page().txtCode.HasFocus());
}

TEST_F(UndoRules, ARunOfMovesOfOneRuleIsOneStep) {
    page().cmdUpDown.PressDown();
    page().cmdUpDown.PressDown();
    EXPECT_THAT(Codes(), ElementsAre("B", "C", "A"));
    EXPECT_EQ(UndoEntry(), "&Undo Move Rule A");
    Undo();
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C"));
    ExpectInHand(1);
    EXPECT_EQ(UndoEntry(), "&Undo");
    Redo();
    EXPECT_THAT(Codes(), ElementsAre("B", "C", "A"));
    ExpectInHand(3);
}

TEST_F(UndoRules, ARunOfMovesEndsWhereTheKeyboardGoesElsewhere) {
    page().cmdUpDown.PressDown();
    page().txtCode.TakeFocus();
    list().TakeFocus();
    page().cmdUpDown.PressDown();
    Undo();
    EXPECT_THAT(Codes(), ElementsAre("B", "A", "C"));
}

// Fields of the detail form.

TEST_F(UndoRules, TypingIntoAFieldIsOneStep) {
    list().Pick(2);
    Type(page().txtDescription, "other text");
    EXPECT_EQ(UndoEntry(), "&Undo Edit Description");
    list().TakeFocus();
    Undo();
    EXPECT_EQ(page().txtDescription.Text(), "text  ");
    EXPECT_TRUE(page().txtDescription.HasFocus());
    ExpectMarks(false, false);
    EXPECT_EQ(UndoEntry(), "&Undo");
    Redo();
    EXPECT_EQ(page().txtDescription.Text(), "other text");
    ExpectInHand(2);
    ExpectMarks(true, false);
}

TEST_F(UndoRules, TypingIntoAFieldThatWasLeftMeanwhileIsAnotherStep) {
    Type(page().txtMin, "2");
    page().txtMax.TakeFocus();
    Type(page().txtMin, "21");
    Undo();
    EXPECT_EQ(page().txtMin.Text(), "2");
    Undo();
    EXPECT_EQ(page().txtMin.Text(), "1");
}

TEST_F(UndoRules, PickingAnItemIsAStep) {
    page().cboCondition.Pick(3);
    page().cboZone.Pick(4);
    EXPECT_EQ(UndoEntry(), "&Undo Edit Zone");
    Undo();
    EXPECT_EQ(page().cboZone.ListIndex(), 1);
    EXPECT_TRUE(page().cboZone.HasFocus());
    EXPECT_EQ(UndoEntry(), "&Undo Edit Condition");
    Undo();
    EXPECT_EQ(page().cboCondition.ListIndex(), 0);
}

TEST_F(UndoRules, AnEditIsTakenBackInItsRuleWhicheverOneIsShown) {
    Type(page().txtDescription, "other");
    ChooseSave();
    list().Pick(3);
    Undo();
    ExpectInHand(1);
    EXPECT_EQ(page().txtDescription.Text(), "text  ");
    EXPECT_EQ(rules().gaRules(1).Description, "text  ");
    ExpectMarks(true, true);
    ChooseSave();
    EXPECT_EQ(File(), Text({Loaded("A"), Loaded("B"), Loaded("C")}));
}

TEST_F(UndoRules, AnEditThatWasSavedIsDoneAgainInItsRule) {
    Type(page().txtDescription, "other");
    ChooseSave();
    Undo();
    Redo();
    EXPECT_EQ(rules().gaRules(1).Description, "other");
    ExpectMarks(false, true);
    EXPECT_TRUE(window().Unload()) << "closing asks nothing";
}

TEST_F(UndoRules, OfTwoEditsThatWereSavedTheFirstStaysWhenTheSecondIsTakenBack) {
    Type(page().txtMin, "2");
    Type(page().txtMax, "5");
    ChooseSave();
    Undo();
    EXPECT_EQ(page().txtMin.Text(), "2");
    EXPECT_EQ(page().txtMax.Text(), "2");
    ChooseSave();
    EXPECT_EQ(rules().gaRules(1).Min, "2");
    EXPECT_EQ(rules().gaRules(1).Max, "2");
    Undo();
    Undo();
    EXPECT_EQ(page().txtMin.Text(), "1");
    EXPECT_EQ(rules().gaRules(1).Min, "1");
}

// Texts that were typed and not stored.

TEST_F(UndoRules, TextThatWasDroppedByPickingAnotherRuleComesBackWithItsRule) {
    Type(page().txtDescription, "other");
    list().Pick(2);
    EXPECT_EQ(UndoEntry(), "&Undo Discard Changes of A");
    Undo();
    ExpectInHand(1);
    EXPECT_EQ(page().txtDescription.Text(), "other");
    EXPECT_TRUE(page().txtDescription.HasFocus());
    ChooseSave();
    EXPECT_EQ(rules().gaRules(1).Description, "other");
}

TEST_F(UndoRules, DroppedTextIsDroppedAgain) {
    Type(page().txtDescription, "other");
    list().Pick(2);
    Undo();
    Redo();
    ExpectInHand(2);
    list().Pick(1);
    EXPECT_EQ(page().txtDescription.Text(), "text  ");
    Undo();
    Undo();
    EXPECT_EQ(page().txtDescription.Text(), "text  ");
    EXPECT_EQ(UndoEntry(), "&Undo");
}

TEST_F(UndoRules, TextThatMovingItsRuleDropsComesBackWithTheMove) {
    Type(page().txtDescription, "other");
    page().cmdUpDown.PressDown();
    EXPECT_EQ(Status(), "3 rules   -   Changes of A dropped; Edit > Undo brings them back");
    Undo();
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C"));
    ExpectInHand(1);
    EXPECT_EQ(page().txtDescription.Text(), "other");
    Redo();
    EXPECT_THAT(Codes(), ElementsAre("B", "A", "C"));
    ExpectInHand(2);
    EXPECT_EQ(page().txtDescription.Text(), "text  ");
}

TEST_F(UndoRules, TextOfADeletedRuleComesBackWithTheRule) {
    Type(page().txtDescription, "other");
    Delete(Answer::Yes);
    EXPECT_EQ(Status(), "2 rules");
    Undo();
    ExpectInHand(1);
    EXPECT_EQ(page().txtDescription.Text(), "other");
}

TEST_F(UndoRules, AFieldThatIsWrongIsNoHindrance) {
    page().txtMin.Enter("x");
    Undo();
    EXPECT_EQ(page().txtMin.Text(), "1");
}

// Marks.

TEST_F(UndoRules, AfterASaveThatFailedNoStateCountsAsSaved) {
    Type(page().txtMin, "2");
    world.files.Put(kTemporary, "in the way");
    world.files.Plan({.operation = 1, .lasting = true});
    page().cmdSaveRules.Click();
    ASSERT_TRUE(rules().LastSaveFailed());
    Undo();
    Redo();
    ExpectMarks(true, false);
}

TEST_F(UndoRules, TheLastSaveIsWhereNothingIsChanged) {
    page().cmdAddList.Click();
    page().cmdSaveRules.Click();
    Undo();
    ExpectMarks(true, false);
    Redo();
    ExpectMarks(false, false);
    Undo();
    page().cmdSaveRules.Click();
    EXPECT_EQ(File(), Text({Loaded("A"), Loaded("B"), Loaded("C")}));
}

TEST_F(UndoRules, TextThatTheFileLacksBringsTheMarkBack) {
    Type(page().txtMin, "2");
    page().cmdSaveRules.Click();
    ExpectMarks(false, false);
    list().Pick(2);
    Undo();
    ExpectMarks(true, false);
    ChooseSave();
    EXPECT_EQ(rules().gaRules(1).Min, "2");
    ExpectMarks(false, true);
}

// The grid.

TEST_F(UndoRules, ARuleDeletedInTheGridComesBackThere) {
    ShowGridOver({"A", "B"});
    grid().Pick(1, 0);
    menu().mnuDeleteRule.Click();
    EXPECT_EQ(UndoEntry(), "&Undo Delete Rule A");
    Undo();
    EXPECT_THAT(GridCodes(), ElementsAre("A", "B"));
    EXPECT_THAT(Codes(), ElementsAre("A", "B"));
}

TEST_F(UndoRules, WhatTheGridStoresIsOneStep) {
    ShowGridOver({"A", "B"});
    Fill(1, kMinColumn, "2");
    Fill(2, kMaxColumn, "9");
    ASSERT_TRUE(handlers().StoreBeforeTabSwitch());
    EXPECT_EQ(UndoEntry(), "&Undo Edit Rules");
    Undo();
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  ", "B|1|2|>|UCL|text  "));
}

class RandomUndoRules : public UndoRules, public RandomUser {
  protected:
    void StartOver() override { StartWithCodes({"A", "B", "C"}); }
    EditSteps& Steps() override { return handlers().Steps(); }
    void Act() override {
        list().SetFocus(); // without the checks of a field that is left; it ends a run of moves
        switch (Below(12)) {
        case 0:
            page().cmdAddList.Click();
            break;
        case 1:
            if (list().Selected() != 0) {
                Delete(Below(4) == 0 ? Answer::No : Answer::Yes);
            }
            break;
        case 2:
            page().cmdUpDown.PressUp();
            break;
        case 3:
            for (int i = Below(4); i >= 0; --i) {
                page().cmdUpDown.PressDown();
            }
            break;
        case 4:
            page().cmdSaveRules.Click();
            break;
        case 5:
            Store();
            break;
        case 6:
        case 7:
            if (list().Count() > 0) {
                list().Pick(1 + Below(list().Count()));
            }
            break;
        default:
            EditField();
        }
    }
    void EditField() {
        switch (Below(4)) {
        case 0:
            page().cboCondition.Pick(Below(5));
            break;
        case 1:
            page().txtMin.Enter(std::to_string(1 + Below(3)));
            break;
        case 2:
            page().txtCode.Enter(Letters());
            break;
        default:
            page().txtDescription.Enter(Letters());
        }
    }
    /// What File > Save does, without its checks.
    void Store() {
        if (rules().giCurRule != -1) {
            handlers().details.Save_Rules_Edit(rules().giCurRule);
            page().cmdSaveRules.Click();
        }
    }
    std::string Bytes() override {
        RuleList all;
        std::vector<RunRule> copies;
        const int count = rules().gaRules.UBound();
        copies.reserve(static_cast<std::size_t>(count));
        for (int i = 1; i <= count; ++i) {
            const RunRule& held = rules().gaRules(i);
            all.Append(copies.emplace_back(i == rules().giCurRule ? RuleInForm(page(), held) : held));
        }
        return RulesFileText(all);
    }

    /// The same but for the two blanks that loading leaves behind a description.
    std::string BytesWithoutBlanks() {
        auto bytes = Bytes();
        for (auto at = bytes.find("  \r"); at != std::string::npos; at = bytes.find("  \r")) {
            bytes.erase(at, 2);
        }
        return bytes;
    }
};

TEST_F(RandomUndoRules, StepsLeadBackAndForthToTheSameFile) {
    WalkAtRandom(*this);
}

TEST_F(RandomUndoRules, WhateverWasDoneComesBackAfterTheProgramBrokeOff) {
    for (int round = 0; round < 60; ++round) {
        for (int i = Below(40); i >= 0; --i) {
            const int what = Below(6);
            if (what == 0) {
                Undo();
            } else if (what == 1) {
                Redo();
            } else {
                Act();
            }
        }
        const auto before = BytesWithoutBlanks();
        AskedToRestore asked;
        const auto lost = world.journals.Entries().size();
        if (lost > 0) {
            ExpectRecovery(world, asked, &frmRecovery::cmdRestore);
        }
        ASSERT_EQ(StartAfterBreak("@RULES"), StartUp::WindowShown);
        ASSERT_EQ(BytesWithoutBlanks(), before) << "round " << round;
        ASSERT_EQ(asked.times, static_cast<int>(lost));
    }
}

} // namespace
} // namespace zy::test
