#include "GridTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(GridTest, CommitsAnEditInTheOrderBeforeChangedAfter) {
    grid.selection.Select(1, 1);
    notes.clear();
    grid.OpenEditor();
    TypeInEditor("B");
    grid.editor.Commit();
    EXPECT_THAT(notes, ElementsAre("before 1,1", "changed 1,1", "after 1,1"));
    EXPECT_EQ(grid.cells.Text(1, 1), "B");
    EXPECT_FALSE(grid.editor.IsOpen());
}

TEST_F(GridTest, DropsTheEditorsTextOnCancel) {
    grid.selection.Select(1, 1);
    grid.OpenEditor();
    TypeInEditor("B");
    notes.clear();
    grid.Press({Key::Escape});
    EXPECT_EQ(grid.cells.Text(1, 1), "b");
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(GridTest, OpensTheEditorWithTheWholeTextSelected) {
    grid.cells.SetText(1, 1, "text");
    grid.selection.Select(1, 1);
    grid.Press({Key::F2});
    EXPECT_TRUE(grid.editor.IsOpen());
    EXPECT_EQ(grid.editor.Text(), "text");
    EXPECT_EQ(grid.editor.SelStart(), 0U);
    EXPECT_EQ(grid.editor.SelLength(), 4U);
}

TEST_F(GridTest, StartsEditingOverTheCellWhenTheUserTypesOnIt) {
    grid.selection.Select(1, 1);
    grid.TypeOver("x");
    EXPECT_EQ(grid.editor.Text(), "x");
    EXPECT_EQ(grid.editor.SelStart(), 1U);
    EXPECT_EQ(grid.editor.SelLength(), 0U);
}

TEST_F(GridTest, PutsATextInPlaceOfTheEditorsSelection) {
    grid.selection.Select(1, 1);
    grid.OpenEditor();
    grid.editor.Enter("abcd", 1, 2);
    grid.editor.ReplaceSelection("X");
    EXPECT_EQ(grid.editor.Text(), "aXd");
    EXPECT_EQ(grid.editor.SelStart(), 2U);
}

TEST_F(GridTest, CommitsWhenAnotherControlIsUsed) {
    grid.Pick(1, 1);
    grid.OpenEditor();
    TypeInEditor("B");
    bool committedFirst = false;
    button.click.Connect([&] { committedFirst = grid.cells.Text(1, 1) == "B" && !grid.editor.IsOpen(); });
    button.Click();
    EXPECT_TRUE(committedFirst);
}

TEST_F(GridTest, CommitsWhenAnotherCellIsPicked) {
    grid.Pick(1, 1);
    grid.OpenEditor();
    TypeInEditor("B");
    grid.Pick(2, 2);
    EXPECT_EQ(grid.cells.Text(1, 1), "B");
    EXPECT_EQ(grid.selection.Row(), 2);
}

TEST_F(GridTest, GivesACellTheListOfItsColumnOrTheOneItsFormSets) {
    grid.columns.SetList(2, CellList("A|I"));
    grid.selection.Select(1, 2);
    grid.OpenEditor();
    EXPECT_EQ(grid.editor.List(), CellList("A|I"));
    grid.editor.beforeEdit.Connect([&](int, int column) {
        if (column == 1) {
            grid.editor.SetList(CellList("..."));
        }
    });
    grid.selection.Select(1, 1);
    grid.OpenEditor();
    EXPECT_EQ(grid.editor.List(), CellList("..."));
    int pressed = 0;
    grid.editor.buttonClick.Connect([&](int, int) { ++pressed; });
    grid.editor.PressButton();
    grid.selection.Select(1, 2);
    grid.OpenEditor();
    EXPECT_EQ(grid.editor.List(), CellList("A|I"));
    grid.editor.PressButton();
    EXPECT_EQ(pressed, 1) << "only a cell edited with a button has one";
}

TEST_F(GridTest, CommitsTheItemThatIsChosenFromAList) {
    grid.columns.SetList(1, CellList("b|Bb"));
    Edit(1, 1, "x");
    notes.clear();
    grid.editor.ChooseItem("Bb");
    EXPECT_EQ(grid.cells.Text(1, 1), "Bb");
    EXPECT_FALSE(grid.editor.IsOpen());
    EXPECT_THAT(notes, ElementsAre("changed 1,1", "after 1,1"));
    grid.editor.ChooseItem("b");
    EXPECT_EQ(grid.cells.Text(1, 1), "Bb") << "no edit is open";
}

TEST_F(GridTest, ChoosesByTypingInAListWithoutCommitting) {
    grid.columns.SetList(1, CellList("kg|km"));
    Edit(1, 1, "kg");
    grid.editor.ChooseNext("k", [](std::string_view text) { return std::string(text); });
    EXPECT_EQ(grid.editor.Text(), "km");
    EXPECT_EQ(grid.editor.SelStart(), 2U);
    grid.editor.ChooseNext("x", [](std::string_view text) { return std::string(text); });
    EXPECT_EQ(grid.editor.Text(), "km");
    EXPECT_EQ(grid.cells.Text(1, 1), "b");
}

TEST_F(GridTest, CorrectsWhatIsTypedOverACellWithAListToAnItemOfIt) {
    const auto asTyped = [](std::string_view text) { return std::string(text); };
    grid.columns.SetList(1, CellList("kg|km"));
    grid.selection.Select(1, 1);
    grid.TypeOver("k");
    int told = 0;
    grid.editor.textChanged.Connect([&] { ++told; });
    grid.editor.CorrectText(asTyped);
    EXPECT_EQ(grid.editor.Text(), "kg");
    EXPECT_EQ(grid.editor.SelStart(), 2U);
    grid.editor.CorrectText(asTyped);
    EXPECT_EQ(told, 1) << "an item stays";
    TypeInEditor("x");
    grid.editor.CorrectText(asTyped);
    EXPECT_EQ(grid.editor.Text(), "b") << "the cell's own text, though no item";
}

TEST_F(GridTest, TakesTheTextThatACellHasOnceItsFormHasSeenTheEditComing) {
    grid.editor.beforeEdit.Connect(
        [this](int row, int column) { grid.cells.SetText(row, column, "changed before"); });
    grid.selection.Select(1, 1);
    grid.editor.Open();
    EXPECT_EQ(grid.editor.Text(), "changed before");
}

TEST_F(GridTest, CountsACommitOfTheSameTextAsAnEdit) {
    Edit(1, 1, "b");
    notes.clear();
    grid.editor.Commit();
    grid.editor.Commit();
    EXPECT_THAT(notes, ElementsAre("after 1,1"));
}

TEST_F(GridTest, GoesOnInTheOpenEditorWhenTheUserTypesAgain) {
    grid.selection.Select(1, 1);
    grid.TypeOver("x");
    grid.TypeOver("y");
    EXPECT_EQ(grid.editor.Text(), "xy");
    EXPECT_EQ(grid.editor.SelStart(), 2U);
}

TEST_F(GridTest, StartsNoEditWithoutACurrentCell) {
    grid.TypeOver("x");
    grid.OpenEditor();
    EXPECT_FALSE(grid.editor.IsOpen());
}

TEST_F(GridTest, LeavesAnOpenEditorAsItIsOnADoubleClick) {
    Edit(1, 1, "x");
    grid.OpenEditor();
    EXPECT_EQ(grid.editor.Text(), "x");
}

TEST_F(GridTest, CommitsTheOpenEditBeforeAnotherOneIsOpened) {
    Edit(1, 1, "x");
    grid.editor.Open();
    EXPECT_EQ(grid.cells.Text(1, 1), "x");
    EXPECT_TRUE(grid.editor.IsOpen());
}

TEST_F(GridTest, CommitsTheOpenEditBeforeRowsComeOrGo) {
    Edit(1, 1, "x");
    grid.cells.SetRows(4);
    EXPECT_EQ(grid.cells.Text(1, 1), "x");
    EXPECT_FALSE(grid.editor.IsOpen());
    Edit(1, 1, "y");
    grid.cells.RemoveItem(3);
    EXPECT_EQ(grid.cells.Text(1, 1), "y");
    EXPECT_FALSE(grid.editor.IsOpen());
}

TEST_F(GridTest, CommitsTheOpenEditBeforeABlockIsStretched) {
    Edit(1, 1, "x");
    grid.selection.SelectTo(2, 2);
    EXPECT_EQ(grid.cells.Text(1, 1), "x");
}

TEST_F(GridTest, KeepsTheEditorsSelectionInsideItsText) {
    Edit(1, 1, "x");
    grid.editor.Enter("abc", 9, 9);
    EXPECT_EQ(grid.editor.SelStart(), 3U);
    EXPECT_EQ(grid.editor.SelLength(), 0U);
    grid.editor.Enter("abc", 1, 9);
    EXPECT_EQ(grid.editor.SelLength(), 2U);
}

TEST_F(GridTest, TakesNoEditorTextWhileNoEditorIsOpen) {
    grid.selection.Select(1, 1);
    grid.editor.Enter("x", 0, 0);
    EXPECT_EQ(grid.editor.Text(), "");
    grid.editor.Cancel();
    EXPECT_EQ(grid.cells.Text(1, 1), "b");
}

TEST_F(GridTest, TellsItsViewWhenTheEditorOpensClosesOrGetsAnotherText) {
    std::vector<std::string> told;
    grid.editor.openChanged.Connect([&] { told.emplace_back(grid.editor.IsOpen() ? "open" : "closed"); });
    grid.editor.textChanged.Connect([&] { told.emplace_back(grid.editor.Text()); });
    grid.selection.Select(1, 1);
    grid.editor.Open();
    grid.editor.ReplaceSelection("X");
    grid.editor.Commit();
    EXPECT_THAT(told, ElementsAre("open", "X", "closed"));
}

} // namespace
} // namespace zy::test
