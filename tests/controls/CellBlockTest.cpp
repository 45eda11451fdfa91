#include "GridTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

TEST_F(GridTest, CopiesTheBlockAsASpreadsheetDoes) {
    grid.selection.Select(2, 1);
    grid.Press({Key::Up, false, false, true});
    grid.Press({Key::Right, false, false, true});
    EXPECT_EQ(grid.block.Copy(), "b\tc\r\ne\tf\r\n");
}

TEST_F(GridTest, SelectsAllCellsFromTheFirstToTheLast) {
    grid.selection.Select(2, 1);
    grid.SelectAll();
    ExpectCurrent(1, 0);
    EXPECT_EQ(grid.selection.BlockEnd(), (Cell{2, 2}));
    grid.cells.SetRows(1);
    grid.SelectAll();
    EXPECT_EQ(grid.block.Copy(), "") << "the header is no row to select";
}

TEST_F(GridTest, CopiesNothingWithoutACurrentCell) {
    EXPECT_EQ(grid.block.Copy(), "");
}

TEST_F(GridTest, PastesABlockFromTheCurrentCellOnEachCellAnEdit) {
    grid.selection.Select(1, 1);
    notes.clear();
    grid.Paste("1\t2\t3\r\n4");
    EXPECT_THAT(Row(1), ElementsAre("a", "1", "2"));
    EXPECT_THAT(Row(2), ElementsAre("d", "4", "f"));
    EXPECT_THAT(notes, ElementsAre("changed 1,1", "after 1,1", "changed 1,2", "after 1,2", "changed 2,1",
                                   "after 2,1"));
}

TEST_F(GridTest, AddsPastedRowsOnlyWhereItMayGrow) {
    grid.selection.Select(2, 0);
    grid.Paste("1\n2\n");
    EXPECT_EQ(grid.cells.Rows(), 3);
    grid.block.SetGrowsByPaste(true);
    grid.Paste("1\n2\n");
    EXPECT_EQ(grid.cells.Rows(), 4);
    EXPECT_EQ(grid.cells.Text(3, 0), "2");
}

TEST_F(GridTest, AddsARowForATextThatEndsInATab) {
    grid.block.SetGrowsByPaste(true);
    grid.cells.SetRows(1);
    grid.Paste("1\t");
    ASSERT_EQ(grid.cells.Rows(), 2);
    EXPECT_THAT(Row(1), ElementsAre("1", "", ""));
    grid.Paste("2\n3\t");
    ASSERT_EQ(grid.cells.Rows(), 3);
    EXPECT_THAT(Row(2), ElementsAre("3", "", ""));
    ExpectLeftOut(0, 0);
}

TEST_F(GridTest, RefusesAPasteBeyondTheLastPossibleRowAsAWhole) {
    grid.block.SetGrowsByPaste(true);
    grid.selection.Select(2, 0);
    notes.clear();
    const std::string rows(32767, '\n');
    grid.Paste(rows);
    EXPECT_EQ(grid.cells.Rows(), 3);
    EXPECT_THAT(notes, ElementsAre());
    ASSERT_EQ(pasted.size(), 1U);
    EXPECT_TRUE(pasted.back().tooLong);
    grid.selection.Select(1, 0);
    grid.Paste(rows);
    EXPECT_EQ(grid.cells.Rows(), 32768) << "the header and 32,767 rows";
    ExpectLeftOut(0, 0);
}

TEST_F(GridTest, TellsHowManyRowsAndColumnsOfAPasteItHadNoRoomFor) {
    grid.selection.Select(1, 1);
    grid.Paste("1\t2\r\n3\t4\r\n");
    ExpectLeftOut(0, 0);
    grid.Paste("1\t2\t3\r\n4\t5\t6\t7\r\n8\r\n9\r\n10\r\n");
    ExpectLeftOut(3, 2);
    EXPECT_THAT(Row(1), ElementsAre("a", "1", "2"));
    EXPECT_THAT(Row(2), ElementsAre("d", "4", "5"));
}

TEST_F(GridTest, TellsOfAPasteOnceAllItsEditsAreTold) {
    grid.block.pasted.Connect([this](const PasteReport&) { notes.emplace_back("pasted"); });
    grid.selection.Select(2, 2);
    notes.clear();
    grid.Paste("1");
    EXPECT_THAT(notes, ElementsAre("changed 2,2", "after 2,2", "pasted"));
}

TEST_F(GridTest, TellsThatAPasteWithoutAPlaceWasLeftOut) {
    grid.Paste("1\r\n2\r\n");
    ExpectLeftOut(2, 0);
    grid.cells.SetRows(1);
    grid.Paste("1");
    ExpectLeftOut(1, 0);
}

TEST_F(GridTest, RefusesAPastedTextThatTheListOfItsCellLacksAndTakesTheRest) {
    grid.columns.SetList(1, CellList("A|I"));
    grid.selection.Select(1, 0);
    notes.clear();
    grid.Paste("1\tZZ\t2\r\n3\tI\t4\r\n");
    EXPECT_THAT(Row(1), ElementsAre("1", "b", "2"));
    EXPECT_THAT(Row(2), ElementsAre("3", "I", "4"));
    EXPECT_THAT(notes, ::testing::Not(::testing::Contains("after 1,1")));
    ExpectLeftOut(0, 0, 1);
    EXPECT_EQ(pasted.back().firstRefused, (Cell{1, 1}));
    EXPECT_EQ(pasted.back().textRefused, "ZZ");
    EXPECT_EQ(grid.selection.BlockEnd(), (Cell{2, 2}));
}

