#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// Blocks that are pasted into the users grid, which has a list in one column and does not grow.
class PasteUsers : public UsersTest {
  protected:
    PasteUsers() {
        StartOver({{.USERID = "Anna", .PASSWORD = "a", .IDENTIFIER = "i", .EXPDATE = "", .STATUS = "A"},
                   {.USERID = "Ben", .PASSWORD = "b", .IDENTIFIER = "i", .EXPDATE = "", .STATUS = "A"}});
    }
};

TEST_F(PasteUsers, TakeAStatusThatTheListHolds) {
    grid().Pick(1, kStatus);
    grid().Paste("I\r\nI\r\n");
    EXPECT_THAT(Rows(), ElementsAre("Anna|a|I||i", "Ben|b|I||i"));
    EXPECT_EQ(Status(), "2 users");
}

TEST_F(PasteUsers, RefuseAStatusThatTheListLacksAndTakeTheCellsBesideIt) {
    grid().Pick(1, kUserName);
    grid().Paste("Carl\tc\tZZ\r\nDora\td\tI\r\n");
    EXPECT_THAT(Rows(), ElementsAre("Carl|c|A||i", "Dora|d|I||i"));
    EXPECT_EQ(Status(), "2 users   -   1 cell refused: row 1, Status cannot be \"ZZ\"");
    EXPECT_TRUE(state().gbChanged);
    Save();
    EXPECT_EQ(Status(), "Saved");
}

TEST_F(PasteUsers, MarkNothingWhenAllIsRefused) {
    grid().Pick(1, kStatus);
    grid().Paste("Z\r\ni\r\n");
    EXPECT_THAT(Rows(), ElementsAre("Anna|a|A||i", "Ben|b|A||i"));
    EXPECT_EQ(Status(), "2 users   -   2 cells refused, the first: row 1, Status cannot be \"Z\"");
    EXPECT_FALSE(state().gbChanged);
    ExpectSaveEnabled(false);
}

TEST_F(PasteUsers, TellHowManyRowsAndColumnsWereLeftOut) {
    grid().Pick(2, kExpiryDate);
    grid().Paste("\tone\ttwo\tthree\r\n\tone\r\n\tone\r\n");
    EXPECT_EQ(Status(), "2 users   -   2 rows and 2 columns left out");
    EXPECT_THAT(Rows(), ElementsAre("Anna|a|A||i", "Ben|b|A||one"));
}

} // namespace
} // namespace zy::test
