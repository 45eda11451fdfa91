#include "controls/Grid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "basics/RuntimeError.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"

namespace zy {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

template <typename Action>
int ErrorNumber(const Action& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

/// A grid of three columns and two rows, and a list of what it announced.
class GridTest : public ::testing::Test {
  protected:
    GridTest() {
        form.SetVisible(true);
        grid.AddItem("a\tb\tc");
        grid.AddItem("d\te\tf");
        const auto note = [this](const char* what) {
            return [this, what](int row, int column) {
                notes.push_back(std::string(what) + " " + std::to_string(row) + "," + std::to_string(column));
            };
        };
        grid.cellChanged.Connect(note("changed"));
        grid.beforeEdit.Connect(note("before"));
        grid.afterEdit.Connect(note("after"));
        grid.currentCellChanged.Connect([this] { notes.emplace_back("current"); });
    }

    std::vector<std::string> Row(int row) const {
        return {grid.Text(row, 0), grid.Text(row, 1), grid.Text(row, 2)};
    }
    void TypeInEditor(const std::string& text) { grid.EnterEditText(text, text.size(), 0); }

    Form form{"frm"};
    Grid grid{&form, "grd", 3};
    CommandButton button{&form, "cmd", "Press"};
    std::vector<std::string> notes;
};

TEST_F(GridTest, StartsWithItsHeaderRowAlone) {
    const Grid fresh(&form, "grd", 2);
    EXPECT_EQ(fresh.Rows(), 1);
    EXPECT_EQ(fresh.Columns(), 2);
    EXPECT_EQ(fresh.Row(), -1);
    EXPECT_EQ(fresh.ColumnWidth(1), 960);
}

TEST_F(GridTest, AddsARowOfTabJoinedCells) {
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_THAT(Row(1), ElementsAre("a", "b", "c"));
}

TEST_F(GridTest, LeavesCellsEmptyThatARowDoesNotName) {
    grid.AddItem("x");
    EXPECT_THAT(Row(3), ElementsAre("x", "", ""));
}

TEST_F(GridTest, RemovesARowAndKeepsTheCurrentOneInside) {
    grid.Select(2, 1);
    grid.RemoveItem(1);
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_THAT(Row(1), ElementsAre("d", "e", "f"));
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridTest, GrowsByEmptyRowsAndShrinksFromTheEnd) {
    grid.SetRows(4);
    EXPECT_THAT(Row(3), ElementsAre("", "", ""));
    grid.SetRows(2);
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_THAT(Row(1), ElementsAre("a", "b", "c"));
}

TEST_F(GridTest, TellsAChangedCellOnce) {
    grid.SetText(1, 2, "c");
    grid.SetText(1, 2, "C");
    EXPECT_THAT(notes, ElementsAre("changed 1,2"));
}

TEST_F(GridTest, RaisesSubscriptOutOfRangeForACellItDoesNotHave) {
    EXPECT_EQ(ErrorNumber([&] { static_cast<void>(grid.Text(3, 0)); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.SetText(0, 3, ""); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.Select(-1, 0); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.SelectTo(0, -1); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.RemoveItem(3); }), 9);
    EXPECT_EQ(ErrorNumber([&] { grid.EditCell(); }), 9) << "there is no current cell";
}

TEST_F(GridTest, TellsItsCurrentCellOnlyWhenItIsAnotherOne) {
    grid.Select(1, 1);
    grid.Select(1, 1);
    EXPECT_THAT(notes, ElementsAre("current"));
}

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

TEST_F(GridTest, CommitsAndMovesDownOnEnter) {
    grid.Select(1, 1);
    grid.OpenEditor();
    TypeInEditor("B");
    EXPECT_TRUE(grid.Press({Key::Enter}));
    EXPECT_EQ(grid.Text(1, 1), "B");
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Column(), 1);
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

TEST_F(GridTest, HandsTheEditorsKeysToItsFormFirst) {
    std::vector<Key> keys;
    grid.keyDownEdit.Connect([&](const KeyPress& press) { keys.push_back(press.key); });
    grid.Select(1, 1);
    grid.Press({Key::Digit2, true}); // no editor is open
    grid.OpenEditor();
    EXPECT_FALSE(grid.Press({Key::Digit2, true}));
    EXPECT_THAT(keys, ElementsAre(Key::Digit2));
}

TEST_F(GridTest, LetsItsFormTakeAKeyOver) {
    grid.keyDown.Connect([&](const KeyPress& press, bool& handled) { handled = press.key == Key::Tab; });
    grid.Select(1, 1);
    EXPECT_TRUE(grid.Press({Key::Tab}));
    EXPECT_EQ(grid.Column(), 1);
}

TEST_F(GridTest, MovesCellByCellOnTabAndLetsTheFocusGoAtItsEnds) {
    grid.Select(1, 2);
    EXPECT_TRUE(grid.Press({Key::Tab}));
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Column(), 0);
    EXPECT_TRUE(grid.Press({Key::Tab, false, false, true}));
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Column(), 2);
    grid.Select(2, 2);
    EXPECT_FALSE(grid.Press({Key::Tab}));
    grid.Select(1, 0);
    EXPECT_FALSE(grid.Press({Key::Tab, false, false, true}));
}

