#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

const std::string kAdded = "frmGlobalSettings\tcmdAddUnit_Click\tStart";
constexpr auto kFile = "ZYUNITS.SYS";

class UnitsProgram : public Scene {
  protected:
    void SetUp() override { StartViewer(); }
};

TEST_F(UnitsProgram, AddsAUnitSavesAndClosesByKeyboardAlone) {
    Put(kFile, "Kilograms,kg\r\n");
    OpenUnits();
    PressFor("alt+a", kAdded); // opens the new unit's cell
    TypeCharacters("m");
    PressKeys("ctrl+2 Tab");
    TypeCharacters("Square metres");
    PressKeys("Return ctrl+s");
    EXPECT_TRUE(WaitForBytes(kFile, "Kilograms,kg\r\nSquare metres,m\xB2\r\n")) << Get(kFile);
    Close();
    EXPECT_EQ(outside.FileNames(), std::vector<std::string>{kFile});
}

TEST_F(UnitsProgram, AsksBeforeItDeletes) {
    Put(kFile, "Kilograms,kg\r\nMetres,m\r\n");
    OpenUnits();
    PressKeys("ctrl+Home alt+d"); // the first unit, from the list where the keyboard starts
    ASSERT_TRUE(WaitForWindow("Confirm Delete")) << Program().Output();
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
    PressKeys("ctrl+s");
    EXPECT_TRUE(WaitForBytes(kFile, "Metres,m\r\n")) << Get(kFile);
    Close();
}

TEST_F(UnitsProgram, TellsOfAUnitWithoutItsNameAndWritesNothing) {
    const std::string before = "Kilograms,kg\r\n";
    Put(kFile, before);
    OpenUnits();
    PressFor("alt+a", kAdded);
    PressKeys("Escape ctrl+s");
    ASSERT_TRUE(WaitForWindow("Invalid Unit")) << Program().Output();
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
    EXPECT_EQ(Get(kFile), before);
}

} // namespace
} // namespace zy::test
