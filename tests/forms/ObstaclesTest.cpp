#include "RulesForm.h"
#include "UnitsForm.h"

namespace zy::test {
namespace {

constexpr auto kFolder = R"(C:\SYS)";
constexpr auto kDenied =
    "ZYRules.sys cannot be written now: access is denied; open the editor as its owner or an administrator";

/// What keeps a save from going well is said before anything is edited, and after it failed until one goes
/// well.
class Obstacles : public RulesForm {
  protected:
    void LetWrite(bool may) { world.files.SetFolderReadOnly(kFolder, !may); }
};

TEST_F(Obstacles, AFolderThatMayNotBeWrittenIsToldAtTheOpening) {
    LetWrite(false);
    StartWithCodes({"A", "B"});
    EXPECT_EQ(Status(), std::string("2 rules; ") + kDenied);
    list().Pick(2);
    EXPECT_EQ(Status(), std::string("2 rules; ") + kDenied);
}

TEST_F(Obstacles, AFolderInPlaceOfTheFileIsToldAtTheOpening) {
    world.files.AddFolder(kRulesFile);
    ASSERT_EQ(Start("@RULES"), StartUp::WindowShown);
    EXPECT_EQ(Status(),
              "0 rules; ZYRules.sys cannot be written now: a folder of that name is in the way; put that "
              "right before editing");
}

TEST_F(Obstacles, WhichAreGoneAreNotToldAfterTheNextSave) {
    LetWrite(false);
    StartWithCodes({"A", "B"});
    LetWrite(true);
    page().cmdUpDown.PressDown();
    ChooseSave();
    EXPECT_EQ(Status(), "Saved");
    list().Pick(1);
    EXPECT_EQ(Status(), "2 rules");
}

TEST_F(Obstacles, ToASaveAreToldWithWhatToDoUntilOneGoesWell) {
    StartWithCodes({"A", "B"});
    LetWrite(false);
    page().cmdUpDown.PressDown();
    ChooseSave();
    EXPECT_EQ(Status(),
              "Not saved, Rules.tmp could not be created: access is denied; change a rule and save again "
              "before closing");
    list().Pick(1);
    EXPECT_EQ(Status(), "2 rules; the last save failed, change a rule and save again before closing");
    LetWrite(true);
    page().cmdUpDown.PressDown();
    ChooseSave();
    EXPECT_EQ(Status(), "Saved");
    list().Pick(1);
    EXPECT_EQ(Status(), "2 rules");
}

using ObstacleOfRoom = UnitsForm;

TEST_F(ObstacleOfRoom, IsToldOnceBeforeAnybodyEdits) {
    constexpr std::string_view kUnits = "A,a\r\nB,b\r\n";
    world.files.Put(kUnitsFile, kUnits);
    world.files.SetCapacity(2 * kUnits.size() - 1);
    Start("@UNITS");
    window().idle.Raise();
    window().idle.Raise();
    EXPECT_EQ(Status(), "2 units   -   ZYUNITS.SYS cannot be written now: the disk is "
                        "full; make room on it before editing");
    world.files.SetCapacity(2 * kUnits.size());
    Start("@UNITS");
    window().idle.Raise();
    EXPECT_EQ(Status(), "2 units");
}

} // namespace
} // namespace zy::test
