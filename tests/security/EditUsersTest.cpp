#include "UsersTest.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EditUsers : public UsersTest {
  protected:
    /// Opens the context menu over a row.
    void RightClick(int row) { grid().PressMouse(MouseButton::Right, row, 0); }
    void ChooseAdd() { form().menu.mnuAddUser.Click(); }
    void ChooseDelete() { deleteEntry().Click(); }
};

TEST_F(EditUsers, AnAddedUserIsTheLastAndCurrentOne) {
    StartOver({User("Ann")});
    controls().cmdAddUser.Click();
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann", "NewUser||A|YY-MM-DD|"));
    ExpectCurrent(2, 0);
    EXPECT_TRUE(grid().HasFocus());
    EXPECT_EQ(page().users.zySecure.size(), 2U);
    EXPECT_EQ(page().users.zySecure.back(), NewUser());
    ExpectSaveEnabled(true);
    ExpectMarks(false, true);
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings cmdAddUser_Click Start", "mSecurity Add_User Start"));
}

TEST_F(EditUsers, AnAddedUserEnablesDeleting) {
    StartOver({User("Ann")});
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    ExpectDeleteEnabled(false);
    controls().cmdAddUser.Click();
    ExpectDeleteEnabled(true);
}

TEST_F(EditUsers, AUserAddedByTheMenuLeavesTheButtonsAlone) {
    StartOver({User("Ann")});
    Traces();
    ChooseAdd();
    EXPECT_EQ(grid().cells.Rows(), 3);
    ExpectCurrent(2, 0);
    ExpectSaveEnabled(false);
    ExpectMarks(false, true);
    EXPECT_THAT(Traces(), ElementsAre("mSecurity Add_User Start"));
}

TEST_F(EditUsers, ADeletedUserIsGoneAndTheFirstOneCurrent) {
    StartOver({User("Ann"), User("Bob"), User("Cid")});
    grid().Pick(2, 3);
    Traces();
    Delete(Answer::Yes);
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann", "Cid|secret|A||id of Cid"));
    EXPECT_EQ(page().users.zySecure, (Users{User("Ann"), User("Cid")}));
    ExpectCurrent(1, 3);
    ExpectDeleteEnabled(true);
    ExpectSaveEnabled(true);
    ExpectMarks(false, true);
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdDeleteUser_Click Start",
                                      "mSecurity DeleteUser Start item: zySecure(index).UserID",
                                      "frmGlobalSettings cmdDeleteUser_Click User deleted"));
}

TEST_F(EditUsers, AnsweringNoChangesNothingButIsTracedAsADeletion) {
    StartOver({User("Ann"), User("Bob")});
    grid().Pick(2, 0);
    Traces();
    Delete(Answer::No);
    EXPECT_EQ(grid().cells.Rows(), 3);
    ExpectSaveEnabled(false);
    ExpectMarks(false, false);
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdDeleteUser_Click Start",
                                      "frmGlobalSettings cmdDeleteUser_Click User deleted"));
}

TEST_F(EditUsers, WithoutACurrentRowNothingIsDeleted) {
    StartOver({User("Ann"), User("Bob")});
    ASSERT_EQ(grid().selection.Row(), -1);
    Delete(Answer::Yes);
    EXPECT_EQ(grid().cells.Rows(), 3);
    ExpectMarks(false, false);
    RightClick(0);
    EXPECT_EQ(grid().selection.Row(), 0);
    Delete(Answer::Yes);
    EXPECT_EQ(grid().cells.Rows(), 3);
    ExpectMarks(false, false);
}

TEST_F(EditUsers, TheLastUserCanBeDeletedAndTheNextOneTakesItsElement) {
    StartOver({User("Ann")});
    grid().Pick(1, 0);
    Delete(Answer::Yes);
    EXPECT_THAT(Rows(), IsEmpty());
    ExpectDeleteEnabled(false);
    EXPECT_EQ(page().users.zySecure.size(), 1U);
    controls().cmdAddUser.Click();
    EXPECT_EQ(page().users.zySecure.size(), 1U);
    controls().cmdAddUser.Click();
    EXPECT_EQ(page().users.zySecure.size(), 2U);
    EXPECT_EQ(grid().cells.Rows(), 3);
}

TEST_F(EditUsers, TheMenuDeletesAtOnceAndLeavesTheButtonsAlone) {
    StartOver({User("Ann"), User("Bob")});
    RightClick(2);
    Traces();
    ChooseDelete();
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann"));
    ExpectSaveEnabled(false);
    ExpectMarks(false, true);
    EXPECT_THAT(Traces(), ElementsAre("mSecurity DeleteUser Start item: zySecure(index).UserID"));
    RightClick(1);
    ChooseDelete();
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_TRUE(controls().cmdDeleteUser.Enabled()) << "the button is not the menu's business";
}

