#include "RulesForm.h"
#include "UnitsOfTwoPrograms.h"
#include "shell/frmChanges.h"
#include "support/UsersOnDisk.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;

class UnsavedChanges : public UnitsOfTwoPrograms {
  protected:
    void LookAndDo(const std::function<void(frmChanges&)>& user) {
        ExpectDialog<frmChanges>(user);
        window().menu.mnuChanges.Click();
    }
    /// Takes the difference back that stands there.
    void Revert(int item) {
        LookAndDo([item](frmChanges& dialog) {
            if (dialog.lstChanges.Selected() != item) {
                dialog.lstChanges.Pick(item);
            }
            dialog.cmdRevert.Click();
        });
    }
    std::vector<std::string> Lines() {
        std::vector<std::string> lines;
        LookAndDo([&lines](frmChanges& dialog) { lines = LinesOf(dialog.lstChanges); });
        return lines;
    }
    void Delete(int row) {
        grid().Pick(row, 0);
        world.dialogs.ExpectYesNo("Are you sure you wish to delete this Unit of Measure?", "Confirm Delete",
                                  Answer::Yes);
        program().unitsPage.controls.cmdDeleteUnit.Click();
    }
    void MoveDown(int row) {
        grid().Pick(row, 0);
        grid().Press({.key = Key::Down, .alt = true});
    }
};

TEST_F(UnsavedChanges, AreNoneAtFirst) {
    LookAndDo([](frmChanges& dialog) {
        EXPECT_EQ(dialog.Caption(), "ZY Setup - Changes Since the Last Save");
        EXPECT_EQ(dialog.lblHeading.Caption(), "A save makes these changes: no difference.");
        EXPECT_EQ(dialog.lblDropped.Caption(), "");
        EXPECT_THAT(LinesOf(dialog.lstChanges), IsEmpty());
        EXPECT_FALSE(dialog.cmdRevert.Enabled());
    });
}

TEST_F(UnsavedChanges, NameWhatWasAddedRemovedAndMoved) {
    MoveDown(1);
    Delete(3);
    program().unitsPage.controls.cmdAddUNit.Click();
    grid().TypeOver("d");
    grid().editor.Commit();
    LookAndDo([](frmChanges& dialog) {
        EXPECT_EQ(dialog.lblHeading.Caption(), "A save makes these changes: 1 added, 1 moved, 1 removed.");
        EXPECT_THAT(LinesOf(dialog.lstChanges),
                    ElementsAre("Removed|c|c, C|", "Moved|a|row 1|row 2", "Added|d||d"));
        EXPECT_EQ(dialog.lstChanges.Columns()[2].header, "In ZYUNITS.SYS");
    });
}

TEST_F(UnsavedChanges, TakeOverACellThatIsStillOpen) {
    grid().Pick(1, kUnit);
    grid().TypeOver("open");
    EXPECT_THAT(Lines(), ElementsAre("Removed|a|a, A|", "Added|open||open, A"));
}

TEST_F(UnsavedChanges, SayWhatElseASaveTakesOutOfTheFile) {
    WriteFile("A,a,more\r\nB,b\r\n");
    Start("@UNITS");
    LookAndDo([](frmChanges& dialog) {
        EXPECT_EQ(dialog.lblDropped.Caption(), "What else it does to the file: fields beyond the second in 1 "
                                               "line, saving drops them.");
    });
}

TEST_F(UnsavedChanges, EachIsTakenBackByItself) {
    MoveDown(1);
    Delete(3);
    program().unitsPage.controls.cmdAddUNit.Click();
    grid().TypeOver("d");
    grid().editor.Commit();
    ASSERT_THAT(Lines(), ElementsAre("Removed|c|c, C|", "Moved|a|row 1|row 2", "Added|d||d"));
    Revert(1);
    EXPECT_THAT(Units(), ElementsAre("B,b", "C,c", "A,a", ",d"));
    Revert(2);
    EXPECT_THAT(Units(), ElementsAre("B,b", "C,c", "A,a"));
    EXPECT_EQ(window().menu.mnuUndo.Caption(), "&Undo Revert d");
}

TEST_F(UnsavedChanges, AllTakenBackLeaveTheListAsTheFileHoldsIt) {
    MoveDown(1);
    Delete(3);
    Edit(1, kUnit, "x");
    for (auto lines = Lines(); !lines.empty(); lines = Lines()) {
        Revert(1);
    }
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b", "C,c"));
}

TEST_F(UnsavedChanges, ARevertIsOneStepThatUndoTakesBack) {
    Delete(3);
    Revert(1);
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b", "C,c"));
    Undo();
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b"));
}

TEST_F(UnsavedChanges, TheSelectionStaysWhereItWasAfterARevert) {
    Edit(1, kUnit, "x");
    Edit(3, kUnit, "z");
    LookAndDo([](frmChanges& dialog) {
        dialog.lstChanges.Pick(2);
        dialog.cmdRevert.Click();
        EXPECT_EQ(dialog.lstChanges.Selected(), 2);
        EXPECT_EQ(dialog.lstChanges.Count(), 3);
    });
}

TEST_F(UnsavedChanges, AreNoneAfterASave) {
    Edit(1, kUnit, "x");
    Save();
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(UnsavedChanges, AreToldOfAFileThatIsNotThereYet) {
    world.files.Take(kUnitsFile);
    Start("@UNITS");
    program().unitsPage.controls.cmdAddUNit.Click();
    grid().TypeOver("d");
    EXPECT_THAT(Lines(), ElementsAre("Added|d||d"));
}

class UnsavedRules : public RulesForm {
  protected:
    UnsavedRules() { StartWithCodes({"1"}); }
    std::vector<std::string> Lines() {
        std::vector<std::string> lines;
        world.dialogs.ExpectForm(
            [&lines](Form& form) { lines = LinesOf(dynamic_cast<frmChanges&>(form).lstChanges); });
        window().menu.mnuChanges.Click();
        return lines;
    }
};

TEST_F(UnsavedRules, NameTheFieldsThatAreOthers) {
    page().txtMax.Enter("3");
    EXPECT_THAT(Lines(), ElementsAre("Changed|1|Max \"2\"|Max \"3\""));
}

TEST_F(UnsavedRules, AreNoneForTheBlanksThatASaveLeavesBehindADescription) {
    page().txtDescription.Enter("e");
    ChooseSave();
    EXPECT_THAT(Lines(), IsEmpty());
    page().txtMax.Enter("3");
    window().menu.mnuUndo.Click();
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(UnsavedRules, OfWhatIsTypedAndNotStoredAreTakenBackToo) {
    page().txtMax.Enter("3");
    world.dialogs.ExpectForm([](Form& form) { dynamic_cast<frmChanges&>(form).cmdRevert.Click(); });
    window().menu.mnuChanges.Click();
    EXPECT_EQ(page().txtMax.Text(), "2");
    window().menu.mnuUndo.Click();
    EXPECT_EQ(page().txtMax.Text(), "3");
}

using UnsavedUsers = ProgramTest;

TEST_F(UnsavedUsers, ShowPasswordsAsTheGridDoes) {
    PutUsersTable(world, {User("ann")});
    Start("@SECURITY");
    auto& grid = program().securityPage.controls.grdSecurity;
    grid.Pick(1, kPassword);
    grid.TypeOver("other");
    world.dialogs.ExpectForm([](Form& form) {
        EXPECT_THAT(LinesOf(dynamic_cast<frmChanges&>(form).lstChanges),
                    ElementsAre("Changed|ann|Password \"secret\"|Password \"other\""));
    });
    window().menu.mnuChanges.Click();
}

} // namespace
} // namespace zy::test
