#include <gmock/gmock.h>

#include <algorithm>

#include "UnitsTest.h"
#include "support/UndoWalk.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;

class UndoUnits : public UnitsTest {
  protected:
    void Undo() { window.menu.mnuUndo.Click(); }
    void Redo() { window.menu.mnuRedo.Click(); }
    std::string UndoEntry() const { return Entry(window.menu.mnuUndo); }
    std::string RedoEntry() const { return Entry(window.menu.mnuRedo); }
    /// A caption, in brackets when it is grey.
    static std::string Entry(const MenuItem& item) {
        return item.Enabled() ? item.Caption() : "(" + item.Caption() + ")";
    }
    void MoveDown() { grid.Press({.key = Key::Down, .alt = true}); }
    void MoveUp() { grid.Press({.key = Key::Up, .alt = true}); }
};

TEST_F(UndoUnits, NothingCanBeTakenBackAtFirst) {
    EXPECT_EQ(UndoEntry(), "(&Undo)");
    OpenThreeUnits();
    EXPECT_EQ(UndoEntry(), "(&Undo)");
    EXPECT_EQ(RedoEntry(), "(&Redo)");
}

TEST_F(UndoUnits, AnEditIsTakenBackAndDoneAgain) {
    OpenThreeUnits();
    Edit(2, kUnitDescription, "Bel");
    EXPECT_EQ(UndoEntry(), "&Undo Edit Unit Description");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    ExpectCurrent(2, kUnitDescription);
    EXPECT_TRUE(grid.HasFocus());
    EXPECT_EQ(Status(), "3 units   -   Undone: Edit Unit Description");
    EXPECT_EQ(UndoEntry(), "(&Undo)");
    EXPECT_EQ(RedoEntry(), "&Redo Edit Unit Description");
    grid.Pick(1, 0);
    Redo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|Bel", "c|C"));
    ExpectCurrent(2, kUnitDescription);
    EXPECT_EQ(Status(), "3 units   -   Redone: Edit Unit Description");
}

TEST_F(UndoUnits, AnEditThatChangesNothingIsNoStep) {
    OpenThreeUnits();
    Edit(2, kUnit, "b");
    EXPECT_EQ(UndoEntry(), "(&Undo)");
    ExpectChanged(true);
}

TEST_F(UndoUnits, ADeletedUnitComesBackWhereItWas) {
    OpenThreeUnits();
    grid.Pick(2, 1);
    Delete(Answer::Yes);
    EXPECT_EQ(UndoEntry(), "&Undo Delete Unit b");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    ExpectCurrent(2, 1);
    Redo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "c|C"));
    ExpectCurrent(2, 0);
}

TEST_F(UndoUnits, TheLastUnitThatWasDeletedComesBackToAnEmptyList) {
    OpenOver("A,a\r\n");
    grid.Pick(1, 0);
    Delete(Answer::Yes);
    EXPECT_FALSE(controls.cmdDeleteUnit.Enabled());
    Undo();
    EXPECT_THAT(Units(), ElementsAre("a|A"));
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
    Redo();
    EXPECT_THAT(Units(), IsEmpty());
    EXPECT_FALSE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(UndoUnits, AnAddedUnitGoesWithTheEditorThatIsOpenInIt) {
    OpenThreeUnits();
    Add();
    EXPECT_EQ(UndoEntry(), "&Undo Add Unit");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    EXPECT_FALSE(grid.editor.IsOpen());
    Redo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C", "|"));
    ExpectCurrent(4, kUnit);
}

TEST_F(UndoUnits, AnEditThatAddingCommitsIsAStepOfItsOwn) {
    OpenThreeUnits();
    BeginEdit(1, kUnit, "x");
    Add();
    Undo();
    EXPECT_THAT(Units(), ElementsAre("x|A", "b|B", "c|C"));
    EXPECT_EQ(UndoEntry(), "&Undo Edit Unit");
}

TEST_F(UndoUnits, ARunOfMovesOfOneUnitIsOneStep) {
    OpenThreeUnits();
    grid.Pick(1, 1);
    MoveDown();
    MoveDown();
    EXPECT_THAT(Units(), ElementsAre("b|B", "c|C", "a|A"));
    EXPECT_EQ(UndoEntry(), "&Undo Move Unit a");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    ExpectCurrent(1, 1);
    EXPECT_EQ(UndoEntry(), "(&Undo)");
    Redo();
    EXPECT_THAT(Units(), ElementsAre("b|B", "c|C", "a|A"));
    ExpectCurrent(3, 1);
}

TEST_F(UndoUnits, MovesOfTwoUnitsAreTwoSteps) {
    OpenThreeUnits();
    grid.Pick(1, 0);
    MoveDown();
    grid.Pick(3, 0);
    MoveUp();
    EXPECT_EQ(UndoEntry(), "&Undo Move Unit c");
    Undo();
    EXPECT_EQ(UndoEntry(), "&Undo Move Unit a");
}

TEST_F(UndoUnits, APasteIsOneStep) {
    OpenThreeUnits();
    grid.Pick(3, 0);
    grid.Paste("x\tX\r\ny\tY\r\nz\tZ\r\n");
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "x|X", "y|Y", "z|Z"));
    EXPECT_EQ(UndoEntry(), "&Undo Paste");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    ExpectCurrent(3, 0);
    EXPECT_EQ(UndoEntry(), "(&Undo)");
    Redo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "x|X", "y|Y", "z|Z"));
}

