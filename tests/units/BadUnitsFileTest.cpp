#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class BadUnitsFile : public UnitsTest {
  protected:
    /// Loading ends in error 9 whose box names this line; the file stays as it was.
    void ExpectFatal(const std::string& bytes, int line) {
        SCOPED_TRACE(::testing::PrintToString(bytes));
        const auto error = RaisedBy([&] { OpenOver(bytes); });
        EXPECT_EQ(error.Number(), 9);
        EXPECT_EQ(error.BoxText(), "Run-time error '9':\n\nSubscript out of range\n\n"
                                   "C:\\SYS\\ZYUNITS.SYS, line " +
                                       std::to_string(line) +
                                       ": no comma or TAB between description and unit");
        EXPECT_EQ(File(), bytes);
    }
};

TEST_F(BadUnitsFile, WithALineOfOneFieldEndsTheProgramAndNamesTheLine) {
    ExpectFatal("Kilograms\r\n", 1);
    ExpectFatal("A,a\r\nB\tb\r\nKilograms\r\nC,c\r\n", 3);
}

TEST_F(BadUnitsFile, IsNamedAsPeopleNameIt) {
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    EXPECT_THAT(RaisedBy([&] { OpenOver("one field\r\n"); }).Description(),
                HasSubstr("/home/u/ZYUNITS.SYS, line 1:"));
}

TEST_F(BadUnitsFile, WithABlankLineEndsTheProgramAndNamesTheLine) {
    ExpectFatal("\r\n", 1);
    ExpectFatal("A,a\r\n\r\n", 2);
    ExpectFatal("A,a\r\n   \r\nB,b\r\n", 2);
}

TEST_F(BadUnitsFile, WithANulAloneOnALineEndsTheProgram) {
    ExpectFatal(std::string("\0\r\n", 3), 1);
}

TEST_F(BadUnitsFile, WithOneFieldBehindTheLastLineEndIsRead) {
    OpenOver("A,a\r\nKilograms");
    EXPECT_THAT(Units(), ElementsAre("a|A"));
}

TEST_F(BadUnitsFile, WithTenFieldsGivesTheFirstTwo) {
    OpenOver("1,2,3,4,5,6,7,8,9,10\r\n1\t2\t3\t4\t5\t6\t7\t8\t9\t10\r\nA,a\r\n");
    EXPECT_THAT(Units(), ElementsAre("2|1", "2|1", "a|A"));
}

TEST_F(BadUnitsFile, WithSeparatorsAloneGivesEmptyCells) {
    OpenOver(",\r\n,,,,\r\n\t\r\n\t\t\t\r\n , \r\n");
    EXPECT_THAT(Units(), ElementsAre("|", "|", "|", "|", "|"));
}

TEST_F(BadUnitsFile, WithUnbalancedQuotesKeepsThem) {
    OpenOver("\"Metres,m\r\nSeconds\",\"s\r\n\",g\"\r\nBars\" ,\"\r\n");
    EXPECT_THAT(Units(), ElementsAre("m|\"Metres", "\"s|Seconds\"", "g\"|", "|Bars\""));
}

TEST_F(BadUnitsFile, WithASeparatorInsideQuotesSplitsThereAllTheSame) {
    OpenOver("\"Metres, SI\",m\r\n");
    EXPECT_THAT(Units(), ElementsAre("SI\"|\"Metres"));
}

TEST_F(BadUnitsFile, WithTabsAndCommasMixedChoosesByTheLine) {
    OpenOver("A,1\ta\r\nB,b\r\nC,1,2\tc,\t3\r\nD,d\r\n\t,\r\nE,e\r\n");
    EXPECT_THAT(Units(), ElementsAre("a|A,1", "b|B", "c,|C,1,2", "d|D", ",|", "e|E"));
}

TEST_F(BadUnitsFile, WithCarriageReturnsOrLineFeedsAloneTakesThemForText) {
    OpenOver("A\rA,a\ra\r\nB\nB,b\nb\r\n\n\r,\r\r\n\n,\n\r\n");
    EXPECT_THAT(Units(), ElementsAre("a\ra|A\rA", "b\nb|B\nB", "\r|\n\r", "\n|\n"));
}

TEST_F(BadUnitsFile, WithoutAnyWholeLineEndIsAnEmptyList) {
    for (const char* bytes : {"A,a", "A,a\nB,b\n", "A,a\rB,b\r", "\n", "\r", "\n\r"}) {
        OpenOver(bytes);
        EXPECT_THAT(Units(), IsEmpty()) << ::testing::PrintToString(bytes);
        EXPECT_FALSE(controls.cmdSaveUnits.Enabled());
    }
}

TEST_F(BadUnitsFile, WithANulKeepsItAsACharacter) {
    OpenOver(std::string("A\0A,a\0\r\n\0,\0\r\n", 13));
    EXPECT_THAT(Units(), ElementsAre(std::string("a\0|A\0A", 6), std::string("\0|\0", 3)));
}

TEST_F(BadUnitsFile, WithEveryCharacterKeepsThoseThatAreNoSeparators) {
    std::string field;
    for (int code = 1; code < 256; ++code) {
        const char character = static_cast<char>(code);
        if (character != ',' && character != '\t' && character != '\n') {
            field += character;
        }
    }
    OpenOver(field + "," + field + "\r\n");
    EXPECT_THAT(Units(), ElementsAre(field + "|" + field));
}

TEST_F(BadUnitsFile, WithALineOfTenMegabytesIsTakenWhole) {
    const std::string text(5'000'000, 'x');
    OpenOver(text + "," + text + "\r\nB,b\r\n");
    ASSERT_EQ(grid.cells.Rows(), 3);
    EXPECT_EQ(grid.cells.Text(1, kUnit), text);
    EXPECT_EQ(grid.cells.Text(1, kUnitDescription), text);
    EXPECT_EQ(grid.cells.Text(2, kUnit), "b");
}

TEST_F(BadUnitsFile, WithAMillionFieldsOnALineGivesTheFirstTwo) {
    OpenOver("A,a" + std::string(1'000'000, ',') + "\r\nB,b\r\n" + std::string(1'000'000, ',') + "\r\n");
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "|"));
}

TEST_F(BadUnitsFile, ThatMayNotBeReadIsAnEmptyListAndTheStatusBarTellsWhy) {
    world.files.Put(kUnitsFile, "A,a\r\n");
    world.files.SetUnreadable(kUnitsFile);
    Open();
    EXPECT_THAT(Units(), IsEmpty());
    EXPECT_FALSE(controls.cmdSaveUnits.Enabled());
    EXPECT_FALSE(form.ChangeFlag);
    EXPECT_EQ(Status(),
              "0 units; ZYUNITS.SYS could not be read: access is denied; saving replaces all that it "
              "holds");
    EXPECT_EQ(File(), "A,a\r\n");
}

TEST_F(BadUnitsFile, OnADiskThatCannotReadIsAnEmptyListAndTheStatusBarTells) {
    world.files.Put(kUnitsFile, "A,a\r\n");
    world.files.Plan({.operation = 3}); // the one read
    Open();
    EXPECT_THAT(Units(), IsEmpty());
    EXPECT_FALSE(controls.cmdSaveUnits.Enabled());
    EXPECT_EQ(Status(),
              "0 units; ZYUNITS.SYS could not be read to its end: the disk reported an error; saving "
              "drops the rest");
}

} // namespace
} // namespace zy::test
