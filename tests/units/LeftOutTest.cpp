#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What the file holds beside the units that are read. The status bar tells of it before and after every
/// edit, until a save has dropped it.
class LeftOut : public UnitsTest {
  protected:
    void ExpectStatus(const std::string& bytes, const std::string& status) {
        OpenOver(bytes);
        EXPECT_EQ(Status(), status) << ::testing::PrintToString(bytes);
        EXPECT_EQ(File(), bytes);
    }

    /// The report stands beside the count through everything a person does short of a save that goes well.
    void ExpectReportUntilSaved(const std::string& report) {
        const auto count = [this] {
            const int units = grid.cells.Rows() - 1;
            return std::to_string(units) + (units == 1 ? " unit" : " units");
        };
        EXPECT_EQ(Status(), count() + "; " + report);
        AddUnit("n", "New");
        EXPECT_EQ(Status(), count() + "; " + report);
        controls.UpDownUnits.PressUp();
        EXPECT_EQ(Status(), count() + "; " + report);
        ExpectNoReportAfter(count);
    }

  private:
    template <typename Count>
    void ExpectNoReportAfter(const Count& count) {
        world.files.SetUnreadable(kUnitsFile, false);
        world.files.SetHeldOpen(kUnitsFile, false);
        Save();
        EXPECT_EQ(Status(), "Saved");
        Edit(1, kUnit, "e");
        EXPECT_EQ(Status(), count());
        Save();
        page.units.LoadUnitsData();
        EXPECT_EQ(Status(), count()) << "what was saved comes back whole";
    }
};

TEST_F(LeftOut, BehindTheLastLineEndIsToldWithItsLines) {
    ExpectStatus("A,a\r\nB,b\r\nC,c\r\nD,d", "3 units; text behind the last line end, saving drops it");
    ExpectStatus("A,a\r\nB,b\n", "1 unit; text behind the last line end, saving drops it");
    ExpectStatus("A,a\r\nB,b\nC,c\n\nD,d", "1 unit; text behind the last CR LF, saving drops its 3 lines");
}

TEST_F(LeftOut, OfAFileWithoutCrLfIsToldWithItsLines) {
    ExpectStatus("A,a", "0 units; no line of the file ends in CR LF, saving drops its 1 line");
    ExpectStatus("A,a\nB,b\n", "0 units; no line of the file ends in CR LF, saving drops its 2 lines");
    ExpectStatus("A,a\rB,b\rC,c", "0 units; no line of the file ends in CR LF, saving drops its 3 lines");
    std::string many;
    for (int line = 0; line < 40'000; ++line) {
        many += "A,a\n";
    }
    ExpectStatus(many, "0 units; no line of the file ends in CR LF, saving drops its 40000 lines");
}

TEST_F(LeftOut, IsNothingWhereOnlyBlanksStandBehindTheLastLineEnd) {
    ExpectStatus("A,a\r\n", "1 unit");
    ExpectStatus("", "0 units");
    for (const char* blank : {" ", "\n", "\r", "  \n \n"}) {
        ExpectStatus(std::string("A,a\r\n") + blank, "1 unit");
    }
}

TEST_F(LeftOut, BeyondTheSecondFieldIsToldWithTheNumberOfLines) {
    ExpectStatus("Metres, SI,m\r\nB,b\r\n", "2 units; fields beyond the second in 1 line, saving drops them");
    ExpectStatus("A,a,x\r\nB\tb\tx\r\nC,c\r\n",
                 "3 units; fields beyond the second in 2 lines, saving drops them");
}

TEST_F(LeftOut, IsNothingWhereASpreadsheetLeftEmptyFieldsBehind) {
    ExpectStatus("A,a,\r\nB,b,,,\r\nC\tc\t\t \r\nD,d,\"\"\r\n", "4 units");
}

TEST_F(LeftOut, IncludesCommasThatTabsProtectedOnlyUntilTheSave) {
    ExpectStatus("Metres, SI\tm\r\nB\tb\r\nC,c\r\n",
                 "3 units; commas inside fields in 1 line, saving makes separators of them");
    ExpectStatus("A\ta,a\r\nB\tb,b\r\n",
                 "2 units; commas inside fields in 2 lines, saving makes separators of them");
    ExpectStatus("A\ta\tx,y\r\n", "1 unit; fields beyond the second in 1 line, saving drops them");
}

