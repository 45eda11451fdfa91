#include "RulesForm.h"
#include "UnitsOfTwoPrograms.h"
#include "shell/frmVersions.h"
#include "support/FailingOperations.h"
#include "support/UsersOnDisk.h"

namespace zy::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using namespace std::chrono_literals;

constexpr auto kStart = std::chrono::sys_days(std::chrono::year(2026) / 11 / 20) + 14h;

/// The folder of the versions, as the disk has it in capitals.
constexpr auto kState = R"(C:\STATE\ZYSETUP\BACKUPS\)";

class EarlierVersionsOfUnits : public UnitsOfTwoPrograms {
  protected:
    EarlierVersionsOfUnits() { world.system.SetNow(kStart); }

    void EditAndSave(std::string_view unit) {
        Edit(1, kUnit, unit);
        Save();
        world.system.SetNow(world.system.Now() + 60s);
    }
    void LookAndDo(const std::function<void(frmVersions&)>& user) {
        ExpectDialog<frmVersions>(user);
        window().menu.mnuVersions.Click();
    }
    std::vector<std::string> Versions() {
        std::vector<std::string> lines;
        LookAndDo([&lines](frmVersions& dialog) { lines = LinesOf(dialog.lstVersions); });
        return lines;
    }
};

TEST_F(EarlierVersionsOfUnits, AreNoneBeforeTheFirstSave) {
    LookAndDo([](frmVersions& dialog) {
        EXPECT_EQ(dialog.Caption(), "ZY Setup - Earlier Versions");
        EXPECT_EQ(dialog.lblText.Caption(), "There is none yet: each save keeps what it replaces.");
        EXPECT_THAT(LinesOf(dialog.lstVersions), IsEmpty());
        EXPECT_FALSE(dialog.cmdRestore.Enabled());
    });
}

TEST_F(EarlierVersionsOfUnits, AreKeptBySavesFromTheNewestOn) {
    EditAndSave("x");
    EditAndSave("y");
    LookAndDo([](frmVersions& dialog) {
        EXPECT_THAT(LinesOf(dialog.lstVersions),
                    ElementsAre("2026-11-20 14:01:00|3", "2026-11-20 14:00:00|3"));
        EXPECT_EQ(dialog.lstVersions.Columns()[1].header, "Units");
        EXPECT_THAT(LinesOf(dialog.lstChanges), ElementsAre("Removed|y|y, A|", "Added|x||x, A"));
        dialog.lstVersions.Pick(2);
        EXPECT_THAT(LinesOf(dialog.lstChanges), ElementsAre("Removed|y|y, A|", "Added|a||a, A"));
    });
}

TEST_F(EarlierVersionsOfUnits, AreNotKeptTwiceForTheSameBytes) {
    EditAndSave("x");
    Save();
    Save();
    EXPECT_EQ(Versions().size(), 2U);
}

TEST_F(EarlierVersionsOfUnits, ComeBackAsOneStepAndAreNotWrittenBeforeASave) {
    EditAndSave("x");
    EditAndSave("y");
    LookAndDo([](frmVersions& dialog) {
        dialog.lstVersions.Pick(2);
        dialog.cmdRestore.Click();
    });
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b", "C,c"));
    EXPECT_EQ(File(), "A,y\r\nB,b\r\nC,c\r\n");
    ExpectMarks(true, false);
    EXPECT_THAT(Status(), EndsWith("nothing is written until you save"));
    EXPECT_EQ(window().menu.mnuUndo.Caption(), "&Undo Restore Version of 2026-11-20 14:00:00");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("A,y", "B,b", "C,c"));
    ExpectMarks(false, false);
}

TEST_F(EarlierVersionsOfUnits, OneThatIsTheListAsItStandsCannotBeRestored) {
    EditAndSave("x");
    EditAndSave("a");
    LookAndDo([](frmVersions& dialog) {
        dialog.lstVersions.Pick(2);
        EXPECT_THAT(LinesOf(dialog.lstChanges), IsEmpty());
        EXPECT_FALSE(dialog.cmdRestore.Enabled());
    });
}

TEST_F(EarlierVersionsOfUnits, HoldTheFileByteForByte) {
    constexpr auto kOdd = "A,a,,more\r\nB\tb\r\nno end";
    WriteFile(kOdd);
    Start("@UNITS");
    EditAndSave("x");
    bool isKept = false;
    for (const auto& path : world.files.Paths()) {
        isKept = isKept || (path.starts_with(kState) && world.files.Get(path) == kOdd);
    }
    EXPECT_TRUE(isKept);
}

TEST_F(EarlierVersionsOfUnits, OneThatIsNoListAnyMoreIsShownAsSuch) {
    EditAndSave("x");
    for (const auto& path : world.files.Paths()) {
        if (path.starts_with(kState)) {
            world.files.Put(path, "broken\r\n");
        }
    }
    LookAndDo([](frmVersions& dialog) {
        EXPECT_THAT(LinesOf(dialog.lstVersions), ElementsAre("2026-11-20 14:00:00|cannot be read"));
        EXPECT_FALSE(dialog.cmdRestore.Enabled());
    });
}

