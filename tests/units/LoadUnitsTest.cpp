#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LoadUnits : public UnitsTest {};

TEST_F(LoadUnits, ShowsThePageUnderItsTitle) {
    OpenThreeUnits();
    EXPECT_EQ(form.Caption(), "ZY Setup - Units of Measure");
    EXPECT_TRUE(form.FraUnits.Visible());
    EXPECT_FALSE(form.fraRules.Visible());
    EXPECT_FALSE(form.fraSecurity.Visible());
    EXPECT_EQ(form.FraUnits.Caption(), "Units of Measure");
}

TEST_F(LoadUnits, ShowsTheRowsOfTheFileInTheirOrder) {
    OpenThreeUnits();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    EXPECT_EQ(grid.cells.Columns(), 2);
    EXPECT_EQ(grid.cells.Text(0, 0), "Unit");
    EXPECT_EQ(grid.cells.Text(0, 1), "Unit Description");
}

TEST_F(LoadUnits, TakesTheDescriptionFromTheFirstFieldAndTheUnitFromTheSecond) {
    OpenOver("Kilograms,kg\r\n");
    EXPECT_EQ(grid.cells.Text(1, 0), "kg");
    EXPECT_EQ(grid.cells.Text(1, 1), "Kilograms");
}

TEST_F(LoadUnits, FindsAnEmptyListInAnEmptyFileAndLeavesSaveOff) {
    OpenOver("");
    EXPECT_EQ(grid.cells.Rows(), 1);
    EXPECT_FALSE(controls.cmdSaveUnits.Enabled());
}

TEST_F(LoadUnits, LeavesOutWhatStandsBehindTheLastLineEnd) {
    OpenOver("A,a\r\nB,b");
    EXPECT_THAT(Units(), ElementsAre("a|A"));
}

TEST_F(LoadUnits, SplitsALineWithATabAtTabsAlone) {
    OpenOver("Kilograms\tkg\r\nMetres, SI\tm\r\nSeconds,s\r\n");
    EXPECT_THAT(Units(), ElementsAre("kg|Kilograms", "m|Metres, SI", "s|Seconds"));
}

TEST_F(LoadUnits, LosesTheUnitOfADescriptionWithAComma) {
    OpenOver("Metres, SI,m\r\n");
    EXPECT_THAT(Units(), ElementsAre("SI|Metres"));
}

TEST_F(LoadUnits, DropsBlanksRoundAFieldAndOnePairOfQuotes) {
    OpenOver("  Metres  ,  m  \r\n\"Seconds\",\"s\"\r\n\"\"Grams\"\",\" g \"\r\n \"Bars\",bar\r\n");
    EXPECT_THAT(Units(), ElementsAre("m|Metres", "s|Seconds", "g|\"Grams\"", "bar|\"Bars\""));
}

TEST_F(LoadUnits, WithAFileTurnsSaveOffAndSetsNoMark) {
    OpenThreeUnits();
    ExpectChanged(false);
    EXPECT_FALSE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(LoadUnits, WithoutAFileTurnsSaveOnAndDeleteOffAndSetsNoMark) {
    Open();
    EXPECT_EQ(grid.cells.Rows(), 1);
    EXPECT_TRUE(controls.cmdSaveUnits.Enabled());
    EXPECT_FALSE(controls.cmdDeleteUnit.Enabled());
    EXPECT_FALSE(form.ChangeFlag);
    EXPECT_EQ(File(), std::nullopt);
}

TEST_F(LoadUnits, AgainWithoutTheFileTurnsSaveOnAndDeleteOff) {
    OpenThreeUnits();
    grid.Pick(1, kUnit);
    world.files.Take(kUnitsFile);
    window.ShowUnits();
    EXPECT_TRUE(controls.cmdSaveUnits.Enabled());
    EXPECT_FALSE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(LoadUnits, HasNoCurrentCellAtFirst) {
    OpenThreeUnits();
    EXPECT_EQ(grid.selection.Row(), -1);
}

TEST_F(LoadUnits, TakesAFileThatTheSearchDoesNotFindForMissing) {
    world.files.Put(kUnitsFile, "A,a\r\n");
    world.files.Plan({.operation = 1}); // the search
    Open();
    EXPECT_THAT(Units(), IsEmpty());
    EXPECT_TRUE(controls.cmdSaveUnits.Enabled());
}

TEST_F(LoadUnits, SaysOfAFileThatTheSearchDidNotFindThatItIsThere) {
    world.files.Put(kUnitsFile, "A,a\r\n");
    world.files.Plan({.operation = 1}); // the search
    Open();
    EXPECT_EQ(page.units.Dangers(), "ZYUNITS.SYS could not be read: the disk reported an error; saving "
                                    "replaces all that it holds");
}

TEST_F(LoadUnits, TakesAFolderOfThatNameForAMissingFile) {
    world.files.AddFolder(kUnitsFile);
    Open();
    EXPECT_THAT(Units(), IsEmpty());
    EXPECT_TRUE(controls.cmdSaveUnits.Enabled());
}

TEST_F(LoadUnits, ReadsTheFileOnceAndWhole) {
    OpenThreeUnits();
    EXPECT_THAT(world.files.Operations().Lines(),
                ElementsAre(R"(Exists C:\SYS\ZYUNITS.SYS)", R"(OpenAlwaysForReading C:\SYS\ZYUNITS.SYS)",
                            R"(Read C:\SYS\ZYUNITS.SYS)", R"(Close C:\SYS\ZYUNITS.SYS)"));
}

TEST_F(LoadUnits, ClosesTheFileBeforeItLooksAtTheLines) {
    EXPECT_EQ(RaisedBy([&] { OpenOver("one field\r\n"); }).Number(), 9);
    EXPECT_THAT(world.files.Operations().Lines(), ::testing::Contains(R"(Close C:\SYS\ZYUNITS.SYS)"));
}

TEST_F(LoadUnits, ShowsTheRowsOnceAllAreThereAndThenFitsTheColumns) {
    std::vector<std::string> told;
    grid.cells.rowsChanged.Connect([&] { told.push_back(std::to_string(grid.cells.Rows()) + " rows"); });
    grid.columns.fit.Connect([&](int first) { told.push_back("fit from " + std::to_string(first)); });
    OpenThreeUnits();
    EXPECT_THAT(told, ElementsAre("4 rows", "fit from 0"));
}

TEST_F(LoadUnits, AgainReplacesTheRowsAndForgetsTheCurrentCell) {
    OpenThreeUnits();
    grid.Pick(2, 0);
    world.files.Put(kUnitsFile, "D,d\r\n");
    page.units.LoadUnitsData();
    EXPECT_THAT(Units(), ElementsAre("d|D"));
    EXPECT_EQ(grid.selection.Row(), -1);
    EXPECT_FALSE(controls.cmdDeleteUnit.Enabled());
}

} // namespace
} // namespace zy::test
