#include "RulesForm.h"
#include "UnitsOfTwoPrograms.h"
#include "shell/frmMerge.h"
#include "support/CrashedSession.h"
#include "support/UsersOnDisk.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr auto kTheirs = "A,a\r\nB,b of theirs\r\nC,c\r\n";

class ChangesByOthers : public UnitsOfTwoPrograms {
  protected:
    bool IsNoticeShown() { return form().fraNotice.Visible(); }
    std::string Notice() { return IsNoticeShown() ? form().lblNotice.Caption() : "none"; }
    void ExpectQuestion(CommandButton frmMerge::*answer) {
        ExpectDialog<frmMerge>([answer](frmMerge& question) { (question.*answer).Click(); });
    }
};

TEST_F(ChangesByOthers, NothingIsSaidOfAFileThatIsAsItWas) {
    ComeToTheWindow();
    WriteFile(kBefore);
    ComeToTheWindow();
    EXPECT_FALSE(IsNoticeShown());
    EXPECT_FALSE(window().menu.mnuOthers.Enabled());
}

TEST_F(ChangesByOthers, AChangeIsNoticedWhenTheUserComesToTheWindow) {
    world.files.SetLastChange(kUnitsFile, std::chrono::local_days(std::chrono::year(2026) / 11 / 20) +
                                              std::chrono::hours(14) + std::chrono::minutes(7));
    WriteFile(kTheirs);
    EXPECT_FALSE(IsNoticeShown());
    ComeToTheWindow();
    EXPECT_EQ(Notice(), "ZYUNITS.SYS was changed by another program at 14:07.");
    EXPECT_TRUE(window().menu.mnuOthers.Enabled());
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b", "C,c"));
}

TEST_F(ChangesByOthers, TheNoticeLeavesTheKeyboardAndTheStatusAlone) {
    const auto* focused = form().Focused();
    const auto status = Status();
    const auto place = grid().Bounds();
    WriteFile(kTheirs);
    ComeToTheWindow();
    EXPECT_EQ(form().Focused(), focused);
    EXPECT_EQ(Status(), status);
    EXPECT_EQ(grid().Bounds(), place);
}

TEST_F(ChangesByOthers, TheNoticeGoesWhenTheFileIsAgainAsItWas) {
    WriteFile(kTheirs);
    ComeToTheWindow();
    WriteFile(kBefore);
    ComeToTheWindow();
    EXPECT_FALSE(IsNoticeShown());
}

TEST_F(ChangesByOthers, AFileThatIsGoneOrCannotBeReadIsNotAChangedOne) {
    world.files.SetUnreadable(kUnitsFile);
    ComeToTheWindow();
    EXPECT_FALSE(IsNoticeShown());
    world.files.Take(kUnitsFile);
    ComeToTheWindow();
    EXPECT_FALSE(IsNoticeShown());
}

TEST_F(ChangesByOthers, AnIgnoredChangeIsToldNoMoreButTheNextOneIs) {
    WriteFile(kTheirs);
    ComeToTheWindow();
    form().lblIgnore.Click();
    EXPECT_FALSE(IsNoticeShown());
    ComeToTheWindow();
    EXPECT_FALSE(IsNoticeShown());
    WriteFile("D,d\r\n");
    ComeToTheWindow();
    EXPECT_TRUE(IsNoticeShown());
}

TEST_F(ChangesByOthers, AnIgnoredChangeIsAskedAboutBeforeASaveAllTheSame) {
    WriteFile(kTheirs);
    ComeToTheWindow();
    form().lblIgnore.Click();
    ExpectQuestion(&frmMerge::cmdCancel);
    Save();
    EXPECT_EQ(File(), kTheirs);
}

TEST_F(ChangesByOthers, LoadPutsTheFilesUnitsInPlaceAndLeavesNothingToSave) {
    Edit(1, kUnit, "mine");
    WriteFile(kTheirs);
    ComeToTheWindow();
    form().lblLoad.Click();
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b of theirs", "C,c"));
    EXPECT_FALSE(IsNoticeShown());
    ExpectMarks(false, false);
    EXPECT_THAT(Status(), EndsWith("Loaded; Edit > Undo brings back what was there"));
    EXPECT_EQ(window().menu.mnuUndo.Caption(), "&Undo Load ZYUNITS.SYS");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("A,mine", "B,b", "C,c"));
    ExpectMarks(true, false);
}