TEST_F(GridTest, NamesTheFirstOfSeveralPastedTextsThatItRefused) {
    grid.columns.SetList(1, CellList("A|I"));
    grid.columns.SetList(2, CellList("x"));
    grid.selection.Select(1, 0);
    grid.Paste("1\tA\ty\r\n2\tZ\tx\r\n");
    ExpectLeftOut(0, 0, 2);
    EXPECT_EQ(pasted.back().firstRefused, (Cell{1, 2}));
    EXPECT_EQ(pasted.back().textRefused, "y");
}

TEST_F(GridTest, TakesOfAPasteIntoAListCellItsItemsAsTheyStandAndNothingAtAll) {
    grid.columns.SetList(1, CellList("A|In use||I"));
    grid.selection.Select(1, 1);
    for (const char* text : {"A", "In use", "I", "\t"}) {
        grid.Paste(text);
        ExpectLeftOut(0, 0);
    }
    EXPECT_EQ(grid.cells.Text(1, 1), "");
    grid.Paste("I");
    for (const char* text : {"a", "A ", " A", "A|I", "|", "In", "use"}) {
        grid.Paste(text);
        ExpectLeftOut(0, 0, 1);
        EXPECT_EQ(grid.cells.Text(1, 1), "I") << text;
    }
}

TEST_F(GridTest, CopiesNothingOfItsHeader) {
    grid.selection.Select(0, 0);
    EXPECT_EQ(grid.block.Copy(), "");
    grid.selection.SelectTo(1, 0);
    EXPECT_EQ(grid.block.Copy(), "a\r\n");
}

TEST_F(GridTest, PastesFromTheFirstCellOfTheBlockOn) {
    grid.selection.Select(2, 2);
    grid.selection.SelectTo(1, 1);
    grid.Paste("1\t2\r\n3\t4\r\n");
    EXPECT_THAT(Row(1), ElementsAre("a", "1", "2"));
    EXPECT_THAT(Row(2), ElementsAre("d", "3", "4"));
}

TEST_F(GridTest, SelectsWhatItPasted) {
    grid.selection.Select(1, 0);
    grid.Paste("1\t2\n3\t4\n5\t6\n");
    ExpectCurrent(1, 0);
    EXPECT_EQ(grid.selection.BlockEnd(), (Cell{2, 1})) << "the third row does not fit";
}

TEST_F(GridTest, LeavesPastedColumnsOutThatItDoesNotHave) {
    grid.selection.Select(1, 1);
    grid.Paste("1\t2\t3\t4\n5");
    EXPECT_THAT(Row(1), ElementsAre("a", "1", "2"));
    EXPECT_THAT(Row(2), ElementsAre("d", "5", "f"));
    EXPECT_EQ(grid.selection.BlockEnd(), (Cell{2, 2}));
}

TEST_F(GridTest, CommitsTheOpenEditBeforeAPaste) {
    Edit(1, 1, "x");
    grid.Paste("1\t2");
    EXPECT_THAT(Row(1), ElementsAre("a", "1", "2"));
    EXPECT_FALSE(grid.editor.IsOpen());
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "after 1,1"), 2);
}

TEST_F(GridTest, PastesNothingWithoutACurrentCell) {
    grid.block.SetGrowsByPaste(true);
    grid.Paste("1");
    grid.selection.Select(1, 1);
    grid.Paste("");
    EXPECT_THAT(Row(1), ElementsAre("a", "b", "c"));
    EXPECT_EQ(grid.cells.Rows(), 3);
}

TEST_F(GridTest, PastesIntoAnEmptyGridOnlyWhereItMayGrow) {
    grid.cells.SetRows(1);
    grid.Paste("1\t2\n3");
    EXPECT_EQ(grid.cells.Rows(), 1);
    grid.block.SetGrowsByPaste(true);
    grid.Paste("1\t2\n3");
    EXPECT_EQ(grid.cells.Rows(), 3);
    EXPECT_THAT(Row(1), ElementsAre("1", "2", ""));
    EXPECT_THAT(Row(2), ElementsAre("3", "", ""));
    ExpectCurrent(1, 0);
}

TEST_F(GridTest, PutsAPastedCellOnOneLine) {
    grid.selection.Select(1, 0);
    grid.Paste("\"first\r\nsecond\"\t\"with a\tTAB\"\r\n");
    EXPECT_THAT(Row(1), ElementsAre("first second", "with a TAB", "c"));
    EXPECT_THAT(Row(2), ElementsAre("d", "e", "f"));
}

TEST_F(GridTest, PastesWhatItCopied) {
    grid.cells.SetText(1, 0, "\"quoted\"");
    grid.cells.SetText(1, 1, "5\" pipe");
    grid.cells.SetText(2, 2, "\"");
    grid.selection.Select(1, 0);
    grid.selection.SelectTo(2, 2);
    const auto copied = grid.block.Copy();
    EXPECT_EQ(copied, "\"\"\"quoted\"\"\"\t5\" pipe\tc\r\nd\te\t\"\"\"\"\r\n");
    grid.Press({Key::Delete});
    grid.Paste(copied);
    EXPECT_THAT(Row(1), ElementsAre("\"quoted\"", "5\" pipe", "c"));
    EXPECT_THAT(Row(2), ElementsAre("d", "e", "\""));
}

TEST_F(GridTest, DoesNotGrowWithWhatWasPastedOver) {
    grid.selection.Select(1, 0);
    const std::string text(50000, 'x');
    grid.Paste(text);
    const char* const place = grid.cells.Text(2, 0).data();
    for (int i = 0; i < 10; ++i) {
        grid.Paste(text + std::to_string(i));
    }
    EXPECT_NE(grid.cells.Text(2, 0).data(), place) << "what the cells hold was put together anew";
    EXPECT_EQ(grid.cells.Text(2, 0), "d");
    EXPECT_EQ(grid.cells.Text(1, 0), text + "9");
}

} // namespace
} // namespace zy::test
