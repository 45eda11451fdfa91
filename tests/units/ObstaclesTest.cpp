#include "UnitsTest.h"

namespace zy::test {
namespace {

constexpr auto kFolder = R"(C:\SYS)";

/// What keeps a save from going well is told before anything is edited.
class UnitsObstacles : public UnitsTest {};

TEST_F(UnitsObstacles, AFolderInWhichNoFileMayBeMadeIsToldUntilASaveGoesWell) {
    const std::string told = "; ZYUNITS.SYS cannot be written now: access is denied; open the editor as its "
                             "owner or an administrator";
    world.files.SetFolderReadOnly(kFolder);
    Open();
    EXPECT_EQ(Status(), "0 units" + told);
    AddUnit("kg", "Kilograms");
    EXPECT_EQ(Status(), "1 unit" + told);
    world.files.SetFolderReadOnly(kFolder, false);
    Save();
    Edit(1, kUnit, "g");
    EXPECT_EQ(Status(), "1 unit");
}

TEST_F(UnitsObstacles, AFileThatCanBeWrittenWhereItStandsNeedsNoHint) {
    world.files.SetFolderReadOnly(kFolder);
    OpenThreeUnits();
    EXPECT_EQ(Status(), "3 units");
    Edit(1, kUnit, "x");
    Save();
    EXPECT_EQ(Status(), "Saved") << "which is why there was none";
}

} // namespace
} // namespace zy::test
