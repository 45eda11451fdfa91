#include "support/EditorsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr auto kUnloadTrace = "trace frmGlobalSettings Form_Unload Security";
constexpr auto kSaveTrace = "trace frmGlobalSettings ,mnuSave_Click Security";
/// Without users those under the system directory go, wherever the table lies.
constexpr auto kWrite = R"(WriteUsers C:\SYS\)";
constexpr auto kUnloaded = "trace frmGlobalSettings Form_Unload Unloaded";

/// Saving and closing while the users editor is in charge.
class UsersEditor : public EditorsTest {
  protected:
    UsersEditor() {
        StartAndForget("@SECURITY");
        state().gbChanged = true;
    }

    void ChooseSave() { window().menu.mnuSave.Click(); }
};

TEST_F(UsersEditor, IsSavedInThisOrder) {
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kSaveTrace, "Validate_Security", "Save_Security", kWrite,
                                   "DisableSaveButton"));
    ExpectMarks(false, false);
}

TEST_F(UsersEditor, IsSavedAlsoWithoutAChange) {
    state().gbChanged = false;
    ChooseSave();
    EXPECT_THAT(calls, ::testing::Contains(kWrite));
}

TEST_F(UsersEditor, IsNotWrittenWhenAUserFails) {
    security.valid = false;
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kSaveTrace, "Validate_Security"));
    ExpectMarks(false, true);
}

TEST_F(UsersEditor, HandsAnErrorOfTheTableOnAndKeepsItsMark) {
    security.writing = [] { throw RuntimeError(3051, "the table"); };
    EXPECT_EQ(ErrorNumber([&] { ChooseSave(); }), 3051);
    ExpectMarks(false, true);
    EXPECT_THAT(calls, ::testing::Not(::testing::Contains("DisableSaveButton")));
}

TEST_F(UsersEditor, ClosesWithoutAQuestionWhenNothingChanged) {
    state().gbChanged = false;
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kUnloadTrace, "RemoveMinSizeHook", "SaveWindowPlacement",
                                   kUnloaded));
}

TEST_F(UsersEditor, IsAskedForByTheSharedMarkAlone) {
    state().gbChanged = false;
    form().ChangeFlag = true;
    EXPECT_TRUE(window().Unload());
}

TEST_F(UsersEditor, ClosesUnsavedOnNo) {
    ExpectWishToSave(Answer::No);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kUnloadTrace, "RemoveMinSizeHook", "SaveWindowPlacement",
                                   kUnloaded));
    EXPECT_EQ(unloaded, 1);
}

TEST_F(UsersEditor, IsCheckedAndWrittenBeforeItClosesOnYes) {
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kUnloadTrace, "Validate_Security", "Save_Security",
                                   kWrite, "RemoveMinSizeHook", "SaveWindowPlacement", kUnloaded));
    ExpectMarks(false, true);
}

TEST_F(UsersEditor, StaysOpenWhenAUserFails) {
    security.valid = false;
    ExpectWishToSave(Answer::Yes);
    EXPECT_FALSE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kUnloadTrace, "Validate_Security"));
    EXPECT_EQ(unloaded, 0);
    EXPECT_TRUE(form().Visible());
    EXPECT_TRUE(window().IsLoaded());
}

TEST_F(UsersEditor, KeepsItsMarkWhileSomebodyElseIsSaving) {
    security.hasTurn = false;
    ChooseSave();
    EXPECT_THAT(calls,
                ElementsAre("CommitCellEdit", kSaveTrace, "Validate_Security", "Save_Security", kWrite));
    ExpectMarks(false, true);
}

TEST_F(UsersEditor, StaysOpenWhileSomebodyElseIsSaving) {
    security.hasTurn = false;
    ExpectWishToSave(Answer::Yes);
    EXPECT_FALSE(window().Unload());
    EXPECT_THAT(calls,
                ElementsAre("CommitCellEdit", kUnloadTrace, "Validate_Security", "Save_Security", kWrite));
    EXPECT_EQ(unloaded, 0);
    ExpectMarks(false, true);
}

} // namespace
} // namespace zy::test
