#include "shell/StatusTexts.h"

#include <gtest/gtest.h>

#include "controls/Form.h"
#include "controls/Grid.h"

namespace zy::test {
namespace {

/// What a grid of two columns, the second one called "Status", says of a paste.
class PasteTexts : public ::testing::Test {
  protected:
    PasteTexts() {
        grid.cells.SetText(0, 0, "Name");
        grid.cells.SetText(0, 1, "Status");
    }
    std::string Text() const { return DescribeLeftOut(paste, grid.cells); }

    Form form{"frm"};
    Grid grid{&form, "grd", 2};
    PasteReport paste;
};

TEST_F(PasteTexts, AreEmptyWhenAllWasTaken) {
    EXPECT_EQ(Text(), "");
}

TEST_F(PasteTexts, CountTheRowsAndColumnsThatWereLeftOut) {
    paste.rowsLeftOut = 2;
    EXPECT_EQ(Text(), "2 rows left out");
    paste.columnsLeftOut = 1;
    EXPECT_EQ(Text(), "2 rows and 1 column left out");
    paste.rowsLeftOut = 0;
    EXPECT_EQ(Text(), "1 column left out");
}

TEST_F(PasteTexts, NameTheCellThatWasRefused) {
    paste.cellsRefused = 1;
    paste.firstRefused = {3, 1};
    paste.textRefused = "ZZ";
    EXPECT_EQ(Text(), "1 cell refused: row 3, Status cannot be \"ZZ\"");
    paste.cellsRefused = 2;
    EXPECT_EQ(Text(), "2 cells refused, the first: row 3, Status cannot be \"ZZ\"");
    paste.rowsLeftOut = 1;
    EXPECT_EQ(Text(), "1 row left out; 2 cells refused, the first: row 3, Status cannot be \"ZZ\"");
}

TEST_F(PasteTexts, TellOfAPasteThatWouldMakeTheListTooLong) {
    paste.tooLong = true;
    EXPECT_EQ(Text(), "Not pasted: the list would get longer than it can be");
}

TEST(StatusTexts, CountOneAndMany) {
    EXPECT_EQ(Counted(0, "rule"), "0 rules");
    EXPECT_EQ(Counted(1, "rule"), "1 rule");
    EXPECT_EQ(Counted(2, "rule"), "2 rules");
}

TEST(StatusTexts, QuoteTheFrontOfALongText) {
    EXPECT_EQ(Quoted(""), "\"\"");
    EXPECT_EQ(Quoted(std::string(40, 'x')), "\"" + std::string(40, 'x') + "\"");
    EXPECT_EQ(Quoted(std::string(41, 'x')), "\"" + std::string(40, 'x') + "...\"");
}

TEST(StatusTexts, StandApartFromTheHintsBehindThem) {
    Form form("frm");
    StatusBar bar(&form, "bar");
    bar.SetText("3 units");
    AddHint(bar, "");
    EXPECT_EQ(bar.Text(), "3 units");
    AddHint(bar, "first");
    AddHint(bar, "second");
    EXPECT_EQ(bar.Text(), "3 units   -   first   -   second");
}

} // namespace
} // namespace zy::test