TEST_F(EarlierVersionsOfUnits, ThatCannotBeKeptDoNotKeepTheSaveFromItsWork) {
    world.files.SetFolderReadOnly(R"(C:\STATE)");
    world.system.SetStateFolder(R"(C:\STATE\zysetup)");
    Edit(1, kUnit, "x");
    Save();
    window().idle.Raise();
    EXPECT_EQ(File(), "A,x\r\nB,b\r\nC,c\r\n");
    EXPECT_THAT(Status(), HasSubstr("What this save replaced could not be kept as an earlier version"));
    ExpectMarks(false, false);
}

TEST_F(EarlierVersionsOfUnits, ThatCannotBeReadFromTheFileAreSaidNotToBeKept) {
    Edit(1, kUnit, "x");
    world.files.SetUnreadable(kUnitsFile);
    Save();
    window().idle.Raise();
    EXPECT_THAT(
        Status(),
        HasSubstr("What this save replaced could not be kept as an earlier version: access is denied"));
}

TEST_F(EarlierVersionsOfUnits, OfAFileThatIsNotThereAreNotMissed) {
    Edit(1, kUnit, "x");
    world.files.Take(kUnitsFile);
    Save();
    window().idle.Raise();
    EXPECT_EQ(Status(), "Saved");
}

TEST_F(EarlierVersionsOfUnits, WithoutAPlaceForThemNothingIsSaid) {
    world.system.SetStateFolder("");
    EditAndSave("x");
    window().idle.Raise();
    EXPECT_EQ(Status(), "Saved");
    EXPECT_THAT(Versions(), IsEmpty());
}

TEST_F(EarlierVersionsOfUnits, AFailedSaveSaysWhereTheOldFileStands) {
    Edit(1, kUnit, "x");
    program().unitsPage.units.saveHooks.beginning.Connect(
        [this](std::string&) { world.files.SetHeldOpen(kUnitsFile); });
    Save();
    window().idle.Raise();
    EXPECT_THAT(Status(), EndsWith("what the file held before stands under Edit > Earlier Versions"));
}

TEST_F(EarlierVersionsOfUnits, OfAFileThatASaveLostComeBack) {
    Edit(1, kUnit, "x");
    program().unitsPage.units.saveHooks.beginning.Connect(
        [this](std::string&) { world.files.SetCapacity(0); });
    Save();
    world.files.SetCapacity(std::nullopt);
    EXPECT_NE(File(), kBefore);
    Break();
    world.journals.Entries().clear();
    Start("@UNITS");
    LookAndDo([](frmVersions& dialog) { dialog.cmdRestore.Click(); });
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b", "C,c"));
}

using EarlierVersionsOfUsers = ProgramTest;

TEST_F(EarlierVersionsOfUsers, AreInTheRecycleBinAlone) {
    PutUsersTable(world, {User("ann", "marked")});
    Start("@SECURITY");
    auto& grid = program().securityPage.controls.grdSecurity;
    grid.Pick(1, kPassword);
    grid.TypeOver("other");
    window().menu.mnuSave.Click();
    world.dialogs.ExpectForm([](Form& form) {
        auto& dialog = dynamic_cast<frmVersions&>(form);
        EXPECT_THAT(LinesOf(dialog.lstVersions), IsEmpty());
        EXPECT_EQ(dialog.lblText.Caption(),
                  "Passwords are kept nowhere else. The table that a save replaces goes to the recycle "
                  "bin:\r\ntake ZYSECURE.DBF back from there.");
    });
    window().menu.mnuVersions.Click();
    for (const auto& path : world.files.Paths()) {
        EXPECT_FALSE(path.starts_with(kState)) << path;
    }
}

using EarlierVersionsOfRules = RulesForm;

TEST_F(EarlierVersionsOfRules, AreKeptAndComeBack) {
    StartWithCodes({"1"});
    page().txtMax.Enter("3");
    ChooseSave();
    world.dialogs.ExpectForm([](Form& form) {
        auto& dialog = dynamic_cast<frmVersions&>(form);
        EXPECT_THAT(LinesOf(dialog.lstChanges), ElementsAre("Changed|1|Max \"3\"|Max \"2\""));
        dialog.cmdRestore.Click();
    });
    window().menu.mnuVersions.Click();
    EXPECT_EQ(page().txtMax.Text(), "2");
    ChooseSave();
    EXPECT_THAT(*File(), HasSubstr("MAX          = 2"));
}

TEST_F(EarlierVersionsOfRules, AreNotPointedToAfterASaveThatLeftOutWhatTheFormAloneHolds) {
    StartWithCodes({"1"});
    page().txtMax.Enter("3");
    page().cmdSaveRules.Click();
    const auto status = Status();
    window().idle.Raise();
    EXPECT_EQ(Status(), status);
    EXPECT_THAT(status, HasSubstr("differs from its fields"));
}

} // namespace
} // namespace zy::test