TEST_F(LeftOut, IsToldInOneTextWhateverItIs) {
    ExpectStatus("A,1\ta\r\nB,b,b\r\nC,c", "2 units; text behind the last line end, saving drops it; "
                                           "fields beyond the second in 1 line, saving drops them; "
                                           "commas inside fields in 1 line, saving makes separators of them");
}

TEST_F(LeftOut, StaysToldUntilASaveAndDoesNotComeBack) {
    OpenOver("A,a\r\nB,b\r\nC,c");
    ExpectReportUntilSaved("text behind the last line end, saving drops it");
}

TEST_F(LeftOut, OfAFileInLfLinesStaysToldUntilASaveAndDoesNotComeBack) {
    OpenOver("A,a\nB,b\n");
    ExpectReportUntilSaved("no line of the file ends in CR LF, saving drops its 2 lines");
}

TEST_F(LeftOut, OfAFileThatMayNotBeReadIsAllAndStaysToldUntilASave) {
    world.files.Put(kUnitsFile, "A,a\r\n");
    world.files.SetUnreadable(kUnitsFile);
    Open();
    ExpectReportUntilSaved(
        "ZYUNITS.SYS could not be read: access is denied; saving replaces all that it holds");
}

TEST_F(LeftOut, OfAFileThatAnotherProgramHoldsIsAllAndStaysToldUntilASave) {
    world.files.Put(kUnitsFile, "A,a\r\n");
    world.files.SetHeldOpen(kUnitsFile);
    Open();
    ExpectReportUntilSaved(
        "ZYUNITS.SYS could not be read: another program is using it; saving replaces all that it holds; "
        "ZYUNITS.SYS cannot be written now: another program is using it; close that program before saving");
}

TEST_F(LeftOut, OfAFileThatIsReadInPartStaysToldUntilASave) {
    world.files.Put(kUnitsFile, "A,a\r\n");
    world.files.Plan({.operation = 3}); // the one read
    Open();
    ExpectReportUntilSaved(
        "ZYUNITS.SYS could not be read to its end: the disk reported an error; saving drops the rest");
}

TEST_F(LeftOut, StaysToldWhenASaveFailsAndTheFileIsAsItWas) {
    OpenOver("A,a\r\nB,b");
    AddUnit("n", "New");
    world.files.SetHeldOpen(kUnitsFile);
    Save();
    EXPECT_EQ(File(), "A,a\r\nB,b");
    Edit(1, kUnit, "e");
    EXPECT_EQ(Status(), "2 units; text behind the last line end, saving drops it");
}

TEST_F(LeftOut, IsNotToldAnyMoreWhenASaveFailedThatHadDeletedTheFile) {
    for (const std::size_t operation : {3U, 4U, 5U, 6U}) {
        OpenOver("A,a\r\nB,b");
        Edit(1, kUnit, "e");
        world.files.Plan({.operation = operation});
        Save();
        EXPECT_THAT(Status(), ::testing::StartsWith("Not saved"));
        Edit(1, kUnit, "f");
        EXPECT_EQ(Status(), "1 unit; the last save failed, save again");
        Save();
        Edit(1, kUnit, "g");
        EXPECT_EQ(Status(), "1 unit");
    }
}

TEST_F(LeftOut, TellsAlsoWhereNobodyCanTellWhichFileIsMeant) {
    world.files.Put(kUnitsFile, "A,a\r\n");
    world.files.SetUncertain(kUnitsFile, FileError::Ambiguous);
    Open();
    const std::string uncertain =
        "; saving is refused, it is not certain which file ZYUNITS.SYS is: names that differ by case "
        "alone stand side by side";
    EXPECT_EQ(Status(), "1 unit" + uncertain);
    AddUnit("n", "New");
    EXPECT_EQ(Status(), "2 units" + uncertain);
}

TEST_F(LeftOut, IsNothingOfAFileThatIsMissing) {
    Open();
    EXPECT_EQ(Status(), "0 units");
}

TEST_F(LeftOut, IsReadInTheTurnToSave) {
    std::vector<std::string> outside;
    world.files.Operations().recorded = [&](const std::string& line) {
        if (world.files.LockedFolders().empty()) {
            outside.push_back(line);
        }
    };
    OpenThreeUnits();
    EXPECT_THAT(outside, IsEmpty());
    EXPECT_THAT(world.files.LockedFolders(), IsEmpty());
}

TEST_F(LeftOut, IsReadAllTheSameWhenSomebodyElseSavesForLong) {
    world.files.SetFolderLocked(R"(C:\SYS)");
    OpenThreeUnits();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
}

} // namespace
} // namespace zy::test
