#include "support/EditorsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kTable = R"(C:\SYS\ZYSECURE.DBF)";
constexpr auto kIndex = R"(C:\SYS\ZYSECURE.NDX)";
constexpr auto kUnloadTrace = "trace frmGlobalSettings Form_Unload Security";
constexpr auto kSaveTrace = "trace frmGlobalSettings ,mnuSave_Click Security";
constexpr auto kUnloaded = "trace frmGlobalSettings Form_Unload Unloaded";

/// Saving and closing while the users editor is in charge.
class UsersEditor : public EditorsTest {
  protected:
    UsersEditor() {
        world.files.Put(kTable, "table");
        world.files.Put(kIndex, "index");
        StartAndForget("@SECURITY");
        state().gbChanged = true;
    }

    void ChooseSave() { window().menu.mnuSave.Click(); }
    std::vector<std::string> Recycled() {
        std::vector<std::string> paths;
        for (const auto& file : world.recycleBin.Recycled()) {
            paths.push_back(file.path);
        }
        return paths;
    }
};

TEST_F(UsersEditor, IsSavedInThisOrder) {
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kSaveTrace, "Validate_Security", "Save_Security",
                                   "Write_Security", "WriteDBIndex", "DisableSaveButton"));
    ExpectMarks(false, false);
    EXPECT_THAT(Recycled(), IsEmpty());
}

TEST_F(UsersEditor, IsSavedAlsoWithoutAChange) {
    state().gbChanged = false;
    ChooseSave();
    EXPECT_THAT(calls, ::testing::Contains("Write_Security"));
}

TEST_F(UsersEditor, IsNotWrittenWhenAUserFails) {
    security.valid = false;
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kSaveTrace, "Validate_Security"));
    ExpectMarks(false, true);
}

TEST_F(UsersEditor, SendsTableAndIndexToTheRecycleBinWhenNoUserIsLeft) {
    security.rows = 1;
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kSaveTrace, "Validate_Security", "Save_Security",
                                   "DisableSaveButton"));
    EXPECT_THAT(Recycled(), ElementsAre(kTable, R"(C:\SYS\ZYSECURE.ndx)"));
    EXPECT_FALSE(world.files.Get(kTable));
    EXPECT_FALSE(world.files.Get(kIndex));
    ExpectMarks(false, false);
}

TEST_F(UsersEditor, RecyclesEachOfTheTwoFilesOnlyWhereItExists) {
    security.rows = 1;
    world.files.Take(kTable);
    ChooseSave();
    EXPECT_THAT(Recycled(), ElementsAre(R"(C:\SYS\ZYSECURE.ndx)"));
    ChooseSave();
    EXPECT_EQ(Recycled().size(), 1U);
    world.files.Put(kTable, "again");
    ChooseSave();
    EXPECT_THAT(Recycled(), ElementsAre(R"(C:\SYS\ZYSECURE.ndx)", kTable));
}

TEST_F(UsersEditor, RecyclesTheFilesOfTheSystemDirectoryAlsoWhenTheTableLiesElsewhere) {
    state().gsSecurityFile = R"(D:\SHARED\ZYSECURE.DBF)";
    world.files.Put(R"(D:\SHARED\ZYSECURE.DBF)", "shared");
    security.rows = 1;
    ChooseSave();
    EXPECT_THAT(Recycled(), ElementsAre(kTable, R"(C:\SYS\ZYSECURE.ndx)"));
    EXPECT_EQ(world.files.Get(R"(D:\SHARED\ZYSECURE.DBF)"), "shared");
}

TEST_F(UsersEditor, CountsAGridWithoutEvenAHeaderAsEmpty) {
    security.rows = 0;
    ChooseSave();
    EXPECT_EQ(Recycled().size(), 2U);
}

TEST_F(UsersEditor, GoesOnWhenTheRecycleBinFails) {
    security.rows = 1;
    world.recycleBin.SetResult(5);
    ChooseSave();
    EXPECT_THAT(calls, ::testing::Contains("DisableSaveButton"));
    EXPECT_EQ(world.files.Get(kTable), "table");
    ExpectMarks(false, false);
}

TEST_F(UsersEditor, HandsAnErrorOfTheTableOnAndKeepsItsMark) {
    security.writing = [] { throw RuntimeError(3051, "the table"); };
    EXPECT_EQ(ErrorNumber([&] { ChooseSave(); }), 3051);
    ExpectMarks(false, true);
    EXPECT_THAT(calls, ::testing::Not(::testing::Contains("WriteDBIndex")));
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
                                   "Write_Security", "WriteDBIndex", "RemoveMinSizeHook",
                                   "SaveWindowPlacement", kUnloaded));
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

TEST_F(UsersEditor, RecyclesItsFilesWhenItClosesWithoutUsers) {
    security.rows = 1;
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(Recycled(), ElementsAre(kTable, R"(C:\SYS\ZYSECURE.ndx)"));
    EXPECT_THAT(calls, ::testing::Not(::testing::Contains("Write_Security")));
}

} // namespace
} // namespace zy::test
