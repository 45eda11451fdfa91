#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/CellBlock.h"
#include "controls/CellEditor.h"
#include "controls/GridCells.h"
#include "controls/GridColumns.h"
#include "controls/GridSelection.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// The parts that a grid is put together of, without the grid: two columns and two rows of data.
class GridParts : public ::testing::Test {
  protected:
    GridParts() {
        cells.AddItem("a\tb");
        cells.AddItem("c\td");
        cells.resizing.Connect([this] { notes.push_back("resizing " + std::to_string(cells.Rows())); });
        cells.rowsChanged.Connect([this] { notes.emplace_back("rows"); });
        cells.resized.Connect([this] { notes.push_back("resized " + std::to_string(cells.Rows())); });
    }

    GridCells cells{2};
    GridColumns columns{2};
    GridSelection selection{cells};
    CellEditor editor{cells, columns, selection};
    CellBlock block{cells, columns, selection, editor};
    std::vector<std::string> notes;
};

TEST(CellRange, ContainsTheCellsFromItsFirstToItsLastOne) {
    const CellRange range{.first = {.row = 2, .column = 1}, .last = {.row = 3, .column = 2}};
    std::string contained;
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 4; ++column) {
            contained += range.Contains({.row = row, .column = column}) ? 'x' : '.';
        }
        contained += '/';
    }
    EXPECT_EQ(contained, "..../..../.xx./.xx./..../");
}

TEST(CellRange, ContainsNothingWhenItsLastRowLiesAboveItsFirst) {
    const CellRange none{.first = {.row = 1, .column = 0}, .last = {.row = 0, .column = 0}};
    EXPECT_FALSE(none.Contains(none.first));
    EXPECT_FALSE(none.Contains(none.last));
}

TEST_F(GridParts, AnnounceRowsThatAreSetOrRemovedBeforeAndAfter) {
    cells.SetRows(4);
    EXPECT_THAT(notes, ElementsAre("resizing 3", "rows", "resized 4"));
    notes.clear();
    cells.RemoveItem(1);
    EXPECT_THAT(notes, ElementsAre("resizing 4", "rows", "resized 3"));
}

TEST_F(GridParts, AnnounceResizingAlsoWhileTheRowsAreNotShown) {
    cells.SetRedraw(false);
    cells.SetRows(2);
    EXPECT_THAT(notes, ElementsAre("resizing 3", "resized 2"));
}

TEST_F(GridParts, AnnounceAppendedRowsAsShownAlone) {
    cells.AddItem("e");
    cells.AddRowsOf(Share("fg"), [](std::string_view text, TextParts& parts) {
        parts.Append(text.substr(0, 1));
        parts.Append(text.substr(1));
    });
    EXPECT_THAT(notes, ElementsAre("rows", "rows"));
}

TEST_F(GridParts, KeepTheBlockWhenRowsAreAppendedAndDropItWhenTheyAreSet) {
    selection.Select(1, 0);
    selection.SelectTo(2, 1);
    cells.AddItem("e");
    EXPECT_EQ(selection.BlockEnd(), (Cell{2, 1}));
    cells.SetRows(4);
    EXPECT_EQ(selection.BlockEnd(), (Cell{1, 0}));
}

TEST_F(GridParts, CommitTheEditorBeforeTheSelectionChanges) {
    selection.Select(1, 1);
    editor.OpenWith("x");
    editor.afterEdit.Connect([this](int row, int column) {
        EXPECT_EQ(selection.Current(), (Cell{row, column})) << "still the cell that was edited";
        notes.emplace_back("edited");
    });
    selection.Select(2, 0);
    EXPECT_EQ(cells.Text(1, 1), "x");
    EXPECT_EQ(selection.Current(), (Cell{2, 0}));
    EXPECT_THAT(notes, ElementsAre("edited"));
}

TEST_F(GridParts, CommitTheEditorBeforeItsRowGoes) {
    selection.Select(2, 0);
    editor.OpenWith("x");
    editor.afterEdit.Connect([this](int row, int) { notes.push_back("edited " + std::to_string(row)); });
    cells.SetRows(1);
    EXPECT_THAT(notes, ElementsAre("edited 2", "resizing 3", "rows", "resized 1"));
    EXPECT_FALSE(editor.IsOpen());
}

TEST_F(GridParts, CountABlockThatIsEmptiedOrPastedIntoAsEdits) {
    editor.afterEdit.Connect(
        [this](int row, int column) { notes.push_back(std::to_string(row) + "," + std::to_string(column)); });
    selection.Select(1, 1);
    selection.SelectTo(2, 0);
    block.Clear();
    EXPECT_THAT(notes, ElementsAre("1,0", "1,1", "2,0", "2,1"));
    EXPECT_EQ(block.Copy(), "\t\r\n\t\r\n");
    notes.clear();
    selection.Select(2, 1);
    block.Paste("x");
    EXPECT_EQ(cells.Text(2, 1), "x");
    EXPECT_THAT(notes, ::testing::Contains("2,1"));
}

TEST_F(GridParts, SelectNoBlockInTheDataWhileOnlyTheHeaderIsCurrent) {
    selection.Select(0, 1);
    EXPECT_FALSE(selection.IsInData());
    EXPECT_GT(selection.Block().first.row, selection.Block().last.row);
    selection.Select(1, 1);
    EXPECT_TRUE(selection.IsInData());
}

} // namespace
} // namespace zy::test
