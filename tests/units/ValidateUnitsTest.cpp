#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kBlank = "Unit cannot be blank";
constexpr auto kQuotes = "Unit cannot contain double quotes";
constexpr auto kPipe = "Unit cannot contain pipe character '|'";

class ValidateUnits : public UnitsTest {
  protected:
    ValidateUnits() { OpenThreeUnits(); }

    /// Saving is refused with this message, and everything stays as it is.
    void ExpectRefused(std::string_view message) {
        const auto units = Units();
        ExpectInvalid(message);
        Save();
        EXPECT_EQ(File(), "A,a\r\nB,b\r\nC,c\r\n");
        EXPECT_EQ(Units(), units);
        ExpectChanged(true);
    }
};

TEST_F(ValidateUnits, RefusesANewRowLeftEmpty) {
    Add();
    ExpectRefused(kBlank);
}

TEST_F(ValidateUnits, RefusesAnEmptyUnit) {
    Edit(2, kUnit, "");
    ExpectRefused(kBlank);
}

TEST_F(ValidateUnits, RefusesDoubleQuotesInAUnit) {
    Edit(2, kUnit, "\"");
    ExpectRefused(kQuotes);
}

TEST_F(ValidateUnits, RefusesAPipeInAUnit) {
    Edit(2, kUnit, "a|b");
    ExpectRefused(kPipe);
}

TEST_F(ValidateUnits, RefusesDoubleQuotesInADescriptionWithTheUnitsWords) {
    Edit(2, kUnitDescription, "5\" pipe");
    ExpectRefused(kQuotes);
}

TEST_F(ValidateUnits, FindsQuotesBeforeAPipe) {
    Edit(2, kUnit, "|\"");
    ExpectRefused(kQuotes);
}

TEST_F(ValidateUnits, ReportsTheFirstBadFieldAloneAndARowsUnitBeforeItsDescription) {
    Edit(2, kUnitDescription, "\"");
    Edit(3, kUnit, "");
    ExpectRefused(kQuotes);
    Edit(2, kUnit, "|");
    ExpectRefused(kPipe);
    Edit(1, kUnit, "");
    ExpectRefused(kBlank);
}

TEST_F(ValidateUnits, LeavesTheCurrentCellWhereItIs) {
    Edit(2, kUnit, "");
    grid.Pick(3, kUnitDescription);
    ExpectRefused(kBlank);
    ExpectCurrent(3, kUnitDescription);
    EXPECT_FALSE(grid.editor.IsOpen());
}

TEST_F(ValidateUnits, AcceptsBlanksAPipeInADescriptionAndAnEmptyDescription) {
    Edit(1, kUnit, "   ");
    Edit(1, kUnitDescription, "a|b");
    Edit(2, kUnitDescription, "");
    Save();
    EXPECT_EQ(File(), "a|b,   \r\n,b\r\nC,c\r\n");
    ExpectChanged(false);
}

TEST_F(ValidateUnits, RefusesNoCommas) {
    Edit(1, kUnit, "a,b");
    Edit(1, kUnitDescription, "A, B");
    Save();
    EXPECT_EQ(File(), "A, B,a,b\r\nB,b\r\nC,c\r\n");
}

TEST_F(ValidateUnits, PassesAListWithoutRows) {
    grid.cells.SetRows(1);
    EXPECT_TRUE(page.units.ValidateUnits());
}

TEST_F(ValidateUnits, RefusesByTheMenuToo) {
    Edit(2, kUnit, "");
    ExpectInvalid(kBlank);
    ChooseSave();
    EXPECT_EQ(File(), "A,a\r\nB,b\r\nC,c\r\n");
    ExpectChanged(true);
}

TEST_F(ValidateUnits, RefusesUntilThePersonHasCorrectedTheField) {
    Edit(2, kUnit, "");
    ExpectRefused(kBlank);
    Edit(2, kUnit, "bb");
    Save();
    EXPECT_EQ(File(), "A,a\r\nB,bb\r\nC,c\r\n");
    ExpectChanged(false);
}

/// The checks of one field, each with what it says.
struct Check {
    const char* text;
    const char* message; ///< nullptr: it passes
};

class UnitChecks : public UnitsTest {
  protected:
    mUnits units{grid, state, program.trace, world.files, world.dialogs};

    void Expect(const Check& check) {
        SCOPED_TRACE(check.text);
        if (check.message != nullptr) {
            ExpectInvalid(check.message);
        }
    }
};

TEST_F(UnitChecks, OfAUnitStopAtTheFirstFailure) {
    for (const Check& check : {Check{"", kBlank},
                               {" ", nullptr},
                               {"m", nullptr},
                               {"\"m\"", kQuotes},
                               {"m|", kPipe},
                               {"|\"|", kQuotes},
                               {"m,s", nullptr},
                               {"m's", nullptr},
                               {"\xB0\xB2\xB3", nullptr}}) {
        Expect(check);
        EXPECT_EQ(units.Validate_Unit(check.text), check.message == nullptr);
        EXPECT_THAT(world.dialogs.Failures(), IsEmpty());
    }
}

TEST_F(UnitChecks, OfADescriptionLookForDoubleQuotesAlone) {
    for (const Check& check : {Check{"", nullptr},
                               {" ", nullptr},
                               {"Metres", nullptr},
                               {"\"", kQuotes},
                               {"a|b", nullptr},
                               {"a, b", nullptr},
                               {"it's 5\"", kQuotes}}) {
        Expect(check);
        EXPECT_EQ(units.Validate_Desc(check.text), check.message == nullptr);
        EXPECT_THAT(world.dialogs.Failures(), IsEmpty());
    }
}

TEST_F(UnitChecks, TraceTheirStart) {
    EXPECT_TRUE(units.Validate_Unit("m"));
    EXPECT_TRUE(units.Validate_Desc("Metres"));
    EXPECT_THAT(Traces(), ElementsAre("mUnits Validate_Unit Start", "mUnits Validate_Desc Start"));
}

} // namespace
} // namespace zy::test
