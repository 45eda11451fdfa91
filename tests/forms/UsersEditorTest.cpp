#include "shell/SaveTurn.h"
#include "support/EditorsTest.h"
#include "support/RaisedError.h"
#include "support/UsersOnDisk.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

constexpr auto kCommitted = "trace frmGlobalSettings grdSecurity_AfterEdit Start";
constexpr auto kSaving = "trace frmGlobalSettings ,mnuSave_Click Security";
constexpr auto kUnloading = "trace frmGlobalSettings Form_Unload Security";
constexpr auto kChecked = "trace mSecurity Validate_Security Start";
constexpr auto kTakenOver = "trace mSecurity Save_Security Start";
constexpr auto kWriting = "trace mSecurity Write_Security Start";
constexpr auto kWritten = "trace mSecurity Write_Security Security File Write Success";
constexpr auto kIndexed = "trace mSecurity WriteDBIndex Start";
constexpr auto kUnloaded = "trace frmGlobalSettings Form_Unload Unloaded";

/// Saving and closing while the users editor is in charge, with a cell that is still open.
class UsersEditor : public EditorsTest {
  protected:
    UsersEditor() {
        PutUsersTable(world, {User("Ann")});
        Start("@SECURITY");
        state().gbChanged = true;
        Type("new");
    }

    void Type(std::string_view password) {
        grid().Pick(1, kPassword);
        grid().TypeOver(password);
        calls.clear();
    }
    void ExpectInvalid() {
        world.dialogs.ExpectMessage("Invalid Password. Password Cannot be blank", "ZY Setup");
    }
    std::string SavedPassword() { return UsersInTable(world)->front().PASSWORD; }

    Grid& grid() { return program().securityPage.controls.grdSecurity; }
    const std::string old_ = User("Ann").PASSWORD;
};

TEST_F(UsersEditor, IsSavedInThisOrder) {
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre(kCommitted, kSaving, kChecked, kTakenOver, kWriting, kWritten, kIndexed));
    EXPECT_EQ(SavedPassword(), "new");
    ExpectMarks(false, false);
    EXPECT_FALSE(program().securityPage.controls.cmdSaveUsers.Enabled());
}

TEST_F(UsersEditor, IsSavedAlsoWithoutAChange) {
    StartUnchanged("@SECURITY");
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre(kSaving, kChecked, kTakenOver, kWriting, kWritten, kIndexed));
}

TEST_F(UsersEditor, IsNotWrittenWhenAUserFails) {
    Type("");
    ExpectInvalid();
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre(kCommitted, kSaving, kChecked));
    EXPECT_EQ(SavedPassword(), old_);
    ExpectMarks(false, true);
}

TEST_F(UsersEditor, HandsAnErrorOfTheTableOnAndKeepsItsMark) {
    world.files.Plan({.operation = 1, .lasting = true});
    EXPECT_NE(ErrorNumber([&] { ChooseSave(); }), 0);
    ExpectMarks(false, true);
    EXPECT_TRUE(program().securityPage.controls.cmdSaveUsers.Enabled());
}

TEST_F(UsersEditor, ClosesWithoutAQuestionWhenNothingChanged) {
    StartUnchanged("@SECURITY");
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre(kUnloading, "SetProcedure", "Open key", "Create key", kUnloaded));
}

TEST_F(UsersEditor, IsAskedForByTheSharedMarkAlone) {
    StartUnchanged("@SECURITY");
    form().ChangeFlag = true;
    EXPECT_TRUE(window().Unload());
}

TEST_F(UsersEditor, ClosesUnsavedOnNo) {
    ExpectWishToSave(Answer::No);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls,
                ElementsAre(kCommitted, kUnloading, "SetProcedure", "Open key", "Create key", kUnloaded));
    EXPECT_EQ(SavedPassword(), old_);
    EXPECT_EQ(unloaded, 1);
}

TEST_F(UsersEditor, IsCheckedAndWrittenBeforeItClosesOnYes) {
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre(kCommitted, kUnloading, kChecked, kTakenOver, kWriting, kWritten, kIndexed,
                                   "SetProcedure", "Open key", "Create key", kUnloaded));
    EXPECT_EQ(SavedPassword(), "new");
    ExpectMarks(false, true);
}

TEST_F(UsersEditor, StaysOpenWhenAUserFails) {
    Type("");
    ExpectWishToSave(Answer::Yes);
    ExpectInvalid();
    EXPECT_FALSE(window().Unload());
    EXPECT_THAT(calls, ElementsAre(kCommitted, kUnloading, kChecked));
    EXPECT_EQ(unloaded, 0);
    EXPECT_TRUE(form().Visible());
}

TEST_F(UsersEditor, KeepsItsMarkWhileSomebodyElseIsSaving) {
    LetSomebodyElseSave();
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre(kCommitted, kSaving, kChecked, kTakenOver));
    EXPECT_EQ(form().zyStatusBar.Text(), SaveTurn::kRefusal);
    ExpectMarks(false, true);
}

TEST_F(UsersEditor, StaysOpenWhileSomebodyElseIsSaving) {
    LetSomebodyElseSave();
    ExpectWishToSave(Answer::Yes);
    EXPECT_FALSE(window().Unload());
    EXPECT_THAT(calls, ElementsAre(kCommitted, kUnloading, kChecked, kTakenOver));
    EXPECT_EQ(unloaded, 0);
    ExpectMarks(false, true);
}

} // namespace
} // namespace zy::test