TEST_F(UndoUnits, EmptyingABlockIsOneStep) {
    OpenThreeUnits();
    grid.SelectAll();
    grid.Press({Key::Delete});
    EXPECT_EQ(UndoEntry(), "&Undo Clear Cells");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    EXPECT_EQ(UndoEntry(), "(&Undo)");
}

// What is typed into an open cell.

TEST_F(UndoUnits, TypingInAnOpenCellIsTakenBackFirst) {
    OpenThreeUnits();
    Edit(1, kUnit, "x");
    BeginEdit(2, kUnit, "typed");
    EXPECT_EQ(UndoEntry(), "&Undo Typing");
    Undo();
    EXPECT_TRUE(grid.editor.IsOpen());
    EXPECT_EQ(grid.editor.Text(), "b");
    EXPECT_EQ(RedoEntry(), "&Redo Typing");
    Undo();
    EXPECT_FALSE(grid.editor.IsOpen());
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    ExpectCurrent(1, kUnit);
}

TEST_F(UndoUnits, TypingThatWasTakenBackIsPutThereAgain) {
    OpenThreeUnits();
    BeginEdit(2, kUnit, "typed");
    Undo();
    Redo();
    EXPECT_EQ(grid.editor.Text(), "typed");
    EXPECT_EQ(RedoEntry(), "(&Redo)");
    grid.Press({Key::Enter});
    EXPECT_THAT(Units(), ElementsAre("a|A", "typed|B", "c|C"));
}

TEST_F(UndoUnits, WhoTypesAnewLosesTheTypingThatWasTakenBack) {
    OpenThreeUnits();
    BeginEdit(2, kUnit, "typed");
    Undo();
    grid.TypeOver("n");
    EXPECT_EQ(RedoEntry(), "(&Redo)");
    EXPECT_EQ(UndoEntry(), "&Undo Typing");
}

// Marks.

TEST_F(UndoUnits, BackAtWhatWasLoadedNothingIsChanged) {
    OpenThreeUnits();
    Edit(1, kUnit, "x");
    Edit(2, kUnit, "y");
    Undo();
    ExpectChanged(true);
    Undo();
    ExpectChanged(false);
    Redo();
    ExpectChanged(true);
}

TEST_F(UndoUnits, BackAtWhatWasSavedNothingIsChanged) {
    OpenThreeUnits();
    Edit(1, kUnit, "x");
    Save();
    ExpectChanged(false);
    Undo();
    ExpectChanged(true);
    Redo();
    ExpectChanged(false);
    EXPECT_TRUE(window.Unload()) << "closing asks nothing";
}