TEST_F(GridTest, CommitsTheOpenEditOnTab) {
    grid.Select(2, 2);
    grid.OpenEditor();
    TypeInEditor("F");
    grid.Press({Key::Tab});
    EXPECT_EQ(grid.Text(2, 2), "F");
}

TEST_F(GridTest, StaysInsideItsCellsOnArrowKeys) {
    grid.Select(1, 0);
    grid.Press({Key::Up});
    grid.Press({Key::Left});
    EXPECT_EQ(grid.Row(), 1) << "the header cannot be made current by keys";
    EXPECT_EQ(grid.Column(), 0);
    grid.Press({Key::End});
    grid.Press({Key::Down});
    grid.Press({Key::Down});
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Column(), 2);
    grid.Press({Key::Home});
    EXPECT_EQ(grid.Column(), 0);
}

TEST_F(GridTest, DoesNotMakeTheHeaderCurrentOnAClick) {
    grid.Pick(0, 1);
    EXPECT_EQ(grid.Row(), -1);
}

TEST_F(GridTest, EmptiesTheSelectedCellsOnDeleteAsEdits) {
    grid.Select(1, 1);
    grid.SelectTo(2, 2);
    notes.clear();
    grid.Press({Key::Delete});
    EXPECT_THAT(Row(1), ElementsAre("a", "", ""));
    EXPECT_THAT(Row(2), ElementsAre("d", "", ""));
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "after 2,2"), 1);
}

TEST_F(GridTest, CopiesTheBlockAsASpreadsheetDoes) {
    grid.Select(2, 1);
    grid.Press({Key::Up, false, false, true});
    grid.Press({Key::Right, false, false, true});
    EXPECT_EQ(grid.Copy(), "b\tc\r\ne\tf\r\n");
}

TEST_F(GridTest, CopiesNothingWithoutACurrentCell) {
    EXPECT_EQ(grid.Copy(), "");
}

TEST_F(GridTest, PastesABlockFromTheCurrentCellOnEachCellAnEdit) {
    grid.Select(1, 1);
    notes.clear();
    grid.Paste("1\t2\t3\r\n4");
    EXPECT_THAT(Row(1), ElementsAre("a", "1", "2"));
    EXPECT_THAT(Row(2), ElementsAre("d", "4", "f"));
    EXPECT_THAT(notes, ElementsAre("changed 1,1", "after 1,1", "changed 1,2", "after 1,2", "changed 2,1",
                                   "after 2,1"));
}

TEST_F(GridTest, AddsPastedRowsOnlyWhereItMayGrow) {
    grid.Select(2, 0);
    grid.Paste("1\n2\n");
    EXPECT_EQ(grid.Rows(), 3);
    grid.SetGrowsByPaste(true);
    grid.Paste("1\n2\n");
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.Text(3, 0), "2");
}

TEST_F(GridTest, RaisesOverflowForAPasteBeyondTheLastPossibleRowAndChangesNothing) {
    grid.SetGrowsByPaste(true);
    grid.Select(2, 0);
    const std::string rows(32767, '\n');
    EXPECT_EQ(ErrorNumber([&] { grid.Paste(rows); }), 6);
    EXPECT_EQ(grid.Rows(), 3);
    grid.Select(1, 0);
    grid.Paste(rows);
    EXPECT_EQ(grid.Rows(), 32768) << "the header and 32,767 rows";
}

TEST_F(GridTest, GivesACellTheListOfItsColumnOrTheOneItsFormSets) {
    grid.SetColumnList(2, "A|I");
    grid.Select(1, 2);
    grid.OpenEditor();
    EXPECT_EQ(grid.EditList(), "A|I");
    grid.beforeEdit.Connect([&](int, int column) {
        if (column == 1) {
            grid.SetEditList("...");
        }
    });
    grid.Select(1, 1);
    grid.OpenEditor();
    EXPECT_EQ(grid.EditList(), "...");
    int pressed = 0;
    grid.cellButtonClick.Connect([&](int, int) { ++pressed; });
    grid.PressCellButton();
    grid.Select(1, 2);
    grid.OpenEditor();
    EXPECT_EQ(grid.EditList(), "A|I");
    grid.PressCellButton();
    EXPECT_EQ(pressed, 1) << "only a cell edited with a button has one";
}

TEST_F(GridTest, TellsWhichMouseButtonWentDownWhere) {
    grid.mouseDown.Connect([this](int mouseButton, int row, int column) {
        notes.push_back(std::to_string(mouseButton) + std::to_string(row) + std::to_string(column));
    });
    grid.PressMouse(2, 1, 0);
    EXPECT_THAT(notes, ElementsAre("210"));
}

} // namespace
} // namespace zy
