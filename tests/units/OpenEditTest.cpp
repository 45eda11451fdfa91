#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// A cell's editor is open and its text changed; what happens to it when the person goes on elsewhere.
class OpenEdit : public UnitsTest {
  protected:
    OpenEdit() {
        OpenThreeUnits();
        BeginEdit(1, kUnit, "edited");
    }
    /// The edit is part of the list, and a change like any other.
    void ExpectTaken() {
        EXPECT_FALSE(grid.editor.IsOpen());
        EXPECT_EQ(grid.cells.Text(1, kUnit), "edited");
        ExpectChanged(true);
    }
};

TEST_F(OpenEdit, IsTakenOverBeforeAUnitIsAdded) {
    Add();
    EXPECT_THAT(Units(), ElementsAre("edited|A", "b|B", "c|C", "|"));
    ExpectCurrent(4, kUnit);
    EXPECT_TRUE(grid.editor.IsOpen());
}

TEST_F(OpenEdit, IsTakenOverBeforeTheDeleteQuestion) {
    Delete(Answer::No);
    ExpectTaken();
}

TEST_F(OpenEdit, IsTakenOverBeforeAUnitIsMoved) {
    controls.UpDownUnits.PressDown();
    EXPECT_THAT(Units(), ElementsAre("b|B", "edited|A", "c|C"));
}

TEST_F(OpenEdit, IsTakenOverBeforeHelp) {
    controls.cmdHelpUnits.Click();
    ExpectTaken();
}

TEST_F(OpenEdit, IsTakenOverWhenAnotherCellIsPicked) {
    grid.Pick(3, kUnitDescription);
    ExpectTaken();
}

TEST_F(OpenEdit, IsNotTakenOverByASaveButtonThatIsStillOff) {
    Save();
    EXPECT_TRUE(grid.editor.IsOpen());
    EXPECT_EQ(File(), "A,a\r\nB,b\r\nC,c\r\n");
}

TEST_F(OpenEdit, IsTakenOverBeforeTheSaveButtonSaves) {
    page.MarkUnitsChanged();
    Save();
    EXPECT_EQ(File(), "A,edited\r\nB,b\r\nC,c\r\n");
    ExpectChanged(false);
}

TEST_F(OpenEdit, IsTakenOverBeforeTheMenuSaves) {
    ChooseSave();
    EXPECT_EQ(File(), "A,edited\r\nB,b\r\nC,c\r\n");
    ExpectChanged(false);
}

TEST_F(OpenEdit, IsCheckedByTheSaveThatTakesItOver) {
    grid.editor.Enter("", 0, 0);
    ExpectInvalid("Unit cannot be blank");
    ChooseSave();
    EXPECT_EQ(File(), "A,a\r\nB,b\r\nC,c\r\n");
    ExpectChanged(true);
}

TEST_F(OpenEdit, IsAChangeToBeSavedWhenTheWindowCloses) {
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(File(), "A,edited\r\nB,b\r\nC,c\r\n");
}

TEST_F(OpenEdit, IsTakenOverBeforeAPaste) {
    grid.Paste("pasted");
    EXPECT_THAT(Units(), ElementsAre("pasted|A", "b|B", "c|C"));
}

} // namespace
} // namespace zy::test