TEST_F(UndoUnits, WhatWasUndoneBehindASaveIsSavedAgain) {
    OpenThreeUnits();
    Edit(1, kUnit, "x");
    Save();
    Undo();
    ChooseSave();
    EXPECT_EQ(File(), "A,a\r\nB,b\r\nC,c\r\n");
    ExpectChanged(false);
}

TEST_F(UndoUnits, AfterASaveThatFailedNoStateCountsAsSaved) {
    OpenThreeUnits();
    Edit(1, kUnit, "x");
    world.files.Plan({.operation = 3}); // the new file cannot be created
    Save();
    ExpectChanged(false);
    Undo();
    ExpectChanged(true);
    Redo();
    ExpectChanged(true);
}

TEST_F(UndoUnits, AListWithoutAFileCanBeSavedAlsoWhereNothingIsChanged) {
    Open();
    Add();
    Undo();
    EXPECT_EQ(ValueOf(form.ChangeFlag), 0);
    EXPECT_TRUE(controls.cmdSaveUnits.Enabled());
}

TEST_F(UndoUnits, LoadingAnewForgetsTheSteps) {
    OpenThreeUnits();
    Edit(1, kUnit, "x");
    page.Show();
    EXPECT_EQ(UndoEntry(), "(&Undo)");
}

// What the menu shows.

TEST_F(UndoUnits, SignsOfTheMenuInAUnitAreShownAsTheyAre) {
    OpenOver("A,a&b\r\n");
    grid.Pick(1, 0);
    Delete(Answer::Yes);
    EXPECT_EQ(UndoEntry(), "&Undo Delete Unit a&&b");
}

TEST_F(UndoUnits, OfALongUnitTheMenuAndTheStatusBarShowTheFront) {
    OpenOver("A," + std::string(500, 'x') + "\r\n");
    grid.Pick(1, 0);
    Delete(Answer::Yes);
    EXPECT_THAT(UndoEntry(), EndsWith("xxx..."));
    EXPECT_LT(UndoEntry().size(), 80U);
    Undo();
    EXPECT_LT(Status().size(), 100U);
}

TEST_F(UndoUnits, UndoAndRedoAreTraced) {
    OpenThreeUnits();
    Edit(1, kUnit, "x");
    Traces();
    Undo();
    Redo();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings mnuUndo_Click Start",
                                      "frmGlobalSettings mnuRedo_Click Start"));
}

/// Somebody who does whatever comes to his mind.
class RandomUndoUnits : public UndoUnits, public RandomUser {
  protected:
    void StartOver() override { OpenThreeUnits(); }
    EditSteps& Steps() override { return page.Steps(); }
    std::string Bytes() override { return std::string(UnitsFileText(grid.cells).Get()); }
    void PickAny() {
        if (grid.cells.Rows() > 1) {
            grid.Pick(1 + Below(grid.cells.Rows() - 1), Below(kUnitsColumns));
        }
    }
    void Act() override {
        PickAny();
        const bool hasUnit = grid.selection.IsInData();
        switch (Below(9)) {
        case 0:
            Add();
            break;
        case 1:
            if (hasUnit) {
                Delete(Below(4) == 0 ? Answer::No : Answer::Yes);
            }
            break;
        case 2:
            for (int i = Below(4); i >= 0; --i) {
                MoveDown();
            }
            break;
        case 3:
            MoveUp();
            break;
        case 4:
            grid.Paste(Letters() + "\t" + Letters() + "\r\n" + Letters() + "\r\n");
            break;
        case 5:
            if (hasUnit) {
                grid.selection.SelectTo(1 + Below(grid.cells.Rows() - 1), Below(kUnitsColumns));
                grid.Press({Key::Delete});
            }
            break;
        case 6:
            if (std::ranges::none_of(Units(), [](const auto& unit) { return unit.starts_with("|"); })) {
                Save();
            }
            break;
        default:
            grid.TypeOver(Letters());
        }
        grid.editor.Commit();
        grid.SetFocus(); // ends a run of moves
    }
};

TEST_F(RandomUndoUnits, StepsLeadBackAndForthToTheSameFile) {
    WalkAtRandom(*this);
}

} // namespace
} // namespace zy::test
