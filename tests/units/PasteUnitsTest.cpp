#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class PasteUnits : public UnitsTest {};

TEST_F(PasteUnits, PutsABlockOverTheCellsFromTheCurrentOneOn) {
    OpenThreeUnits();
    grid.Pick(2, kUnit);
    grid.Paste("x\tX\r\ny\tY\r\n");
    EXPECT_THAT(Units(), ElementsAre("a|A", "x|X", "y|Y"));
    ExpectChanged(true);
}

TEST_F(PasteUnits, AddsTheRowsThatTheListLacks) {
    OpenThreeUnits();
    grid.Pick(3, kUnit);
    grid.Paste("x\tX\ny\tY\nz\tZ");
    Save();
    EXPECT_EQ(File(), "A,a\r\nB,b\r\nX,x\r\nY,y\r\nZ,z\r\n");
}

TEST_F(PasteUnits, LeavesOutColumnsThatTheListDoesNotHave) {
    OpenThreeUnits();
    grid.Pick(1, kUnitDescription);
    grid.Paste("x\ty\tz\r\n");
    EXPECT_THAT(Units(), ElementsAre("a|x", "b|B", "c|C"));
    EXPECT_EQ(Status(), "3 units   -   2 columns left out");
}

TEST_F(PasteUnits, TellsThatNothingWasPastedWithoutAPlaceForIt) {
    OpenThreeUnits();
    grid.Paste("x\r\ny\r\n");
    EXPECT_EQ(Status(), "3 units   -   2 rows left out");
    ExpectChanged(false);
}

TEST_F(PasteUnits, TellsNothingMoreThanTheNumberWhenAllWasTaken) {
    OpenThreeUnits();
    grid.Pick(1, kUnitDescription);
    grid.Paste("x\ty\r\n");
    grid.Paste("x\r\n");
    EXPECT_EQ(Status(), "3 units");
}

TEST_F(PasteUnits, FillsAnEmptyList) {
    Open();
    grid.Paste("kg\tKilograms\r\nm\tMetres\r\n");
    Save();
    EXPECT_EQ(File(), "Kilograms,kg\r\nMetres,m\r\n");
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(PasteUnits, MarksNothingWhenThereIsNothingToPasteOrNoPlaceForIt) {
    OpenThreeUnits();
    grid.Paste("x");
    grid.Pick(1, 0);
    grid.Paste("");
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    ExpectChanged(false);
}

TEST_F(PasteUnits, CountsEachCellAsAnEdit) {
    OpenThreeUnits();
    std::vector<std::string> edits;
    grid.editor.afterEdit.Connect(
        [&](int row, int column) { edits.push_back(std::to_string(row) + "," + std::to_string(column)); });
    grid.Pick(1, 0);
    grid.Paste("a\tA\nb\tB");
    EXPECT_THAT(edits, ElementsAre("1,0", "1,1", "2,0", "2,1"));
    ExpectChanged(true);
}

TEST_F(PasteUnits, PutsEachCellOnOneLineSoThatTheFileStaysWhole) {
    OpenThreeUnits();
    grid.Pick(1, 0);
    grid.Paste("x\t\"first\r\nsecond\"\r\n");
    Save();
    EXPECT_EQ(File(), "first second,x\r\nB,b\r\nC,c\r\n");
}

TEST_F(PasteUnits, TakesWhatWasCopiedHere) {
    OpenThreeUnits();
    grid.Pick(1, 0);
    grid.selection.SelectTo(2, 1);
    const auto copied = grid.block.Copy();
    EXPECT_EQ(copied, "a\tA\r\nb\tB\r\n");
    grid.Pick(3, 0);
    grid.Paste(copied);
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "a|A", "b|B"));
}

TEST_F(PasteUnits, IsCheckedWhenItIsSaved) {
    OpenThreeUnits();
    grid.Pick(1, 0);
    grid.Paste("a|b\r\n");
    ExpectInvalid("Unit cannot contain pipe character '|'");
    Save();
    EXPECT_EQ(File(), "A,a\r\nB,b\r\nC,c\r\n");
}

} // namespace
} // namespace zy::test
