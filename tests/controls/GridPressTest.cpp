#include "GridTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

TEST_F(GridTest, CommitsAndMovesDownOnEnter) {
    grid.selection.Select(1, 1);
    grid.OpenEditor();
    TypeInEditor("B");
    EXPECT_TRUE(grid.Press({Key::Enter}));
    EXPECT_EQ(grid.cells.Text(1, 1), "B");
    EXPECT_EQ(grid.selection.Row(), 2);
    EXPECT_EQ(grid.selection.Column(), 1);
}

TEST_F(GridTest, HandsTheEditorsKeysToItsFormFirst) {
    std::vector<Key> keys;
    grid.editor.keyDown.Connect([&](const KeyPress& press) { keys.push_back(press.key); });
    grid.selection.Select(1, 1);
    grid.Press({Key::Digit2, true}); // no editor is open
    grid.OpenEditor();
    EXPECT_FALSE(grid.Press({Key::Digit2, true}));
    EXPECT_THAT(keys, ElementsAre(Key::Digit2));
}

TEST_F(GridTest, LetsItsFormTakeAKeyOver) {
    grid.keyDown.Connect([&](const KeyPress& press, bool& handled) { handled = press.key == Key::Tab; });
    grid.selection.Select(1, 1);
    EXPECT_TRUE(grid.Press({Key::Tab}));
    EXPECT_EQ(grid.selection.Column(), 1);
}

TEST_F(GridTest, MovesCellByCellOnTabAndLetsTheFocusGoAtItsEnds) {
    grid.selection.Select(1, 2);
    EXPECT_TRUE(grid.Press({Key::Tab}));
    EXPECT_EQ(grid.selection.Row(), 2);
    EXPECT_EQ(grid.selection.Column(), 0);
    EXPECT_TRUE(grid.Press({Key::Tab, false, false, true}));
    EXPECT_EQ(grid.selection.Row(), 1);
    EXPECT_EQ(grid.selection.Column(), 2);
    grid.selection.Select(2, 2);
    EXPECT_FALSE(grid.Press({Key::Tab}));
    grid.selection.Select(1, 0);
    EXPECT_FALSE(grid.Press({Key::Tab, false, false, true}));
}

TEST_F(GridTest, CommitsTheOpenEditOnTab) {
    grid.selection.Select(2, 2);
    grid.OpenEditor();
    TypeInEditor("F");
    grid.Press({Key::Tab});
    EXPECT_EQ(grid.cells.Text(2, 2), "F");
}

TEST_F(GridTest, StaysInsideItsCellsOnArrowKeys) {
    grid.selection.Select(1, 0);
    grid.Press({Key::Up});
    grid.Press({Key::Left});
    EXPECT_EQ(grid.selection.Row(), 1) << "the header cannot be made current by keys";
    EXPECT_EQ(grid.selection.Column(), 0);
    grid.Press({Key::End});
    grid.Press({Key::Down});
    grid.Press({Key::Down});
    EXPECT_EQ(grid.selection.Row(), 2);
    EXPECT_EQ(grid.selection.Column(), 2);
    grid.Press({Key::Home});
    EXPECT_EQ(grid.selection.Column(), 0);
}

TEST_F(GridTest, EmptiesTheSelectedCellsOnDeleteAsEdits) {
    grid.selection.Select(1, 1);
    grid.selection.SelectTo(2, 2);
    notes.clear();
    grid.Press({Key::Delete});
    EXPECT_THAT(Row(1), ElementsAre("a", "", ""));
    EXPECT_THAT(Row(2), ElementsAre("d", "", ""));
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "after 2,2"), 1);
}

TEST_F(GridTest, CommitsAndMovesOnUpAndDownInTheEditor) {
    Edit(1, 1, "x");
    EXPECT_TRUE(grid.Press({Key::Down}));
    EXPECT_EQ(grid.cells.Text(1, 1), "x");
    ExpectCurrent(2, 1);
    Edit(2, 1, "y");
    EXPECT_TRUE(grid.Press({Key::Up}));
    EXPECT_EQ(grid.cells.Text(2, 1), "y");
    ExpectCurrent(1, 1);
}

TEST_F(GridTest, LeavesTheKeysThatMoveTheCaretToTheEditor) {
    Edit(1, 1, "x");
    for (const Key key : {Key::Left, Key::Right, Key::Home, Key::End, Key::Delete, Key::F2}) {
        EXPECT_FALSE(grid.Press({key}));
    }
    EXPECT_FALSE(grid.Press({Key::Enter, true}));
    EXPECT_FALSE(grid.Press({Key::Escape, false, true}));
    EXPECT_FALSE(grid.Press({Key::Down, false, false, true}));
    EXPECT_TRUE(grid.editor.IsOpen());
    EXPECT_EQ(grid.editor.Text(), "x");
}

TEST_F(GridTest, MovesByTheArrowKeys) {
    grid.selection.Select(1, 1);
    EXPECT_TRUE(grid.Press({Key::Right}));
    ExpectCurrent(1, 2);
    EXPECT_TRUE(grid.Press({Key::Down}));
    ExpectCurrent(2, 2);
    EXPECT_TRUE(grid.Press({Key::Left}));
    ExpectCurrent(2, 1);
    EXPECT_TRUE(grid.Press({Key::Up}));
    ExpectCurrent(1, 1);
    EXPECT_TRUE(grid.Press({Key::Enter}));
    ExpectCurrent(2, 1);
}

TEST_F(GridTest, HasNoUseForOtherKeys) {
    grid.selection.Select(1, 1);
    EXPECT_FALSE(grid.Press({Key::PageDown}));
    EXPECT_FALSE(grid.Press({Key::Escape}));
    EXPECT_FALSE(grid.Press({Key::Down, true}));
    EXPECT_FALSE(grid.Press({Key::Down, false, true}));
    EXPECT_FALSE(grid.Press({Key::Enter, false, false, true}));
    EXPECT_FALSE(grid.Press({Key::F2, true}));
    EXPECT_FALSE(grid.Press({Key::Delete, true}));
    EXPECT_FALSE(grid.Press({Key::Tab, true}));
    EXPECT_FALSE(grid.Press({Key::Tab, false, true}));
    ExpectCurrent(1, 1);
    EXPECT_FALSE(grid.editor.IsOpen());
}

TEST_F(GridTest, StartsAtItsFirstCellWhenNoneWasCurrent) {
    EXPECT_FALSE(grid.Press({Key::Tab}));
    EXPECT_FALSE(grid.Press({Key::F2}));
    EXPECT_FALSE(grid.Press({Key::Delete}));
    EXPECT_TRUE(grid.Press({Key::Down, false, false, true}));
    ExpectCurrent(1, 0);
    EXPECT_EQ(grid.selection.BlockEnd(), (Cell{1, 0}));
}

TEST_F(GridTest, StartsAtItsFirstCellByEveryKeyThatMoves) {
    const int rows = grid.cells.Rows();
    for (const Key key : {Key::Up, Key::Down, Key::Left, Key::Right, Key::Home, Key::End, Key::Enter}) {
        grid.selection.Select(1, 1);
        grid.cells.SetRows(1);
        grid.cells.SetRows(rows);
        EXPECT_TRUE(grid.Press({key}));
        ExpectCurrent(1, 0);
    }
}

TEST_F(GridTest, MovesNowhereWithoutARow) {
    grid.cells.SetRows(1);
    EXPECT_FALSE(grid.Press({Key::Down}));
    EXPECT_FALSE(grid.Press({Key::Tab}));
    EXPECT_EQ(grid.selection.Row(), -1);
}

} // namespace
} // namespace zy::test