TEST_F(ChangesByOthers, AFileThatIsNoListAnyMoreIsNotLoaded) {
    WriteFile("no unit\r\n");
    ComeToTheWindow();
    form().lblLoad.Click();
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b", "C,c"));
    EXPECT_THAT(Status(), EndsWith("Not loaded: ZYUNITS.SYS cannot be read as a list"));
    EXPECT_TRUE(IsNoticeShown());
}

TEST_F(ChangesByOthers, WhoLoadsHasTheKeyboardInTheListAgain) {
    WriteFile(kTheirs);
    ComeToTheWindow();
    ASSERT_TRUE(form().lblLoad.TakeFocus());
    form().lblLoad.Click();
    EXPECT_TRUE(grid().HasFocus());
}

TEST_F(ChangesByOthers, F6GoesToTheNoticeAndBack) {
    const auto goOn = [this] { window().otherPart.Raise(); };
    grid().SetFocus();
    goOn();
    EXPECT_TRUE(grid().HasFocus()) << "there is no notice";
    WriteFile(kTheirs);
    ComeToTheWindow();
    goOn();
    EXPECT_TRUE(form().lblShow.HasFocus());
    goOn();
    EXPECT_TRUE(grid().HasFocus());
}

TEST_F(ChangesByOthers, ASaveThatNobodyDisturbsAsksNothing) {
    Edit(1, kUnit, "mine");
    Save();
    Edit(1, kUnit, "again");
    Save();
    EXPECT_EQ(File(), "A,again\r\nB,b\r\nC,c\r\n");
}

TEST_F(ChangesByOthers, ASaveShowsFirstWhatDiffersThreeWays) {
    Edit(1, kUnit, "mine");
    WriteFile(kTheirs);
    ExpectDialog<frmMerge>([](frmMerge& question) {
        EXPECT_EQ(question.Caption(), "ZY Setup - Changed by Another Program");
        EXPECT_EQ(question.lblHeading.Caption(), "ZYUNITS.SYS was changed by another program.");
        EXPECT_THAT(LinesOf(question.lstRows),
                    ElementsAre("a|a, A|a, A|(none)|(none)",
                                "b of theirs|(none)|b of theirs, B|(none)|b of theirs, B",
                                "mine|(none)|(none)|mine, A|mine, A", "b|b, B|(none)|b, B|(none)"));
        EXPECT_TRUE(question.cmdMerge.Enabled());
        EXPECT_FALSE(question.cmdMine.Enabled());
    });
    Save();
    EXPECT_EQ(File(), kTheirs) << "the close box answers as Cancel does";
    ExpectMarks(true, false);
}

TEST_F(ChangesByOthers, MergeAndSaveWritesTheWorkOfBoth) {
    Edit(1, kUnit, "mine");
    WriteFile(kTheirs);
    ExpectQuestion(&frmMerge::cmdMerge);
    Save();
    EXPECT_EQ(File(), "A,mine\r\nB,b of theirs\r\nC,c\r\n");
    ExpectMarks(false, false);
    EXPECT_EQ(Status(), "Saved");
    EXPECT_EQ(window().menu.mnuUndo.Caption(), "&Undo Merge Changes of ZYUNITS.SYS");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("A,mine", "B,b", "C,c"));
    ExpectMarks(true, false);
}

TEST_F(ChangesByOthers, OverwriteWritesTheListAsItStands) {
    Edit(1, kUnit, "mine");
    WriteFile(kTheirs);
    ExpectQuestion(&frmMerge::cmdOverwrite);
    Save();
    EXPECT_EQ(File(), "A,mine\r\nB,b\r\nC,c\r\n");
    Edit(1, kUnit, "next");
    Save();
    EXPECT_EQ(File(), "A,next\r\nB,b\r\nC,c\r\n");
}

TEST_F(ChangesByOthers, CancelKeepsTheWindowOpenThatWasToBeClosed) {
    Edit(1, kUnit, "mine");
    WriteFile(kTheirs);
    ExpectWishToSave(Answer::Yes);
    ExpectQuestion(&frmMerge::cmdCancel);
    EXPECT_FALSE(window().Unload());
    EXPECT_EQ(File(), kTheirs);
}

TEST_F(ChangesByOthers, WhatBothDidAlikeIsNotAskedAbout) {
    Edit(1, kUnit, "same");
    WriteFile("A,same\r\nB,b\r\nC,c\r\n");
    Save();
    EXPECT_EQ(Status(), "Saved");
}

TEST_F(ChangesByOthers, BytesThatMakeNoOtherListAreNotAskedAbout) {
    Edit(1, kUnit, "mine");
    WriteFile("A,a,,\r\nB,b\r\nC,c\r\n");
    Save();
    EXPECT_EQ(File(), "A,mine\r\nB,b\r\nC,c\r\n");
}