TEST_F(EditUsers, TheMenuDeletesNothingWithoutACurrentRow) {
    StartOver({User("Ann"), User("Bob")});
    for (const int row : {-1, 0}) {
        if (row == 0) {
            grid().PressMouse(MouseButton::Left, 0, 0);
        }
        ASSERT_EQ(grid().selection.Row(), row);
        ChooseDelete();
        EXPECT_EQ(grid().cells.Rows(), 3);
        EXPECT_EQ(page().users.zySecure.size(), 2U);
        ExpectMarks(false, false);
    }
}

TEST_F(EditUsers, AClickMakesItsRowCurrent) {
    StartOver({User("Ann"), User("Bob")});
    grid().PressMouse(MouseButton::Left, 2, 3);
    EXPECT_EQ(grid().selection.Row(), 2);
    RightClick(1);
    EXPECT_EQ(grid().selection.Row(), 1);
}

TEST_F(EditUsers, TheRightButtonOpensTheMenuWhoseDeleteNeedsAUserRow) {
    StartOver({User("Ann")});
    int opened = 0;
    form().menu.mnuSecuritypopMenu.popUp.Connect([&] { ++opened; });
    RightClick(0);
    EXPECT_FALSE(deleteEntry().Enabled());
    RightClick(1);
    EXPECT_TRUE(deleteEntry().Enabled());
    EXPECT_EQ(opened, 2);
    grid().PressMouse(MouseButton::Left, 1, 0);
    EXPECT_EQ(opened, 2);
    ChooseDelete();
    RightClick(0);
    EXPECT_FALSE(deleteEntry().Enabled());
}

TEST_F(EditUsers, BesideTheRowsTheMenuOpensWithoutDeleteAndTheCurrentRowStays) {
    StartOver({User("Ann"), User("Bob")});
    grid().Pick(2, 0);
    int opened = 0;
    form().menu.mnuSecuritypopMenu.popUp.Connect([&] { ++opened; });
    RightClick(-1);
    EXPECT_EQ(opened, 1);
    EXPECT_FALSE(deleteEntry().Enabled());
    EXPECT_EQ(grid().selection.Row(), 2);
}

TEST_F(EditUsers, ACommittedEditCanBeSaved) {
    StartOver({User("Ann")});
    Edit(1, kPassword, "other");
    ExpectSaveEnabled(true);
    ExpectMarks(false, true);
    EXPECT_THAT(Rows(), ElementsAre("Ann|other|A||id of Ann"));
    EXPECT_THAT(Traces(), Contains("frmGlobalSettings grdSecurity_AfterEdit Start"));
}

TEST_F(EditUsers, ACancelledEditIsNone) {
    StartOver({User("Ann")});
    grid().Pick(1, kUserName);
    grid().TypeOver("x");
    grid().Press({Key::Escape});
    ExpectSaveEnabled(false);
    ExpectMarks(false, false);
    EXPECT_THAT(Rows(), ElementsAre("Ann|secret|A||id of Ann"));
}

TEST_F(EditUsers, ShiftTabOnTheFirstCellGoesToTheHelpButtonOverTheLastOne) {
    StartOver({User("Ann"), User("Bob")});
    grid().Pick(1, 0);
    EXPECT_TRUE(grid().Press({.key = Key::Tab, .shift = true}));
    ExpectCurrent(2, 4);
    EXPECT_TRUE(controls().cmdHelpSecurity.HasFocus());
}

TEST_F(EditUsers, ShiftTabElsewhereGoesOneCellBack) {
    StartOver({User("Ann"), User("Bob")});
    grid().Pick(2, 0);
    EXPECT_TRUE(grid().Press({.key = Key::Tab, .shift = true}));
    ExpectCurrent(1, 4);
    EXPECT_TRUE(grid().HasFocus());
}

TEST_F(EditUsers, OneUserMoreThanACounterHoldsIsNotAddedByTheButtonNorByTheMenu) {
    StartOver(Users(32766, User("x")));
    controls().cmdAddUser.Click();
    EXPECT_EQ(Status(), "32767 users");
    grid().Pick(5, kPassword);
    controls().cmdAddUser.Click();
    EXPECT_EQ(Status(), "32767 users   -   Not added: the list is as long as it can be");
    state().gbChanged = false;
    ChooseAdd();
    EXPECT_EQ(Status(), "32767 users   -   Not added: the list is as long as it can be");
    EXPECT_EQ(grid().cells.Rows(), 32768);
    EXPECT_EQ(page().users.zySecure.size(), 32767U);
    ExpectCurrent(5, kPassword);
    ExpectMarks(false, false);
}

} // namespace
} // namespace zy::test
