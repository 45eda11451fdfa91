#include "ChecksTest.h"
#include "controls/Form.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr Box kNotUnique{"Rule Code must be unique", "Invalid Rule Code"};
constexpr Box kBlankCode{"Rule Code cannot be Blank", "Invalid Rule Code"};

/// The rules grid with its header row.
class ValidateRulesGrid : public ChecksTest {
  protected:
    ValidateRulesGrid() { grid.cells.SetText(0, 0, "Code is no code, and row 0 is not checked"); }

    void AddRow(const std::string& code, const std::string& min = "1", const std::string& max = "2",
                const std::string& description = "text") {
        grid.cells.AddItem(code + "\t" + min + "\t" + max + "\t>\tUCL\t" + description);
    }
    /// Leaves the cell that is open and gives another one its text.
    void Correct(int row, int column, std::string_view text) {
        grid.selection.Select(row, column);
        grid.cells.SetText(row, column, text);
    }
    bool Validate() { return checks.Validate_RulesGRid(grid); }

    void ExpectPasses() {
        Expect({}, [&] { return Validate(); });
        EXPECT_FALSE(grid.editor.IsOpen());
        EXPECT_EQ(grid.selection.Row(), -1);
    }
    void ExpectFails(int row, int column, const Box& box) {
        Expect(box, [&] { return Validate(); });
        EXPECT_EQ(grid.selection.Row(), row);
        EXPECT_EQ(grid.selection.Column(), column);
        EXPECT_TRUE(grid.editor.IsOpen());
    }

    Form form{"frm"};
    Grid grid{&form, "grdRules", 6};
};

TEST_F(ValidateRulesGrid, PassesAGridWithoutRules) {
    ExpectPasses();
}

TEST_F(ValidateRulesGrid, PassesRowsThatAreRight) {
    AddRow("A");
    AddRow("B", "2", "2");
    ExpectPasses();
}

TEST_F(ValidateRulesGrid, OpensTheCellThatFails) {
    struct Case {
        const char* code;
        const char* min;
        const char* max;
        const char* description;
        int column;
        Box box;
    };
    const Case cases[] = {
        {"", "1", "2", "d", 0, kBlankCode},
        {"ABCD", "1", "2", "d", 0, {"Rule Code must be 1 to 3 characters", "Invalid Rule Code"}},
        {"\"", "1", "2", "d", 0, {"Rule Code cannot contain double quotes", "Invalid Rule Code"}},
        {"A", "", "2", "d", 1, {"Min Must be a Numeric Value", "Invalid Rule Min Value"}},
        {"A", "0", "2", "d", 1, {"Min Must be between 1 and 100", "Invalid Rule Min Value"}},
        {"A", "1", "x", "d", 2, {"Max Must be a Numeric Value", "Invalid Rule Max Value"}},
        {"A", "1", "101", "d", 2, {"Max Must be between 1 and 100", "Invalid Rule Max Value"}},
        {"A", "5", "4", "d", 2, {"Min Value must be less than Max Value", "Invalid Rule Max or Min Value"}},
        {"A", "1", "2", "", 5, {"Rule Description cannot be Blank", "Invalid Rule Description"}},
        {"A",
         "1",
         "2",
         "\"",
         5,
         {"Rule Description cannot contain double quotes", "Invalid Rule Description"}}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.box.message);
        grid.cells.SetRows(1);
        AddRow("OK");
        AddRow(each.code, each.min, each.max, each.description);
        ExpectFails(2, each.column, each.box);
    }
}

TEST_F(ValidateRulesGrid, ChecksTheCellsOfARowInTheirOrder) {
    AddRow("", "", "", "");
    ExpectFails(1, 0, kBlankCode);
    Correct(1, 0, "A");
    ExpectFails(1, 1, {"Min Must be a Numeric Value", "Invalid Rule Min Value"});
    Correct(1, 1, "5");
    ExpectFails(1, 2, {"Max Must be a Numeric Value", "Invalid Rule Max Value"});
    Correct(1, 2, "4");
    ExpectFails(1, 2, {"Min Value must be less than Max Value", "Invalid Rule Max or Min Value"});
    Correct(1, 2, "5");
    ExpectFails(1, 5, {"Rule Description cannot be Blank", "Invalid Rule Description"});
    Correct(1, 5, " ");
    EXPECT_TRUE(Validate());
}

TEST_F(ValidateRulesGrid, ShowsTheFirstFailureAlone) {
    AddRow("A");
    AddRow("");
    AddRow("", "x");
    ExpectFails(2, 0, kBlankCode);
}

TEST_F(ValidateRulesGrid, ChecksTheLastRowToo) {
    AddRow("A");
    AddRow("B");
    AddRow("");
    ExpectFails(3, 0, kBlankCode);
}

TEST_F(ValidateRulesGrid, DoesNotCheckConditionAndZone) {
    grid.cells.AddItem("A\t1\t2\t\t\ttext");
    grid.cells.AddItem("B\t1\t2\t<>\t\"NONE\"\ttext");
    ExpectPasses();
}

TEST_F(ValidateRulesGrid, ComparesACodeWithTheRulesAsHeldButItsOwn) {
    AddCode("A");
    AddCode("B");
    AddRow("A");
    AddRow("b");
    ExpectPasses();
    Correct(2, 0, "a ");
    ExpectFails(2, 0, kNotUnique);
}

TEST_F(ValidateRulesGrid, NeverComparesACodeWithTheOtherRows) {
    AddCode("A");
    AddCode("B");
    AddRow("X");
    AddRow("X");
    ExpectPasses();
}

TEST_F(ValidateRulesGrid, RefusesTwoRowsThatChangedTheirCodes) {
    AddCode("A");
    AddCode("B");
    AddRow("B");
    AddRow("A");
    ExpectFails(1, 0, kNotUnique);
}

TEST_F(ValidateRulesGrid, ComparesARowThatNoRuleBelongsToWithAllRules) {
    AddCode("A");
    AddRow("A");
    AddRow("A");
    ExpectFails(2, 0, kNotUnique);
}

TEST_F(ValidateRulesGrid, TracesItselfAndEveryCheckThatItRuns) {
    AddRow("A");
    AddRow("B", "1", "x");
    world.dialogs.ExpectMessage("Max Must be a Numeric Value", "Invalid Rule Max Value");
    EXPECT_THAT(Traces([&] { Validate(); }),
                ElementsAre("Trace mRules Validate_RulesGRid Start", "Trace mRules CheckCode Start",
                            "Trace mRules Check_Min Start", "Trace mRules Check_Max Start",
                            "Trace mRules Verify_MinMax Start", "Trace mRules CheckCode Start",
                            "Trace mRules Check_Min Start", "Trace mRules Check_Max Start"));
}

TEST_F(ValidateRulesGrid, PassesAFullListOf32767Rules) {
    constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    for (std::size_t i = 0; i < 32767; ++i) {
        const std::string code{kLetters[i % 36], kLetters[i / 36 % 36], kLetters[i / 1296]};
        AddCode(code);
        AddRow(code);
    }
    ExpectPasses();
}

} // namespace
} // namespace zy::test
