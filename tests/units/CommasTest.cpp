#include "UnitsTest.h"

namespace zy::test {
namespace {

/// Commas are taken and saved, but the file separates its fields by them: the status bar tells as soon as a
/// cell is left how the row will be read back.
class Commas : public UnitsTest {
  protected:
    Commas() { OpenThreeUnits(); }

    /// What was told of this row is what comes of it.
    void ExpectReadBackAs(int row, const std::string& unit, const std::string& description) {
        EXPECT_EQ(Status(), "3 units   -   row " + std::to_string(row) + ": its comma makes it unit \"" +
                                unit + "\", \"" + description + "\" at the next start");
        Save();
        page.units.LoadUnitsData();
        EXPECT_EQ(grid.cells.Text(row, kUnit), unit);
        EXPECT_EQ(grid.cells.Text(row, kUnitDescription), description);
    }
};

TEST_F(Commas, InADescriptionAreToldWithWhatTheNextStartMakesOfThem) {
    Edit(2, kUnitDescription, "Metres, SI");
    ExpectReadBackAs(2, "SI", "Metres");
}

TEST_F(Commas, InAUnitAreToldWithWhatTheNextStartMakesOfThem) {
    Edit(3, kUnit, "m,s");
    ExpectReadBackAs(3, "m", "C");
}

TEST_F(Commas, AreToldForWhateverCellOfTheirRowIsLeft) {
    Edit(1, kUnitDescription, "x, y ,z");
    Edit(1, kUnit, "u");
    ExpectReadBackAs(1, "y", "x");
}

TEST_F(Commas, AreSavedAsTheyStand) {
    Edit(2, kUnitDescription, "Metres, SI");
    Save();
    EXPECT_EQ(Status(), "Saved");
    EXPECT_EQ(File(), "A,a\r\nMetres, SI,b\r\nC,c\r\n");
}

TEST_F(Commas, AreNotToldOfOtherRows) {
    Edit(2, kUnitDescription, "Metres, SI");
    Edit(1, kUnit, "u");
    EXPECT_EQ(Status(), "3 units");
}

TEST_F(Commas, AreNotToldOnceTheyAreTakenOut) {
    Edit(2, kUnitDescription, "Metres, SI");
    Edit(2, kUnitDescription, "Metres (SI)");
    EXPECT_EQ(Status(), "3 units");
}

TEST_F(Commas, InLongTextsAreToldShortly) {
    Edit(1, kUnitDescription, std::string(100, 'x') + ", y");
    EXPECT_EQ(Status(), "3 units   -   row 1: its comma makes it unit \"y\", \"" + std::string(40, 'x') +
                            "...\" at the next start");
}

TEST_F(Commas, ThatArePastedAreToldOfTheFirstRowAndCountedForTheOthers) {
    grid.Pick(1, kUnit);
    grid.Paste("u\tU\r\nv\tV, 1\r\nw\tW, 2\r\nx,x\tX\r\n");
    EXPECT_EQ(
        Status(),
        "4 units   -   row 2: its comma makes it unit \"1\", \"V\" at the next start; commas in 2 more rows");
    grid.Paste("u\tU\r\nv\tV, 1\r\n");
    EXPECT_EQ(Status(), "4 units   -   row 2: its comma makes it unit \"1\", \"V\" at the next start");
    grid.Paste("u\tU\r\nv\tV\r\n");
    EXPECT_EQ(Status(), "4 units");
}

TEST_F(Commas, AreToldBesideWhatASaveWouldDrop) {
    OpenOver("A,a\r\nB,b");
    Edit(1, kUnitDescription, "x,y");
    EXPECT_EQ(Status(), "1 unit; text behind the last line end, saving drops it   -   row 1: its comma makes "
                        "it unit \"y\", \"x\" at the next start");
}

/// The other separator of the file can be neither typed nor pasted, so no row needs to be told for it.
TEST_F(Commas, AreTheOnlySeparatorsThatGetIntoAPastedCell) {
    grid.Pick(1, kUnit);
    grid.Paste("\"u\tv\"\t\"one\ttwo\"\r\n");
    EXPECT_EQ(grid.cells.Text(1, kUnit), "u v");
    EXPECT_EQ(grid.cells.Text(1, kUnitDescription), "one two");
    EXPECT_EQ(Status(), "3 units");
}

} // namespace
} // namespace zy::test
