// What a person types into the cells, up to the bytes of the table.

#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class BadUserValues : public UsersTest {
  protected:
    BadUserValues() { StartOver({User("Ann"), User("Bob")}); }

    /// The save of this value is refused with this message; the table stays and no file is left behind.
    void ExpectRefused(int column, std::string_view text, const std::string& message) {
        SCOPED_TRACE(text);
        const auto before = world.files.Get(kUsersTable);
        Edit(2, column, text);
        world.dialogs.ExpectMessage(message, "ZY Setup");
        Save();
        ExpectScriptPlayed(world.dialogs);
        ExpectCurrent(2, column);
        ExpectSaveEnabled(true);
        EXPECT_EQ(world.files.Get(kUsersTable), before);
        EXPECT_THAT(world.files.Names(R"(C:\SYS)"), ElementsAre("ZYSECURE.DBF"));
    }
};

TEST_F(BadUserValues, ThatAreTooLongAreRefusedAndThoseAtTheirLimitsAreStoredWhole) {
    ExpectRefused(kUserName, "\xC9lodie-Ma\xEFt",
                  "Invalid User ID. User ID must not be longer than 10 characters");
    Edit(2, kUserName, "\xC9lodie-Ma\xEF");
    ExpectRefused(kPassword, std::string(21, '\xE9'),
                  "Invalid Password. Password must not be longer than 20 characters");
    Edit(2, kPassword, std::string(20, '\xE9'));
    ExpectRefused(kIdentification, std::string(21, '\xE9'),
                  "Invalid User Identifier. User Identifier must not be longer than 20 characters");
    Edit(2, kIdentification, std::string(20, '\xE9'));
    ExpectRefused(kExpiryDate, "2026-11-20",
                  "Invalid Expiry Date. Expiry Date must not be longer than 8 characters");
    Edit(2, kExpiryDate, "26-11-20");
    Save();
    EXPECT_EQ(TableUsers()->back(), (UserRecord{.USERID = "\xC9lodie-Ma\xEF",
                                                .PASSWORD = std::string(20, '\xE9'),
                                                .IDENTIFIER = std::string(20, '\xE9'),
                                                .EXPDATE = "26-11-20",
                                                .STATUS = "A"}));
    EXPECT_THAT(*world.files.Get(kUsersIndex), HasSubstr("\xC9lodie-Ma\xEF")) << "the key is whole";
}

TEST_F(BadUserValues, WithADoubleQuoteAreRefusedBeforeAnythingIsWritten) {
    ExpectRefused(kUserName, "\"Bob\"", "Invalid User Name. User ID cannot contain Double Quotes");
    Edit(2, kUserName, "Bob");
    ExpectRefused(kPassword, "\"", "Invalid Password. Password cannot contain Double Quotes");
    Edit(2, kPassword, "p");
    ExpectRefused(kIdentification, "a\"b",
                  "Invalid User Identifier. User Identifier cannot contain Double Quotes");
}

TEST_F(BadUserValues, WithASingleQuoteInAnyTextBreakTheSaveAndTheOldTableStays) {
    const auto before = world.files.Get(kUsersTable);
    for (const int column : {kUserName, kPassword, kIdentification, kStatus}) {
        SCOPED_TRACE(column);
        world.files.Take(kUsersTable);
        StartOver({User("Ann"), User("Bob")});
        Edit(2, column, "'");
        const auto error = RaisedBy([&] { Save(); });
        EXPECT_EQ(error.Number(), 3134);
        EXPECT_THAT(error.Description(), HasSubstr("Syntax error in INSERT INTO statement: at character"));
        EXPECT_THAT(error.Description(), Not(HasSubstr("secret")));
        EXPECT_EQ(world.files.Get(kUsersTable), before);
        EXPECT_FALSE(world.files.Exists(kUsersIndex));
        world.files.Take(kUsersTemporary);
    }
}

TEST_F(BadUserValues, ThatLookLikeStatementsAreTextOrBreakTheSave) {
    Edit(2, kPassword, "x);DROP TABLE U;--");
    Save();
    EXPECT_EQ(TableUsers()->back().PASSWORD, "x);DROP TABLE U;--");
    const auto before = world.files.Get(kUsersTable);
    Edit(2, kPassword, "x','i','','A');");
    EXPECT_EQ(RaisedBy([&] { Save(); }).Number(), 3134);
    EXPECT_EQ(world.files.Get(kUsersTable), before);
}

TEST_F(BadUserValues, WithTwoSingleQuotesAreStoredWithOne) {
    Edit(2, kUserName, "O''Neil");
    Save();
    EXPECT_EQ(TableUsers()->back().USERID, "O'Neil") << "meant: values go into the statement as they are";
}

TEST_F(BadUserValues, WithSingleQuotesAreToldWithTheirRowWhenTheCellIsCommitted) {
    const std::string fails = "2 users; row 2: a single quote makes the save fail";
    for (const int column : {kUserName, kPassword, kIdentification, kStatus, kExpiryDate}) {
        Edit(2, column, "O'B");
        EXPECT_EQ(Status(), fails) << column;
        Edit(2, column, "O''B");
        EXPECT_EQ(Status(), "2 users; row 2: two single quotes are stored as one") << column;
        Edit(2, column, "OB");
        EXPECT_EQ(Status(), "2 users") << column;
    }
    Edit(1, kUserName, "a'");
    EXPECT_EQ(Status(), "2 users; row 1: a single quote makes the save fail");
    Edit(2, kUserName, "'");
    EXPECT_EQ(Status(), fails) << "the row that was edited goes before others";
    Edit(2, kUserName, "b");
    EXPECT_EQ(Status(), "2 users; row 1: a single quote makes the save fail") << "it has them still";
}

TEST_F(BadUserValues, WithAQuoteAtTheEndOfANameBesideOneInFrontOfThePasswordBreakTheSave) {
    Edit(2, kUserName, "b'");
    Edit(2, kPassword, "'c");
    EXPECT_EQ(Status(), "2 users; row 2: a single quote makes the save fail");
    EXPECT_EQ(RaisedBy([&] { Save(); }).Number(), 3346) << "the two have become one value";
    EXPECT_EQ(TableUsers()->size(), 2U);
}

TEST_F(BadUserValues, WhoseQuotesMakeAsManyFieldsAsThereAreGetPartsOfOthers) {
    Edit(2, kUserName, "b'");
    Edit(2, kPassword, "'c");
    Edit(2, kIdentification, "i', 'j");
    EXPECT_EQ(Status(), "2 users; row 2: single quotes shift its fields in the table");
    Save();
    EXPECT_EQ(
        TableUsers()->back(),
        (UserRecord{.USERID = "b', 'c", .PASSWORD = "i", .IDENTIFIER = "j", .EXPDATE = "", .STATUS = "A"}));
}

TEST_F(BadUserValues, WithASingleQuoteInTheTableAreToldWhenItIsOpened) {
    world.files.Take(kUsersTable);
    StartOver({User("Ann"), User("O''Brien")});
    EXPECT_EQ(grid().cells.Text(2, kUserName), "O'Brien");
    EXPECT_EQ(Status(), "2 users; row 2: a single quote makes the save fail");
}

TEST_F(BadUserValues, LoseTheBlanksBehindThemAndKeepThoseBeforeThem) {
    Edit(2, kUserName, " Bob  ");
    Save();
    EXPECT_EQ(TableUsers()->back().USERID, " Bob");
}

} // namespace
} // namespace zy::test
