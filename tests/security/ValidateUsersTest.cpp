#include <random>
#include <string>

#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::Contains;

class ValidateUsers : public UsersTest {
  protected:
    ValidateUsers() {
        StartOver({User("Ann"), User("Bob"), User("Cid")});
        grid().selection.Select(3, 0);
    }

    explicit ValidateUsers(const Users& users) { StartOver(users); }

    /// The checks fail with this message, and this cell becomes current.
    void ExpectRefused(const std::string& message, int row, int column) {
        world.dialogs.ExpectMessage(message, "ZY Setup");
        EXPECT_FALSE(page().users.Validate_Security());
        ExpectScriptPlayed(world.dialogs);
        ExpectCurrent(row, column);
    }
    void ExpectPassed() { EXPECT_TRUE(page().users.Validate_Security()); }
};

TEST_F(ValidateUsers, UsersThatAreRightPass) {
    ExpectPassed();
    EXPECT_THAT(Traces(), Contains("mSecurity Validate_Security Start"));
    ExpectCurrent(3, 0);
}

TEST_F(ValidateUsers, ANameOfBlanksIsRefused) {
    for (const auto* name : {"", "   "}) {
        grid().cells.SetText(2, kUserName, name);
        ExpectRefused("Invalid User Name. Cannot be blank", 2, 0);
    }
}

TEST_F(ValidateUsers, ANameOfTenCharactersPassesAndOneOfElevenDoesNot) {
    grid().cells.SetText(2, kUserName, "1234567890");
    ExpectPassed();
    grid().cells.SetText(2, kUserName, "1234567890 ");
    ExpectRefused("Invalid User ID. User ID must not be longer than 10 characters", 2, 0);
}

TEST_F(ValidateUsers, ANameWithADoubleQuoteIsRefused) {
    grid().cells.SetText(2, kUserName, "B\"b");
    ExpectRefused("Invalid User Name. User ID cannot contain Double Quotes", 2, 0);
}

TEST_F(ValidateUsers, ANameInTwoRowsIsRefusedWithTheCursorOnTheOtherRow) {
    grid().cells.SetText(1, kUserName, "Admin");
    grid().cells.SetText(3, kUserName, "ADMIN");
    ExpectRefused("Invalid User Name. User Name must be unique.", 3, 0);
}

TEST_F(ValidateUsers, TheFirstOtherRowOfTheNameIsShown) {
    grid().cells.SetText(2, kUserName, "ann");
    grid().cells.SetText(3, kUserName, "ANN");
    ExpectRefused("Invalid User Name. User Name must be unique.", 2, 0);
}

TEST_F(ValidateUsers, NamesAreComparedUntrimmed) {
    grid().cells.SetText(2, kUserName, "Ann ");
    ExpectPassed();
}

TEST_F(ValidateUsers, AFailureOfAnEarlierRowComesBeforeARepeatedNameOfALaterOne) {
    grid().cells.SetText(1, kPassword, "");
    grid().cells.SetText(3, kUserName, "Bob");
    ExpectRefused("Invalid Password. Password Cannot be blank", 1, 1);
}

TEST_F(ValidateUsers, APasswordOfBlanksIsRefused) {
    for (const auto* password : {"", "  "}) {
        grid().cells.SetText(1, kPassword, password);
        ExpectRefused("Invalid Password. Password Cannot be blank", 1, 1);
    }
}

TEST_F(ValidateUsers, APasswordOfTwentyCharactersPassesAndOneOfTwentyOneDoesNot) {
    grid().cells.SetText(1, kPassword, std::string(20, 'p'));
    ExpectPassed();
    grid().cells.SetText(1, kPassword, std::string(21, 'p'));
    ExpectRefused("Invalid Password. Password must not be longer than 20 characters", 1, 1);
}

TEST_F(ValidateUsers, APasswordWithADoubleQuoteIsRefused) {
    grid().cells.SetText(1, kPassword, "p\"");
    ExpectRefused("Invalid Password. Password cannot contain Double Quotes", 1, 1);
}

TEST_F(ValidateUsers, AnEmptyStatusBecomesInactiveWithoutAWord) {
    grid().cells.SetText(2, kStatus, "");
    ExpectPassed();
    EXPECT_EQ(grid().cells.Text(2, kStatus), "I");
    ExpectMarks(false, false);
    ExpectSaveEnabled(false);
}

TEST_F(ValidateUsers, AnyOtherStatusPasses) {
    grid().cells.SetText(2, kStatus, "?");
    ExpectPassed();
    EXPECT_EQ(grid().cells.Text(2, kStatus), "?");
}