TEST_F(ChangesByOthers, WhatIsMergedIsCheckedBeforeItIsWritten) {
    Edit(1, kUnit, "mine");
    WriteFile("A,a\r\nB,\r\nC,c\r\n");
    ExpectQuestion(&frmMerge::cmdMerge);
    world.dialogs.ExpectMessage("Unit cannot be blank", "Invalid Unit");
    Save();
    EXPECT_EQ(File(), "A,a\r\nB,\r\nC,c\r\n");
    EXPECT_THAT(Units(), ElementsAre("A,mine", "B,", "C,c"));
    ExpectMarks(true, false);
}

TEST_F(ChangesByOthers, WhatWasMergedAndNotSavedComesBackAfterACrash) {
    Edit(1, kUnit, "mine");
    WriteFile("A,a\r\nB,\r\nC,c\r\n");
    ExpectQuestion(&frmMerge::cmdMerge);
    world.dialogs.ExpectMessage("Unit cannot be blank", "Invalid Unit");
    Save();
    AskedToRestore asked;
    ExpectRecovery(world, asked, &frmRecovery::cmdRestore);
    StartAfterBreak("@UNITS");
    EXPECT_THAT(Units(), ElementsAre("A,mine", "B,", "C,c"));
}

TEST_F(ChangesByOthers, AFileThatIsNoListAnyMoreCanOnlyBeOverwritten) {
    Edit(1, kUnit, "mine");
    WriteFile("no unit\r\n");
    ExpectDialog<frmMerge>([](frmMerge& question) {
        EXPECT_FALSE(question.cmdMerge.Enabled());
        EXPECT_THAT(LinesOf(question.lstRows), IsEmpty());
        EXPECT_EQ(question.lblText.Caption(),
                  "What it holds now cannot be read as a list, so it can only be overwritten.");
        question.cmdOverwrite.Click();
    });
    Save();
    EXPECT_EQ(File(), "A,mine\r\nB,b\r\nC,c\r\n");
}

TEST_F(ChangesByOthers, AChangeBehindTheQuestionRefusesTheSave) {
    Edit(1, kUnit, "mine");
    WriteFile(kTheirs);
    ExpectDialog<frmMerge>([this](frmMerge& question) {
        WriteFile("D,d\r\n");
        question.cmdMerge.Click();
    });
    Save();
    EXPECT_EQ(File(), "D,d\r\n");
    EXPECT_THAT(
        Status(),
        HasSubstr("Not saved: ZYUNITS.SYS was changed by another program at this moment; save again"));
    ExpectMarks(true, false);
}

TEST_F(ChangesByOthers, ShowLetsMergeWithoutWriting) {
    Edit(1, kUnit, "mine");
    WriteFile(kTheirs);
    ComeToTheWindow();
    ExpectDialog<frmMerge>([](frmMerge& question) {
        EXPECT_FALSE(question.cmdOverwrite.Visible());
        EXPECT_EQ(question.cmdMerge.Caption(), "Merge");
        question.cmdMerge.Click();
    });
    form().lblShow.Click();
    EXPECT_THAT(Units(), ElementsAre("A,mine", "B,b of theirs", "C,c"));
    EXPECT_EQ(File(), kTheirs);
    EXPECT_FALSE(IsNoticeShown());
    ExpectMarks(true, false);
    Save();
    EXPECT_EQ(File(), "A,mine\r\nB,b of theirs\r\nC,c\r\n");
}

TEST_F(ChangesByOthers, ShowOfWhatBothDidAlikeLeavesNothingToSave) {
    Edit(1, kUnit, "same");
    WriteFile("A,same\r\nB,b\r\nC,c\r\n");
    ComeToTheWindow();
    form().lblShow.Click();
    EXPECT_FALSE(IsNoticeShown());
    ExpectMarks(false, false);
    EXPECT_TRUE(window().Unload()) << "nothing is asked";
}

TEST_F(ChangesByOthers, TheMenuShowsTheChangeToo) {
    WriteFile(kTheirs);
    ComeToTheWindow();
    ExpectQuestion(&frmMerge::cmdMerge);
    window().menu.mnuOthers.Click();
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b of theirs", "C,c"));
}

TEST_F(ChangesByOthers, AFileThatCameAfterTheStartIsNotOverwrittenUnseen) {
    world.files.Take(kUnitsFile);
    Start("@UNITS");
    WriteFile(kTheirs);
    program().unitsPage.controls.cmdAddUNit.Click();
    grid().TypeOver("new");
    grid().editor.Commit();
    ExpectQuestion(&frmMerge::cmdMerge);
    Save();
    EXPECT_EQ(File(), "A,a\r\nB,b of theirs\r\nC,c\r\n,new\r\n");
}

