#include "UnitsTest.h"
#include "shell/SaveTurn.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

constexpr auto kFolder = R"(C:\SYS)";
constexpr auto kBefore = "A,a\r\nB,b\r\nC,c\r\n";
constexpr auto kAfter = "A,aa\r\nB,b\r\nC,c\r\n";
constexpr auto kUncertain = "Not saved, it is not certain which file ZYUNITS.SYS is: "
                            "names that differ by case alone stand side by side";

/// Saves that are refused before their first step: the folder is somebody else's for the moment, or nobody
/// can tell which file is meant.
class RefusedUnitsSave : public UnitsTest {
  protected:
    RefusedUnitsSave() {
        OpenThreeUnits();
        Edit(1, kUnit, "aa");
        world.files.Plan({});
    }

    void LetSomebodyElseSave(bool saving) { world.files.SetFolderLocked(kFolder, saving); }

    /// Nothing was done to the disk, and everything can be saved as before.
    void ExpectUntouched(std::string_view status) {
        EXPECT_EQ(world.files.Operations().Count(), 0U);
        EXPECT_EQ(File(), kBefore);
        EXPECT_EQ(Status(), status);
        ExpectChanged(true);
        EXPECT_THAT(Units(), ElementsAre("aa|A", "b|B", "c|C"));
        EXPECT_THAT(Traces(), Not(Contains("mUnits Write_Units Start")));
    }
};

TEST_F(RefusedUnitsSave, ByTheButtonWhileSomebodyElseSavesChangesNothing) {
    LetSomebodyElseSave(true);
    Save();
    ExpectUntouched(SaveTurn::kRefusal);
    LetSomebodyElseSave(false);
    Save();
    EXPECT_EQ(File(), kAfter);
    EXPECT_EQ(Status(), "Saved");
    ExpectChanged(false);
}

TEST_F(RefusedUnitsSave, ByTheMenuWhileSomebodyElseSavesChangesNothing) {
    LetSomebodyElseSave(true);
    ChooseSave();
    ExpectUntouched(SaveTurn::kRefusal);
    LetSomebodyElseSave(false);
    ChooseSave();
    EXPECT_EQ(File(), kAfter);
}

TEST_F(RefusedUnitsSave, AtClosingWhileSomebodyElseSavesKeepsTheWindowOpen) {
    LetSomebodyElseSave(true);
    ExpectWishToSave(Answer::Yes);
    EXPECT_FALSE(window.Unload());
    EXPECT_TRUE(form.Visible());
    ExpectUntouched(SaveTurn::kRefusal);
    LetSomebodyElseSave(false);
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(File(), kAfter);
}

TEST_F(RefusedUnitsSave, AtClosingDoesNotKeepWhoeverDoesNotWantToSave) {
    LetSomebodyElseSave(true);
    ExpectWishToSave(Answer::No);
    EXPECT_TRUE(window.Unload());
}

TEST_F(RefusedUnitsSave, WhereNamesDifferByCaseAloneChangesNothing) {
    world.files.SetUncertain(kUnitsFile, FileError::Ambiguous);
    Save();
    ExpectUntouched(kUncertain);
    ChooseSave();
    ExpectUntouched(kUncertain);
    ExpectWishToSave(Answer::Yes);
    EXPECT_FALSE(window.Unload());
    ExpectUntouched(kUncertain);
    world.files.SetUncertain(kUnitsFile, FileError::None);
    Save();
    EXPECT_EQ(File(), kAfter);
}

TEST_F(RefusedUnitsSave, IsNoneForTheProgramThatHoldsTheFolderFromItsFirstStepToItsLast) {
    std::vector<std::string> outside;
    world.files.Operations().recorded = [&](const std::string& line) {
        if (world.files.LockedFolders().empty()) {
            outside.push_back(line);
        }
    };
    Save();
    EXPECT_EQ(File(), kAfter);
    EXPECT_GT(world.files.Operations().Count(), 4U);
    EXPECT_THAT(outside, ::testing::IsEmpty());
    EXPECT_THAT(world.files.LockedFolders(), ::testing::IsEmpty()) << "given back after the last step";
}

} // namespace
} // namespace zy::test
