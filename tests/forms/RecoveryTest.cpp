#include "RulesForm.h"
#include "UnitsForm.h"
#include "basics/RuntimeError.h"
#include "support/CrashedSession.h"
#include "support/UsersOnDisk.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

constexpr auto kBefore = "A,a\r\nB,b\r\n";
constexpr std::chrono::local_days kToday{std::chrono::year(2026) / 11 / 20};

/// The units editor, and what its next session finds after it was ended by force.
class UnitsRecovery : public UnitsForm {
  protected:
    UnitsRecovery() {
        world.files.Put(kUnitsFile, kBefore);
        world.journals.SetTime(kToday + std::chrono::hours(14) + std::chrono::minutes(7));
        StartUnits();
    }

    void StartUnits() { ASSERT_EQ(StartAfterBreak("@UNITS"), StartUp::WindowShown); }
    /// The program is gone from one moment to the next, and is started again.
    void StartAgain(CommandButton frmRecovery::*answer = nullptr) {
        ExpectRecovery(world, asked, answer);
        StartUnits();
    }
    void Edit(int row, std::string_view unit) { UnitsForm::Edit(row, kUnit, unit); }
    std::list<MemoryJournals::Entry>& Journals() { return world.journals.Entries(); }
    void FailJournals(std::string_view operation, FileError error) {
        world.journals.fault = [=](std::string_view wanted) {
            return wanted == operation ? error : FileError::None;
        };
    }

    AskedToRestore asked;
};

TEST_F(UnitsRecovery, NothingIsNotedBeforeSomethingIsDone) {
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(UnitsRecovery, AChangeIsAskedAboutAtTheNextStart) {
    Edit(1, "new");
    StartAgain();
    EXPECT_EQ(asked.heading, "Changes of 14:07 were not saved");
    EXPECT_EQ(asked.text, "The last of them: \"Edit Unit\"\r\n"
                          "Restore does them again, step by step. Nothing is written until you save.\r\n"
                          "Discard removes them for good. Not Now asks again the next time.");
    EXPECT_TRUE(asked.canRestore);
}

TEST_F(UnitsRecovery, ChangesOfAnotherDayAreAskedAboutWithTheirDate) {
    world.journals.SetTime(kToday - std::chrono::hours(2) + std::chrono::minutes(5));
    Edit(1, "new");
    StartAgain();
    EXPECT_EQ(asked.heading, "Changes of 2026-11-19, 22:05 were not saved");
}

TEST_F(UnitsRecovery, RestoreBringsBackEachStepAsAStep) {
    Edit(1, "new");
    program().unitsPage.controls.cmdAddUNit.Click();
    Edit(3, "third");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b", ",third"));
    EXPECT_EQ(world.files.Get(kUnitsFile), kBefore);
    ExpectMarks(true, false);
    EXPECT_TRUE(program().unitsPage.controls.cmdSaveUnits.Enabled());
    EXPECT_THAT(Status(), EndsWith("Restored: 3 changes"));
    EXPECT_EQ(window().menu.mnuUndo.Caption(), "&Undo Edit Unit");
    Undo();
    EXPECT_EQ(window().menu.mnuUndo.Caption(), "&Undo Add Unit");
    Undo();
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
    Undo();
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b"));
    ExpectMarks(false, false);
}

TEST_F(UnitsRecovery, RestoreGoesToTheRowThatWasChangedLast) {
    Edit(2, "new");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_EQ(grid().selection.Row(), 2);
    EXPECT_TRUE(grid().HasFocus());
}

TEST_F(UnitsRecovery, WhatWasRestoredCanBeRestoredAgain) {
    Edit(1, "new");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Journals(), SizeIs(1));
    Edit(2, "newer");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,newer"));
}

TEST_F(UnitsRecovery, WhatWasTakenBackStaysTakenBackAndCanBeDoneAgain) {
    Edit(1, "new");
    Edit(2, "newer");
    Undo();
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
    window().menu.mnuRedo.Click();
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,newer"));
}

TEST_F(UnitsRecovery, WhatIsTakenBackFromBeforeTheSaveIsRestoredToo) {
    Edit(1, "new");
    Save();
    Undo();
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b"));
    Undo();
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
}