TEST_F(ChangesByOthers, AFileThatVanishedIsWrittenAnew) {
    Edit(1, kUnit, "mine");
    world.files.Take(kUnitsFile);
    Save();
    EXPECT_EQ(File(), "A,mine\r\nB,b\r\nC,c\r\n");
}

// Rules: the code tells which is which, and the order counts.

class RulesOfTwoPrograms : public RulesForm {
  protected:
    RulesOfTwoPrograms() { StartWith({Rule("A", "1"), Rule("B", "1"), Rule("C", "1")}); }
    static RunRule Rule(const std::string& code, const std::string& min) {
        auto rule = RuleOf(code);
        rule.Min = min;
        rule.Max = "9";
        return rule;
    }
    void PickRule(int rule) { list().Pick(rule); }
    void TypeMin(std::string_view text) { page().txtMin.Enter(text); }
    std::string CodesAndMins() {
        std::string codes;
        for (int i = 1; i <= rules().gaRules.UBound(); ++i) {
            codes += rules().gaRules(i).Code + rules().gaRules(i).Min + " ";
        }
        return codes;
    }
    void WriteFile(const std::vector<RunRule>& rules) { world.files.Put(kRulesFile, Text(rules)); }
    void ExpectMerge(const std::function<void(frmMerge&)>& user) {
        world.dialogs.ExpectForm([user](Form& form) { user(dynamic_cast<frmMerge&>(form)); });
    }
};

TEST_F(RulesOfTwoPrograms, ARuleThatBothChangedHasToBeChosen) {
    TypeMin("2");
    WriteFile({Rule("A", "3"), Rule("B", "1"), Rule("C", "4")});
    ExpectMerge([](frmMerge& question) {
        EXPECT_THAT(LinesOf(question.lstRows),
                    ElementsAre("A|Min \"1\"|Min \"3\"|Min \"2\"|? choose mine or theirs",
                                "C|Min \"1\"|Min \"4\"|Min \"1\"|Min \"4\""));
        EXPECT_FALSE(question.cmdMerge.Enabled());
        question.cmdMerge.Click();
        EXPECT_TRUE(question.Visible());
        question.lstRows.Pick(2);
        EXPECT_FALSE(question.cmdMine.Enabled());
        question.lstRows.Pick(1);
        question.cmdTheirs.Click();
        EXPECT_EQ(question.lstRows.CellText(1, 4), "Min \"3\"");
        question.cmdMine.Click();
        question.cmdMerge.Click();
    });
    ChooseSave();
    EXPECT_EQ(CodesAndMins(), "A2 B1 C4 ");
    EXPECT_THAT(*File(), HasSubstr("MIN          = 2"));
    EXPECT_THAT(*File(), HasSubstr("MIN          = 4"));
}

TEST_F(RulesOfTwoPrograms, AnOrderThatBothChangedHasToBeChosen) {
    PickRule(3);
    list().Press({.key = Key::Up, .alt = true});
    ASSERT_EQ(CodesAndMins(), "A1 C1 B1 ");
    WriteFile({Rule("B", "1"), Rule("A", "1"), Rule("C", "1")});
    ExpectMerge([](frmMerge& question) {
        EXPECT_THAT(LinesOf(question.lstRows),
                    ElementsAre("(order)||changed|changed|? choose mine or theirs"));
        question.cmdTheirs.Click();
        question.cmdMerge.Click();
    });
    ChooseSave();
    EXPECT_EQ(CodesAndMins(), "B1 A1 C1 ");
}

TEST_F(RulesOfTwoPrograms, ALineThatTheProgramDoesNotKnowMakesNoOtherList) {
    TypeMin("2");
    world.files.Put(kRulesFile, "; a remark\r\n" + Text({Rule("A", "1"), Rule("B", "1"), Rule("C", "1")}));
    ChooseSave();
    EXPECT_EQ(Status(), "Saved");
}

