#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class WriteUnits : public UnitsTest {};

TEST_F(WriteUnits, PutsTheDescriptionFirstThenACommaThenTheUnit) {
    OpenOver("Kilograms,kg\r\n");
    Edit(1, kUnitDescription, "Kilogrammes");
    Save();
    EXPECT_EQ(File(), "Kilogrammes,kg\r\n");
}

TEST_F(WriteUnits, GivesBackTheBytesThatWereLoaded) {
    const std::string bytes = "Kilograms,kg\r\nDegrees Celsius,\xB0"
                              "C\r\nCubic metres,m\xB3\r\n,each\r\n";
    OpenOver(bytes);
    ChooseSave();
    EXPECT_EQ(File(), bytes);
}

TEST_F(WriteUnits, EndsEveryLineSoThatItsFilesLoadWhole) {
    OpenOver("A,a\r\nB,b\r\nlost");
    ChooseSave();
    EXPECT_EQ(File(), "A,a\r\nB,b\r\n");
    page.units.LoadUnitsData();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B"));
}

TEST_F(WriteUnits, MakesAFileOfNoBytesOutOfNoRows) {
    Open();
    Save();
    EXPECT_EQ(File(), "");
}

TEST_F(WriteUnits, ReplacesALongerFileByAnEmptyOne) {
    OpenThreeUnits();
    for (int left = 3; left > 0; --left) {
        grid.Pick(1, 0);
        Delete(Answer::Yes);
    }
    Save();
    EXPECT_EQ(File(), "");
}

TEST_F(WriteUnits, QuotesNothingSoThatACommaInADescriptionCostsTheUnitAtTheNextLoad) {
    Open();
    AddUnit("m", "Metres, SI");
    Save();
    EXPECT_EQ(File(), "Metres, SI,m\r\n");
    page.units.LoadUnitsData();
    EXPECT_THAT(Units(), ElementsAre("SI|Metres"));
}

TEST_F(WriteUnits, WritesCellsAsTheyStandAndTheNextLoadTrimsThem) {
    Open();
    AddUnit("   ", "  Blanks ");
    Save();
    EXPECT_EQ(File(), "  Blanks ,   \r\n");
    page.units.LoadUnitsData();
    EXPECT_THAT(Units(), ElementsAre("|Blanks"));
}

TEST_F(WriteUnits, DeletesTheOldFileThenWritesTheNewOneAtOnce) {
    OpenThreeUnits();
    world.files.Plan({});
    ChooseSave();
    EXPECT_THAT(world.files.Operations().Lines(),
                ElementsAre(R"(Exists C:\SYS\ZYUNITS.SYS)", R"(Delete C:\SYS\ZYUNITS.SYS)",
                            R"(Create C:\SYS\ZYUNITS.SYS)", R"(Write C:\SYS\ZYUNITS.SYS)",
                            R"(Flush C:\SYS\ZYUNITS.SYS)", R"(Close C:\SYS\ZYUNITS.SYS)"));
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), ElementsAre("ZYUNITS.SYS"));
}

TEST_F(WriteUnits, DeletesNothingWhereThereIsNoFile) {
    Open();
    world.files.Plan({});
    Save();
    EXPECT_THAT(world.files.Operations().Lines(),
                ElementsAre(R"(Exists C:\SYS\ZYUNITS.SYS)", R"(Create C:\SYS\ZYUNITS.SYS)",
                            R"(Write C:\SYS\ZYUNITS.SYS)", R"(Flush C:\SYS\ZYUNITS.SYS)",
                            R"(Close C:\SYS\ZYUNITS.SYS)"));
}

TEST_F(WriteUnits, DoesNotDeleteAFileThatTheSearchDoesNotFind) {
    OpenThreeUnits();
    world.files.Plan({.operation = 1}); // the search
    ChooseSave();
    EXPECT_THAT(world.files.Operations().Lines(),
                ::testing::Not(::testing::Contains(::testing::HasSubstr("Delete"))));
    EXPECT_EQ(File(), "A,a\r\nB,b\r\nC,c\r\n");
}

TEST_F(WriteUnits, WritesAnEditMadeWhileItWasOpen) {
    OpenThreeUnits();
    Edit(2, kUnit, "bb");
    Edit(3, kUnitDescription, "");
    AddUnit("d", "D");
    Save();
    EXPECT_EQ(File(), "A,a\r\nB,bb\r\n,c\r\nD,d\r\n");
}

} // namespace
} // namespace zy::test