TEST_F(UnitsRecovery, DiscardRemovesTheChangesForGood) {
    Edit(1, "new");
    StartAgain(&frmRecovery::cmdDiscard);
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b"));
    EXPECT_THAT(Journals(), IsEmpty());
    ExpectMarks(false, false);
}

TEST_F(UnitsRecovery, WhatCannotBeDiscardedIsReported) {
    Edit(1, "new");
    FailJournals("Remove", FileError::AccessDenied);
    StartAgain(&frmRecovery::cmdDiscard);
    EXPECT_THAT(Status(), HasSubstr("Not discarded: "));
    EXPECT_THAT(Journals(), SizeIs(1));
}

TEST_F(UnitsRecovery, NotNowAndTheCloseBoxAskAgainTheNextTime) {
    Edit(1, "new");
    StartAgain(&frmRecovery::cmdNotNow);
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b"));
    StartAgain();
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
    EXPECT_EQ(asked.times, 3);
}

TEST_F(UnitsRecovery, EachOfSeveralSessionsIsAskedAboutFromTheLatestOn) {
    Edit(1, "first");
    StartAgain();
    Edit(1, "second");
    ExpectRecovery(world, asked, &frmRecovery::cmdNotNow);
    ExpectRecovery(world, asked, &frmRecovery::cmdRestore);
    StartUnits();
    EXPECT_THAT(Units(), ElementsAre("A,first", "B,b"));
}

TEST_F(UnitsRecovery, NothingIsAskedAfterASave) {
    Edit(1, "new");
    Save();
    EXPECT_THAT(Journals(), IsEmpty());
    StartUnits();
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
}