TEST_F(RulesOfTwoPrograms, WhatIsTypedAndNotStoredStaysWithItsRule) {
    PickRule(2);
    TypeMin("2");
    WriteFile({Rule("N", "7"), Rule("A", "1"), Rule("B", "1"), Rule("C", "5")});
    window().activated.Raise();
    ExpectMerge([](frmMerge& question) { question.cmdMerge.Click(); });
    form().lblShow.Click();
    EXPECT_EQ(CodesAndMins(), "N7 A1 B1 C5 ");
    EXPECT_EQ(page().txtCode.Text(), "B");
    EXPECT_EQ(page().txtMin.Text(), "2");
    window().menu.mnuUndo.Click();
    EXPECT_EQ(CodesAndMins(), "A1 B1 C1 ");
    EXPECT_EQ(page().txtCode.Text(), "B");
    EXPECT_EQ(page().txtMin.Text(), "2");
}

TEST_F(RulesOfTwoPrograms, WhatIsTypedAndNotStoredGoesWithARuleThatSomebodyElseChangedAndUndoBringsItBack) {
    TypeMin("2");
    WriteFile({Rule("A", "3"), Rule("B", "1"), Rule("C", "1")});
    window().activated.Raise();
    ExpectMerge([](frmMerge& question) { question.cmdMerge.Click(); });
    form().lblShow.Click();
    EXPECT_EQ(page().txtMin.Text(), "3");
    window().menu.mnuUndo.Click();
    EXPECT_EQ(CodesAndMins(), "A1 B1 C1 ");
    EXPECT_EQ(page().txtMin.Text(), "2");
}

TEST_F(RulesOfTwoPrograms, WhoeverIgnoresAChangeKeepsWhatIsTypedAndNotStored) {
    TypeMin("2");
    WriteFile({Rule("A", "3"), Rule("B", "1"), Rule("C", "1")});
    window().activated.Raise();
    form().lblIgnore.Click();
    EXPECT_EQ(page().txtMin.Text(), "2");
    EXPECT_TRUE(list().HasFocus());
}

TEST_F(RulesOfTwoPrograms, WhatIsTypedAndNotStoredIsStillToBeSavedWhereTheListIsWhatTheFileHoldsNow) {
    TypeMin("2");
    world.files.Put(kRulesFile, "; a remark\r\n" + Text({Rule("A", "1"), Rule("B", "1"), Rule("C", "1")}));
    window().activated.Raise();
    form().lblShow.Click();
    EXPECT_FALSE(form().fraNotice.Visible());
    EXPECT_NE(ValueOf(form().ChangeFlag), 0);
    AskedToRestore asked;
    ExpectRecovery(world, asked, &frmRecovery::cmdRestore);
    ASSERT_EQ(StartAfterBreak("@RULES"), StartUp::WindowShown);
    EXPECT_EQ(page().txtMin.Text(), "2");
}

TEST_F(RulesOfTwoPrograms, ASaveAtClosingMergesTheRulesAsTheyAreHeld) {
    PickRule(3);
    list().Press({.key = Key::Up, .alt = true});
    TypeMin("unchecked");
    WriteFile({Rule("A", "4"), Rule("B", "1"), Rule("C", "1")});
    ExpectWishToSave(Answer::Yes);
    ExpectMerge([](frmMerge& question) { question.cmdMerge.Click(); });
    EXPECT_TRUE(window().Unload());
    auto expected = std::vector{Rule("A", "4"), Rule("C", "1"), Rule("B", "1")};
    for (auto& rule : expected) {
        rule.Description += "  "; // as a file's description is loaded
    }
    EXPECT_EQ(*File(), Text(expected));
}

// Users: the name tells which is which.

class UsersOfTwoPrograms : public ProgramTest {
  protected:
    UsersOfTwoPrograms() {
        PutUsersTable(world, {User("ann"), User("bob")});
        Start("@SECURITY");
    }
};

TEST_F(UsersOfTwoPrograms, APasswordThatSomebodyElseSetIsNotLost) {
    auto& grid = program().securityPage.controls.grdSecurity;
    grid.Pick(1, kIdentification);
    grid.TypeOver("mine");
    grid.editor.Commit();
    world.files.Delete(R"(C:\SYS\ZYSECURE.DBF)");
    PutUsersTable(world, {User("ann"), User("bob", "new")});
    world.dialogs.ExpectForm([](Form& form) {
        auto& question = dynamic_cast<frmMerge&>(form);
        EXPECT_THAT(
            LinesOf(question.lstRows),
            Contains("bob|Password \"secret\"|Password \"new\"|Password \"secret\"|Password \"new\""));
        question.cmdMerge.Click();
    });
    window().menu.mnuSave.Click();
    const auto users = UsersInTable(world);
    ASSERT_TRUE(users);
    EXPECT_EQ(users->at(0).IDENTIFIER, "mine");
    EXPECT_EQ(users->at(1).PASSWORD, "new");
}

} // namespace
} // namespace zy::test