TEST_F(ValidateUsers, AnIdentificationOfBlanksIsRefused) {
    for (const auto* text : {"", " "}) {
        grid().cells.SetText(2, kIdentification, text);
        ExpectRefused("Invalid User Identifier. User Identifier Cannot be blank", 2, 4);
    }
}

TEST_F(ValidateUsers, AnIdentificationOfTwentyCharactersPassesAndOneOfTwentyOneDoesNot) {
    grid().cells.SetText(2, kIdentification, std::string(20, 'i'));
    ExpectPassed();
    grid().cells.SetText(2, kIdentification, std::string(21, 'i'));
    ExpectRefused("Invalid User Identifier. User Identifier must not be longer than 20 characters", 2, 4);
}

TEST_F(ValidateUsers, AnIdentificationWithADoubleQuoteIsRefused) {
    grid().cells.SetText(2, kIdentification, "\"");
    ExpectRefused("Invalid User Identifier. User Identifier cannot contain Double Quotes", 2, 4);
}

TEST_F(ValidateUsers, ADateThatWasNeverFilledInIsEmptiedWithoutAWord) {
    grid().cells.SetText(2, kExpiryDate, "yy-mm-dd");
    ExpectPassed();
    EXPECT_EQ(grid().cells.Text(2, kExpiryDate), "");
    ExpectMarks(false, false);
}

TEST_F(ValidateUsers, ADateOfNineCharactersIsRefusedForItsLength) {
    grid().cells.SetText(2, kExpiryDate, "26-11-200");
    ExpectRefused("Invalid Expiry Date. Expiry Date must not be longer than 8 characters", 2, 3);
}

TEST_F(ValidateUsers, ATextThatIsNoDateIsRefused) {
    for (const auto* date : {"never", "26-13-01", "26-02-29", " "}) {
        grid().cells.SetText(2, kExpiryDate, date);
        ExpectRefused("Invalid Expiry Date. Must Use Format YY-MM-DD or blank for no Expiry Date", 2, 3);
    }
    grid().cells.SetText(2, kExpiryDate, "26-11-20");
    ExpectPassed();
}

TEST_F(ValidateUsers, TheCellsOfARowAreCheckedInTheirOrder) {
    grid().cells.SetText(1, kUserName, "");
    grid().cells.SetText(1, kPassword, "");
    grid().cells.SetText(1, kStatus, "");
    grid().cells.SetText(1, kIdentification, "");
    grid().cells.SetText(1, kExpiryDate, "x");
    ExpectRefused("Invalid User Name. Cannot be blank", 1, 0);
    grid().cells.SetText(1, kUserName, "Ann");
    ExpectRefused("Invalid Password. Password Cannot be blank", 1, 1);
    EXPECT_EQ(grid().cells.Text(1, kStatus), "") << "the status is set right behind the password";
    grid().cells.SetText(1, kPassword, "p");
    ExpectRefused("Invalid User Identifier. User Identifier Cannot be blank", 1, 4);
    EXPECT_EQ(grid().cells.Text(1, kStatus), "I") << "what was set right stays";
    grid().cells.SetText(1, kIdentification, "i");
    ExpectRefused("Invalid Expiry Date. Must Use Format YY-MM-DD or blank for no Expiry Date", 1, 3);
}

TEST_F(ValidateUsers, SingleQuotesPass) {
    grid().cells.SetText(1, kUserName, "O'Neil");
    ExpectPassed();
}

class ValidateManyUsers : public ValidateUsers {
  protected:
    static constexpr int kUsers = 4000;

    ValidateManyUsers() : ValidateUsers(NumberedUsers()) {}

  private:
    static Users NumberedUsers() {
        Users users;
        for (int user = 1; user <= kUsers; ++user) {
            users.push_back(User("USER" + std::to_string(user)));
        }
        return users;
    }
};

TEST_F(ValidateManyUsers, EachTwoOfOneNameAreFound) {
    constexpr unsigned kSeed = 20261123;
    std::mt19937 random(kSeed);
    ExpectPassed();
    for (int tried = 0; tried < 20; ++tried) {
        const int one = 1 + static_cast<int>(random() % (kUsers - 1));
        const int other = one + 1 + static_cast<int>(random() % static_cast<unsigned>(kUsers - one));
        const std::string before(grid().cells.Text(other, kUserName));
        grid().cells.SetText(other, kUserName, "user" + std::to_string(one));
        ExpectRefused("Invalid User Name. User Name must be unique.", other, 0);
        grid().cells.SetText(other, kUserName, before);
    }
}

} // namespace
} // namespace zy::test
