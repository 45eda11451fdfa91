#include "GridTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(GridTest, CommitsAnEditInTheOrderBeforeChangedAfter) {
    grid.Select(1, 1);
    notes.clear();
    grid.OpenEditor();
    TypeInEditor("B");
    grid.CommitEdit();
    EXPECT_THAT(notes, ElementsAre("before 1,1", "changed 1,1", "after 1,1"));
    EXPECT_EQ(grid.Text(1, 1), "B");
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(GridTest, DropsTheEditorsTextOnCancel) {
    grid.Select(1, 1);
    grid.OpenEditor();
    TypeInEditor("B");
    notes.clear();
    grid.Press({Key::Escape});
    EXPECT_EQ(grid.Text(1, 1), "b");
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(GridTest, OpensTheEditorWithTheWholeTextSelected) {
    grid.SetText(1, 1, "text");
    grid.Select(1, 1);
    grid.Press({Key::F2});
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(grid.EditText(), "text");
    EXPECT_EQ(grid.EditSelStart(), 0U);
    EXPECT_EQ(grid.EditSelLength(), 4U);
}

TEST_F(GridTest, StartsEditingOverTheCellWhenAPersonTypesOnIt) {
    grid.Select(1, 1);
    grid.TypeOver("x");
    EXPECT_EQ(grid.EditText(), "x");
    EXPECT_EQ(grid.EditSelStart(), 1U);
    EXPECT_EQ(grid.EditSelLength(), 0U);
}

TEST_F(GridTest, PutsATextInPlaceOfTheEditorsSelection) {
    grid.Select(1, 1);
    grid.OpenEditor();
    grid.EnterEditText("abcd", 1, 2);
    grid.ReplaceEditSelection("X");
    EXPECT_EQ(grid.EditText(), "aXd");
    EXPECT_EQ(grid.EditSelStart(), 2U);
}

TEST_F(GridTest, CommitsWhenAnotherControlIsUsed) {
    grid.Pick(1, 1);
    grid.OpenEditor();
    TypeInEditor("B");
    bool committedFirst = false;
    button.click.Connect([&] { committedFirst = grid.Text(1, 1) == "B" && !grid.IsEditing(); });
    button.Click();
    EXPECT_TRUE(committedFirst);
}

TEST_F(GridTest, CommitsWhenAnotherCellIsPicked) {
    grid.Pick(1, 1);
    grid.OpenEditor();
    TypeInEditor("B");
    grid.Pick(2, 2);
    EXPECT_EQ(grid.Text(1, 1), "B");
    EXPECT_EQ(grid.Row(), 2);
}

TEST_F(GridTest, GivesACellTheListOfItsColumnOrTheOneItsFormSets) {
    grid.SetColumnList(2, CellList("A|I"));
    grid.Select(1, 2);
    grid.OpenEditor();
    EXPECT_EQ(grid.EditList(), CellList("A|I"));
    grid.beforeEdit.Connect([&](int, int column) {
        if (column == 1) {
            grid.SetEditList(CellList("..."));
        }
    });
    grid.Select(1, 1);
    grid.OpenEditor();
    EXPECT_EQ(grid.EditList(), CellList("..."));
    int pressed = 0;
    grid.cellButtonClick.Connect([&](int, int) { ++pressed; });
    grid.PressCellButton();
    grid.Select(1, 2);
    grid.OpenEditor();
    EXPECT_EQ(grid.EditList(), CellList("A|I"));
    grid.PressCellButton();
    EXPECT_EQ(pressed, 1) << "only a cell edited with a button has one";
}

TEST_F(GridTest, CommitsTheItemThatIsChosenFromAList) {
    grid.SetColumnList(1, CellList("b|Bb"));
    Edit(1, 1, "x");
    notes.clear();
    grid.ChooseItem("Bb");
    EXPECT_EQ(grid.Text(1, 1), "Bb");
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_THAT(notes, ElementsAre("changed 1,1", "after 1,1"));
    grid.ChooseItem("b");
    EXPECT_EQ(grid.Text(1, 1), "Bb") << "no edit is open";
}

TEST_F(GridTest, ChoosesByTypingInAListWithoutCommitting) {
    grid.SetColumnList(1, CellList("kg|km"));
    Edit(1, 1, "kg");
    grid.ChooseNext("k", [](std::string_view text) { return std::string(text); });
    EXPECT_EQ(grid.EditText(), "km");
    EXPECT_EQ(grid.EditSelStart(), 2U);
    grid.ChooseNext("x", [](std::string_view text) { return std::string(text); });
    EXPECT_EQ(grid.EditText(), "km");
    EXPECT_EQ(grid.Text(1, 1), "b");
}

TEST_F(GridTest, CorrectsWhatIsTypedOverACellWithAListToAnItemOfIt) {
    const auto asTyped = [](std::string_view text) { return std::string(text); };
    grid.SetColumnList(1, CellList("kg|km"));
    grid.Select(1, 1);
    grid.TypeOver("k");
    int told = 0;
    grid.editTextChanged.Connect([&] { ++told; });
    grid.CorrectEditText(asTyped);
    EXPECT_EQ(grid.EditText(), "kg");
    EXPECT_EQ(grid.EditSelStart(), 2U);
    grid.CorrectEditText(asTyped);
    EXPECT_EQ(told, 1) << "an item stays";
    TypeInEditor("x");
    grid.CorrectEditText(asTyped);
    EXPECT_EQ(grid.EditText(), "b") << "the cell's own text, though no item";
}

TEST_F(GridTest, TakesTheTextThatACellHasOnceItsFormHasSeenTheEditComing) {
    grid.beforeEdit.Connect([this](int row, int column) { grid.SetText(row, column, "changed before"); });
    grid.Select(1, 1);
    grid.EditCell();
    EXPECT_EQ(grid.EditText(), "changed before");
}

TEST_F(GridTest, CountsACommitOfTheSameTextAsAnEdit) {
    Edit(1, 1, "b");
    notes.clear();
    grid.CommitEdit();
    grid.CommitEdit();
    EXPECT_THAT(notes, ElementsAre("after 1,1"));
}

TEST_F(GridTest, GoesOnInTheOpenEditorWhenAPersonTypesAgain) {
    grid.Select(1, 1);
    grid.TypeOver("x");
    grid.TypeOver("y");
    EXPECT_EQ(grid.EditText(), "xy");
    EXPECT_EQ(grid.EditSelStart(), 2U);
}

TEST_F(GridTest, StartsNoEditWithoutACurrentCell) {
    grid.TypeOver("x");
    grid.OpenEditor();
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(GridTest, LeavesAnOpenEditorAsItIsOnADoubleClick) {
    Edit(1, 1, "x");
    grid.OpenEditor();
    EXPECT_EQ(grid.EditText(), "x");
}

TEST_F(GridTest, CommitsTheOpenEditBeforeAnotherOneIsOpened) {
    Edit(1, 1, "x");
    grid.EditCell();
    EXPECT_EQ(grid.Text(1, 1), "x");
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(GridTest, CommitsTheOpenEditBeforeRowsComeOrGo) {
    Edit(1, 1, "x");
    grid.SetRows(4);
    EXPECT_EQ(grid.Text(1, 1), "x");
    EXPECT_FALSE(grid.IsEditing());
    Edit(1, 1, "y");
    grid.RemoveItem(3);
    EXPECT_EQ(grid.Text(1, 1), "y");
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(GridTest, CommitsTheOpenEditBeforeABlockIsStretched) {
    Edit(1, 1, "x");
    grid.SelectTo(2, 2);
    EXPECT_EQ(grid.Text(1, 1), "x");
}

TEST_F(GridTest, KeepsTheEditorsSelectionInsideItsText) {
    Edit(1, 1, "x");
    grid.EnterEditText("abc", 9, 9);
    EXPECT_EQ(grid.EditSelStart(), 3U);
    EXPECT_EQ(grid.EditSelLength(), 0U);
    grid.EnterEditText("abc", 1, 9);
    EXPECT_EQ(grid.EditSelLength(), 2U);
}

TEST_F(GridTest, TakesNoEditorTextWhileNoEditorIsOpen) {
    grid.Select(1, 1);
    grid.EnterEditText("x", 0, 0);
    EXPECT_EQ(grid.EditText(), "");
    grid.CancelEdit();
    EXPECT_EQ(grid.Text(1, 1), "b");
}

TEST_F(GridTest, TellsItsViewWhenTheEditorOpensClosesOrGetsAnotherText) {
    std::vector<std::string> told;
    grid.editingChanged.Connect([&] { told.emplace_back(grid.IsEditing() ? "open" : "closed"); });
    grid.editTextChanged.Connect([&] { told.emplace_back(grid.EditText()); });
    grid.Select(1, 1);
    grid.EditCell();
    grid.ReplaceEditSelection("X");
    grid.CommitEdit();
    EXPECT_THAT(told, ElementsAre("open", "X", "closed"));
}

} // namespace
} // namespace zy::test