TEST_F(UnitsRecovery, NothingIsAskedAfterTheUserHasClosedWithoutSaving) {
    Edit(1, "new");
    ExpectWishToSave(Answer::No);
    window().Unload();
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(UnitsRecovery, NothingIsAskedAfterASaveAtClosing) {
    Edit(1, "new");
    ExpectWishToSave(Answer::Yes);
    window().Unload();
    EXPECT_THAT(Journals(), IsEmpty());
    EXPECT_EQ(world.files.Get(kUnitsFile), "A,new\r\nB,b\r\n");
}

TEST_F(UnitsRecovery, TheListComesBackAfterTheDiskWasFullWhenTheProgramClosed) {
    Edit(1, "new");
    world.files.SetCapacity(0);
    ExpectWishToSave(Answer::Yes);
    window().Unload();
    world.files.SetCapacity(std::nullopt);
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
    Save();
    EXPECT_EQ(world.files.Get(kUnitsFile), "A,new\r\nB,b\r\n");
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(UnitsRecovery, WhatIsDoneAfterASaveThatFailedComesBackWithTheList) {
    Edit(1, "new");
    world.files.SetCapacity(0);
    Save();
    Edit(2, "later");
    Undo();
    Undo();
    Edit(2, "last");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,last"));
}

TEST_F(UnitsRecovery, TheListComesBackAfterTheProgramBrokeOffWhileItSaved) {
    Edit(1, "new");
    program().unitsPage.Steps().BeginSave();
    world.files.Put(kUnitsFile, "A,");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(asked.text, HasSubstr("The program broke off while it was saving, so ZYUNITS.SYS may not be "
                                      "whole.\r\nRestore brings back the whole list as it was to be saved."));
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
    EXPECT_EQ(world.files.Get(kUnitsFile), "A,");
}

TEST_F(UnitsRecovery, NothingIsAskedWhereTheSaveWasDoneAndItsNotesAreStillThere) {
    Edit(1, "new");
    program().unitsPage.Steps().BeginSave();
    world.files.Put(kUnitsFile, "A,new\r\nB,b\r\n");
    StartUnits();
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(UnitsRecovery, AFileThatWasChangedSinceIsLeftAloneAndTheChangesAreKept) {
    Edit(1, "new");
    world.files.Put(kUnitsFile, "C,c\r\n");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_FALSE(asked.canRestore);
    EXPECT_THAT(asked.text,
                HasSubstr("ZYUNITS.SYS has been changed since then, so they cannot be restored."));
    EXPECT_THAT(Units(), ElementsAre("C,c"));
    StartAgain(&frmRecovery::cmdDiscard);
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(UnitsRecovery, ToAFileThatCannotBeReadNothingIsDone) {
    world.files.SetHeldOpen(kUnitsFile);
    StartUnits();
    program().unitsPage.controls.cmdAddUNit.Click();
    StartAgain();
    EXPECT_FALSE(asked.canRestore);
    world.files.SetHeldOpen(kUnitsFile, false);
    StartAgain();
    EXPECT_FALSE(asked.canRestore) << "the list was begun without what the file holds";
}

TEST_F(UnitsRecovery, NothingTakesThePlaceOfWhatSomebodyElseWasJustSaving) {
    Edit(1, "new");
    world.files.SetFolderLocked(R"(C:\SYS)", true);
    Save();
    world.files.SetFolderLocked(R"(C:\SYS)", false);
    world.files.Put(kUnitsFile, "C,c\r\n");
    StartAgain(&frmRecovery::cmdNotNow);
    EXPECT_FALSE(asked.canRestore);
    world.files.Put(kUnitsFile, kBefore);
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
}

TEST_F(UnitsRecovery, ChangesOfAListInAnotherFolderAreNotAskedAbout) {
    Edit(1, "new");
    world.files.AddFolder(R"(C:\OTHER)");
    world.files.Put(R"(C:\OTHER\ZYUNITS.SYS)", kBefore);
    world.system.SetSystemDirectory(R"(C:\OTHER)");
    StartUnits();
    EXPECT_THAT(Units(), ElementsAre("A,a", "B,b"));
}

TEST_F(UnitsRecovery, ChangesOfALivingSessionAreNotAskedAbout) {
    Edit(1, "new");
    Program second(Outside());
    EXPECT_EQ(mMain(second), StartUp::WindowShown);
    EXPECT_EQ(second.unitsPage.controls.grdUnits.cells.Text(1, kUnit), "a");
}

TEST_F(UnitsRecovery, OfDamagedNotesTheFirstAreRestored) {
    Edit(1, "new");
    Edit(2, "newer");
    Journals().front().bytes.back() ^= 1;
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(asked.text, HasSubstr("Their notes are damaged: only the first of them can be restored."));
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
    EXPECT_THAT(Status(), EndsWith("Restored: 1 change"));
}

TEST_F(UnitsRecovery, NotesOfWhichNothingIsWholeAreAskedAboutAllTheSame) {
    Edit(1, "new");
    Journals().front().bytes[9] ^= 1;
    StartAgain(&frmRecovery::cmdDiscard);
    EXPECT_FALSE(asked.canRestore);
    EXPECT_THAT(asked.text, HasSubstr("Their notes are damaged, and nothing of them can be restored."));
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(UnitsRecovery, AJournalThatHasJustBegunIsRemovedWithoutAWord) {
    Journals().push_back({.kind = "units", .bytes = "", .changed = {}});
    StartUnits();
    EXPECT_THAT(Journals(), IsEmpty());
}

/// Whatever becomes of the notes, the list is one that there was.
TEST_F(UnitsRecovery, NotesThatAreCutOrChangedAnywhereNeverGiveAWrongList) {
    Edit(1, "new");
    Edit(2, "newer");
    program().unitsPage.controls.cmdAddUNit.Click();
    const auto whole = Journals().front();
    const auto tryWith = [&](std::string bytes) {
        Break();
        Journals() = {whole};
        Journals().front().isHeld = false;
        Journals().front().bytes = std::move(bytes);
        if (!Journals().front().bytes.empty()) {
            ExpectRecovery(world, asked, &frmRecovery::cmdRestore);
        }
        StartUnits();
        static_cast<void>(world.dialogs.Failures()); // cut behind its header there is nothing to ask
        EXPECT_THAT((std::vector<std::vector<std::string>>{
                        {"A,a", "B,b"}, {"A,new", "B,b"}, {"A,new", "B,newer"}, {"A,new", "B,newer", ","}}),
                    Contains(Units()));
    };
    for (std::size_t size = 0; size < whole.bytes.size(); ++size) {
        tryWith(whole.bytes.substr(0, size));
    }
    for (std::size_t at = 0; at < whole.bytes.size(); ++at) {
        auto bytes = whole.bytes;
        bytes[at] ^= 0x10;
        tryWith(std::move(bytes));
    }
}

TEST_F(UnitsRecovery, AFullDiskIsReportedOnceAndHindersNobody) {
    FailJournals("Append", FileError::DiskFull);
    Edit(1, "new");
    window().idle.Raise();
    EXPECT_THAT(Status(), HasSubstr("What you change is lost if the program breaks off before you save: the "
                                    "disk is full"));
    Edit(2, "newer");
    form().zyStatusBar.SetText("");
    window().idle.Raise();
    EXPECT_EQ(Status(), "");
    Save();
    EXPECT_EQ(world.files.Get(kUnitsFile), "A,new\r\nB,newer\r\n");
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(UnitsRecovery, WhatFitsOnTheDiskBeforeItIsFullIsRestored) {
    Edit(1, "new");
    FailJournals("Append", FileError::DiskFull);
    Edit(2, "newer");
    FailJournals("", FileError::None);
    Edit(1, "last");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
}

TEST_F(UnitsRecovery, WithoutAPlaceForNotesNothingIsSaid) {
    FailJournals("Create", FileError::NotFound);
    Edit(1, "new");
    window().idle.Raise();
    EXPECT_THAT(Status(), Not(HasSubstr("breaks off")));
    Save();
    EXPECT_EQ(world.files.Get(kUnitsFile), "A,new\r\nB,b\r\n");
}

TEST_F(UnitsRecovery, TheOldNotesStayWhereTheNewOnesCannotBeWritten) {
    Edit(1, "new");
    ExpectRecovery(world, asked, &frmRecovery::cmdRestore);
    FailJournals("Create", FileError::DiskFull);
    StartUnits();
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
    EXPECT_THAT(Journals(), SizeIs(1));
    FailJournals("", FileError::None);
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Units(), ElementsAre("A,new", "B,b"));
}

TEST_F(UnitsRecovery, TheOldNotesGoWithASaveToo) {
    Edit(1, "new");
    ExpectRecovery(world, asked, &frmRecovery::cmdRestore);
    FailJournals("Create", FileError::DiskFull);
    StartUnits();
    Save();
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(UnitsRecovery, NotesReachTheDiskWhenThereIsNothingElseToDo) {
    Edit(1, "new");
    EXPECT_EQ(Journals().front().synced, 0U);
    window().idle.Raise();
    EXPECT_EQ(Journals().front().synced, Journals().front().bytes.size());
}

TEST_F(UnitsRecovery, NotesReachTheDiskBeforeTheProgramBreaksOff) {
    Edit(1, "new");
    window().ending.Raise();
    EXPECT_EQ(Journals().front().synced, Journals().front().bytes.size());
}

TEST_F(UnitsRecovery, ADiskThatFailsThenIsReported) {
    Edit(1, "new");
    FailJournals("Sync", FileError::Other);
    window().idle.Raise();
    EXPECT_THAT(Status(), HasSubstr("breaks off"));
}

/// The users editor.
class UsersRecovery : public ProgramTest {
  protected:
    UsersRecovery() {
        PutUsersTable(world, {User("Ann"), User("Bob")});
        Start("@SECURITY");
    }
    void Edit(int row, std::string_view password) {
        grid().Pick(row, kPassword);
        grid().TypeOver(password);
        grid().editor.Commit();
    }
    void StartAgain(CommandButton frmRecovery::*answer) {
        ExpectRecovery(world, asked, answer);
        ASSERT_EQ(StartAfterBreak("@SECURITY"), StartUp::WindowShown);
    }
    std::string Password(int row) { return std::string(grid().cells.Text(row, kPassword)); }

    Grid& grid() { return program().securityPage.controls.grdSecurity; }
    AskedToRestore asked;
};

TEST_F(UsersRecovery, AChangeComesBack) {
    Edit(2, "new");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_EQ(Password(2), "new");
    ExpectMarks(false, true);
    window().menu.mnuSave.Click();
    EXPECT_EQ(UsersInTable(world)->at(1).PASSWORD, "new");
    EXPECT_THAT(world.journals.Entries(), IsEmpty());
}

TEST_F(UsersRecovery, TheErrorOfAQuoteInAPasswordLosesNothing) {
    Edit(1, "fine");
    Edit(2, "it's");
    EXPECT_THROW(window().menu.mnuSave.Click(), RuntimeError);
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_EQ(Password(1), "fine");
    EXPECT_EQ(Password(2), "it's");
    Edit(2, "its");
    world.files.Take(R"(C:\SYS\ZYSECURE.TMP)");
    window().menu.mnuSave.Click();
    EXPECT_EQ(UsersInTable(world)->at(1).PASSWORD, "its");
}

TEST_F(UsersRecovery, AsksOnlyWhoHasLoggedIn) {
    PutUsersTable(world, {User("ADMIN", "SECRET")}, R"(C:\NEW\)");
    world.system.SetSystemDirectory(R"(C:\NEW)");
    world.dialogs.ExpectForm([](Form& form) {
        auto& login = dynamic_cast<frmLogin&>(form);
        login.txtUserName.Enter("ADMIN");
        login.txtPassword.Enter("secret");
        login.cmdOK.Click();
    });
    Start("@SECURITY");
    Edit(1, "new");
    world.dialogs.ExpectForm([](Form& form) { dynamic_cast<frmLogin&>(form).cmdCancel.Click(); });
    EXPECT_EQ(StartAfterBreak("@SECURITY"), StartUp::Ended);
    EXPECT_THAT(world.journals.Entries(), SizeIs(1));
}

/// The rules editor.
class RulesRecovery : public RulesForm {
  protected:
    RulesRecovery() { StartWithCodes({"A", "B", "C"}); }
    void StartAgain(CommandButton frmRecovery::*answer) {
        ExpectRecovery(world, asked, answer);
        ASSERT_EQ(StartAfterBreak("@RULES"), StartUp::WindowShown);
    }
    AskedToRestore asked;
};

TEST_F(RulesRecovery, AddedAndMovedRulesComeBack) {
    page().cmdAddList.Click();
    page().cmdUpDown.PressUp();
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "NEW", "C"));
    ExpectMarks(true, false);
    EXPECT_EQ(list().Count(), 4);
    window().menu.mnuUndo.Click();
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C", "NEW"));
}

TEST_F(RulesRecovery, WhatWasTypedAndNotStoredYetComesBackIntoTheForm) {
    list().Pick(2);
    page().txtDescription.Enter("n");
    page().txtDescription.Enter("new");
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_EQ(list().Selected(), 2);
    EXPECT_EQ(page().txtDescription.Text(), "new");
    EXPECT_EQ(rules().gaRules(2).Description, "text  ");
    window().menu.mnuUndo.Click();
    EXPECT_EQ(page().txtDescription.Text(), "text  ");
    EXPECT_FALSE(window().menu.mnuUndo.Enabled());
}

TEST_F(RulesRecovery, WhatWasTypedAndNotStoredYetOutlivesASaveOfTheRest) {
    list().Pick(2);
    page().txtDescription.Enter("new");
    page().cmdSaveRules.Click(); // which writes the list without what the form alone holds
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_EQ(page().txtDescription.Text(), "new");
}

TEST_F(RulesRecovery, AnErrorInTheMidstOfAHandlerLosesNothing) {
    page().cmdUpDown.PressDown();
    page().cmdAddList.click.Connect([this] { static_cast<void>(rules().gaRules(99)); });
    EXPECT_THROW(page().cmdAddList.Click(), RuntimeError); // 9, the subscript is out of range
    StartAgain(&frmRecovery::cmdRestore);
    EXPECT_THAT(Codes(), ElementsAre("B", "A", "C", "NEW"));
}

TEST_F(RulesRecovery, NothingIsAskedAfterASave) {
    page().cmdAddList.Click();
    page().cmdSaveRules.Click();
    EXPECT_THAT(world.journals.Entries(), IsEmpty());
}

} // namespace
} // namespace zy::test
