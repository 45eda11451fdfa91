#include "GridTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// What a grid tells of its changes as a whole, in one list with what it tells of them otherwise.
class GridChanges : public GridTest {
  protected:
    GridChanges() {
        grid.cells.changing.Connect([this](int first, int removed, int added) {
            notes.push_back("changing " + std::to_string(first) + " -" + std::to_string(removed) + " +" +
                            std::to_string(added) + " of " + std::to_string(grid.cells.Rows()));
        });
        grid.cells.changed.Connect([this] { notes.emplace_back("done"); });
        grid.cells.deedBegun.Connect([this](std::string_view deed, GridCells::Repeats repeats) {
            notes.push_back("begin " + std::string(deed) +
                            (repeats == GridCells::Repeats::Yes ? " again" : ""));
        });
        grid.cells.deedEnded.Connect([this] { notes.emplace_back("end"); });
    }
    void Replace(int first, int count, const std::vector<std::string>& rows) {
        grid.cells.ReplaceRows(first, count, static_cast<int>(rows.size()),
                               [&](int row, int column) -> std::string_view {
                                   return std::string_view(rows[static_cast<std::size_t>(row)])
                                       .substr(static_cast<std::size_t>(column), 1);
                               });
    }
};

TEST_F(GridChanges, ATextIsToldOfBeforeAndBehindIt) {
    grid.cells.SetText(2, 1, "x");
    EXPECT_THAT(notes, ElementsAre("changing 2 -1 +1 of 3", "changed 2,1", "done"));
}

TEST_F(GridChanges, ATextThatStaysIsNotToldOf) {
    grid.cells.SetText(2, 1, "e");
    EXPECT_TRUE(notes.empty());
}

TEST_F(GridChanges, RowsThatComeAndGoAreToldOf) {
    grid.cells.SetRows(5);
    grid.cells.SetRows(4);
    grid.cells.AddItem("g");
    grid.cells.RemoveItem(1);
    EXPECT_THAT(notes, ElementsAre("changing 3 -0 +2 of 3", "done", "changing 4 -1 +0 of 5", "done",
                                   "changing 4 -0 +1 of 4", "done", "changing 1 -1 +0 of 5", "done"));
}

TEST_F(GridChanges, ARowThatIsNotThereIsNoChange) {
    EXPECT_EQ(ErrorNumber([&] { grid.cells.RemoveItem(3); }), 9);
    EXPECT_EQ(ErrorNumber([&] { Replace(2, 2, {}); }), 9);
    EXPECT_TRUE(notes.empty());
}

TEST_F(GridChanges, AnOpenEditIsCommittedBeforeRowsGo) {
    Edit(1, 0, "x");
    notes.clear();
    grid.cells.RemoveItem(2);
    EXPECT_THAT(notes, ElementsAre("changing 1 -1 +1 of 3", "changed 1,0", "done", "after 1,0",
                                   "changing 2 -1 +0 of 3", "done"));
}

TEST_F(GridChanges, APasteIsOneDeed) {
    grid.Pick(2, 0);
    notes.clear();
    grid.Paste("x\ty\r\n");
    EXPECT_EQ(notes.front(), "begin Paste");
    EXPECT_EQ(notes.back(), "end");
}

TEST_F(GridChanges, EmptyingABlockIsOneDeed) {
    grid.Pick(2, 0);
    notes.clear();
    grid.Press({Key::Delete});
    EXPECT_THAT(notes, ElementsAre("begin Clear Cells", "changing 2 -1 +1 of 3", "changed 2,0", "done",
                                   "after 2,0", "end"));
}

TEST_F(GridChanges, RowsAreReplacedByAsManyOthers) {
    Replace(1, 2, {"ABc", "DEF"});
    EXPECT_THAT(Row(1), ElementsAre("A", "B", "c"));
    EXPECT_THAT(Row(2), ElementsAre("D", "E", "F"));
    EXPECT_THAT(notes, ElementsAre("changing 1 -2 +2 of 3", "changed 1,0", "changed 1,1", "changed 2,0",
                                   "changed 2,1", "changed 2,2", "done"));
}

TEST_F(GridChanges, RowsArePutIn) {
    Replace(2, 0, {"ghi", "jkl"});
    EXPECT_EQ(grid.cells.Rows(), 5);
    EXPECT_THAT(Row(1), ElementsAre("a", "b", "c"));
    EXPECT_THAT(Row(2), ElementsAre("g", "h", "i"));
    EXPECT_THAT(Row(3), ElementsAre("j", "k", "l"));
    EXPECT_THAT(Row(4), ElementsAre("d", "e", "f"));
}

TEST_F(GridChanges, FewerRowsTakeThePlaceOfMore) {
    grid.Pick(2, 1);
    Replace(1, 2, {"ghi"});
    EXPECT_EQ(grid.cells.Rows(), 2);
    EXPECT_THAT(Row(1), ElementsAre("g", "h", "i"));
    ExpectCurrent(1, 1);
}

// Typing that is not committed.

class GridTyping : public GridTest {};

TEST_F(GridTyping, OfAnOpenCellIsTakenBackToTheCellsText) {
    Edit(1, 1, "typed");
    EXPECT_TRUE(grid.editor.HasTyping());
    grid.editor.UndoTyping();
    EXPECT_EQ(grid.editor.Text(), "b");
    EXPECT_EQ(grid.editor.SelStart(), 0U);
    EXPECT_EQ(grid.editor.SelLength(), 1U);
    EXPECT_FALSE(grid.editor.HasTyping());
    EXPECT_TRUE(grid.editor.IsOpen());
}

TEST_F(GridTyping, ComesBackWithTheCaretBehindIt) {
    Edit(1, 1, "typed");
    grid.editor.UndoTyping();
    EXPECT_TRUE(grid.editor.CanRedoTyping());
    grid.editor.RedoTyping();
    EXPECT_EQ(grid.editor.Text(), "typed");
    EXPECT_EQ(grid.editor.SelStart(), 5U);
    EXPECT_FALSE(grid.editor.CanRedoTyping());
}

TEST_F(GridTyping, IsForgottenWithTheEditor) {
    Edit(1, 1, "typed");
    grid.editor.UndoTyping();
    grid.editor.Cancel();
    EXPECT_FALSE(grid.editor.CanRedoTyping());
    EXPECT_FALSE(grid.editor.HasTyping());
}

TEST_F(GridTyping, TellsEachChangeOfWhatCanBeTakenBack) {
    int told = 0;
    grid.editor.typingChanged.Connect([&] { ++told; });
    Edit(1, 1, "t");
    const int before = told;
    TypeInEditor("t"); // no change
    EXPECT_EQ(told, before);
    TypeInEditor("ty");
    grid.editor.UndoTyping();
    EXPECT_GT(told, before + 1);
}

} // namespace
} // namespace zy::test
