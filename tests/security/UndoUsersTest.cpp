#include "UsersTest.h"
#include "support/UndoWalk.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class UndoUsers : public UsersTest {
  protected:
    UndoUsers() { StartOver({User("Ann"), User("Bob")}); }

    void Undo() { form().menu.mnuUndo.Click(); }
    void Redo() { form().menu.mnuRedo.Click(); }
    std::string UndoEntry() { return form().menu.mnuUndo.Caption(); }
    void PickDate(int row) {
        grid().Pick(row, kExpiryDate);
        grid().OpenEditor();
        ExpectCalendar(
            [](frmDatePicker& picker) { picker.dpZYSecurity.Pick(std::chrono::year{2001} / 2 / 3); });
        grid().editor.PressButton();
    }

    static constexpr auto kAnn = "Ann|secret|A||id of Ann";
    static constexpr auto kBob = "Bob|secret|A||id of Bob";
};

TEST_F(UndoUsers, AnEditIsTakenBackAndDoneAgain) {
    Edit(2, kPassword, "open");
    EXPECT_EQ(UndoEntry(), "&Undo Edit Password");
    Undo();
    EXPECT_THAT(Rows(), ElementsAre(kAnn, kBob));
    ExpectCurrent(2, kPassword);
    ExpectSaveEnabled(false);
    ExpectMarks(false, false);
    Redo();
    EXPECT_THAT(Rows(), ElementsAre(kAnn, "Bob|open|A||id of Bob"));
    ExpectSaveEnabled(true);
    ExpectMarks(false, true);
    EXPECT_EQ(Status(), "2 users   -   Redone: Edit Password");
}

TEST_F(UndoUsers, AnOpenCellThatAStepClosesIsNoEdit) {
    Edit(1, kPassword, "open");
    grid().Pick(2, kPassword);
    grid().OpenEditor();
    Traces();
    Undo();
    EXPECT_FALSE(grid().editor.IsOpen());
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings mnuUndo_Click Start"));
}

TEST_F(UndoUsers, ADateThatWasPickedIsAStep) {
    PickDate(1);
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A|01-02-03|id of Ann", kBob));
    EXPECT_EQ(UndoEntry(), "&Undo Edit Expiry Date");
    Undo();
    EXPECT_THAT(Rows(), ElementsAre(kAnn, kBob));
}

TEST_F(UndoUsers, ADeletedUserComesBackAndIsSaved) {
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    EXPECT_EQ(UndoEntry(), "&Undo Delete User Ann");
    Undo();
    EXPECT_THAT(Rows(), ElementsAre(kAnn, kBob));
    ExpectMarks(false, false);
    Edit(2, kPassword, "open");
    Save();
    EXPECT_EQ(TableUsers(), (Users{User("Ann"), User("Bob", "open")}));
}

TEST_F(UndoUsers, AllUsersThatWereDeletedComeBack) {
    for (int i = 0; i < 2; ++i) {
        grid().Pick(1, 0);
        Delete(Answer::Yes);
    }
    ExpectDeleteEnabled(false);
    Undo();
    ExpectDeleteEnabled(true);
    Undo();
    EXPECT_THAT(Rows(), ElementsAre(kAnn, kBob));
    ChooseSave();
    EXPECT_EQ(TableUsers(), (Users{User("Ann"), User("Bob")}));
}

TEST_F(UndoUsers, AUserAddedByTheContextMenuGoesAndComes) {
    form().menu.mnuAddUser.Click();
    EXPECT_EQ(UndoEntry(), "&Undo Add User");
    Undo();
    EXPECT_THAT(Rows(), ElementsAre(kAnn, kBob));
    Redo();
    EXPECT_THAT(Rows(), ElementsAre(kAnn, kBob, "NewUser||A|YY-MM-DD|"));
    EXPECT_EQ(page().users.zySecure.size(), 3U);
}

TEST_F(UndoUsers, WhatTheChecksCorrectIsAStep) {
    Edit(1, kExpiryDate, "yy-mm-dd");
    Edit(2, kStatus, "");
    ChooseSave();
    EXPECT_THAT(Rows(), ElementsAre(kAnn, "Bob|secret|I||id of Bob"));
    EXPECT_EQ(UndoEntry(), "&Undo Correct Fields");
    Undo();
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A|yy-mm-dd|id of Ann", "Bob|secret|||id of Bob"));
    ExpectMarks(false, true);
    Redo();
    ExpectMarks(false, false);
}

TEST_F(UndoUsers, UndoneBackToASaveByTheButtonClosingAsksNothing) {
    Edit(1, kPassword, "open");
    Save();
    ExpectMarks(false, true);
    Undo();
    Redo();
    ExpectMarks(false, false);
    EXPECT_TRUE(window().Unload());
}

/// Somebody who does whatever comes to his mind.
class RandomUndoUsers : public UndoUsers, public RandomUser {
  protected:
    void StartOver() override { Start("@SECURITY"); }
    EditSteps& Steps() override { return page().Steps(); }
    void Act() override {
        const int users = grid().cells.Rows() - 1;
        if (users > 0) {
            grid().Pick(1 + Below(users), Below(kUsersColumns));
        }
        switch (Below(8)) {
        case 0:
            controls().cmdAddUser.Click();
            break;
        case 1:
            form().menu.mnuAddUser.Click();
            break;
        case 2:
            if (controls().cmdDeleteUser.Enabled()) {
                Delete(Below(4) == 0 ? Answer::No : Answer::Yes);
            }
            break;
        case 3:
            deleteEntry().Click();
            break;
        case 4:
            grid().Paste(Letters() + "\t" + Letters() + "\r\n" + Letters() + "\t" + Letters() + "\r\n");
            break;
        case 5:
            if (users > 0) {
                PickDate(1 + Below(users));
            }
            break;
        default:
            grid().TypeOver(Letters());
        }
        grid().editor.Commit();
    }
    /// All that a save would write, and whether it could.
    std::string Bytes() override {
        EXPECT_EQ(page().users.zySecure.size(), std::max<std::size_t>(Rows().size(), 1U));
        std::string bytes;
        for (const auto& row : Rows()) {
            bytes += row + "\n";
        }
        return bytes;
    }
};

TEST_F(RandomUndoUsers, StepsLeadBackAndForthToTheSameUsers) {
    WalkAtRandom(*this);
}

} // namespace
} // namespace zy::test
