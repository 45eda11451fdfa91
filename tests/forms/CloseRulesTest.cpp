#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// Closing the rules editor, by the menu or by the window's close box.
class CloseRules : public RulesForm {
  protected:
    CloseRules() {
        StartWithCodes({"A", "B"});
        before = *File();
    }

    void ExpectClosed() {
        EXPECT_EQ(unloaded, 1);
        EXPECT_FALSE(form().Visible());
    }

    std::string before;
};

TEST_F(CloseRules, AsksNothingWithoutAChange) {
    Traces();
    ChooseExit();
    ExpectClosed();
    EXPECT_EQ(File(), before);
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings Form_Unload Rules", "frmGlobalSettings Form_Unload Unloaded"));
}

TEST_F(CloseRules, AsksAfterAnEditAndDropsItOnNo) {
    page().txtCode.Enter("X");
    ExpectWishToSave(Answer::No);
    ChooseExit();
    ExpectClosed();
    EXPECT_EQ(File(), before);
}

TEST_F(CloseRules, WritesTheRulesAsHeldOnYesAndNotTheForm) {
    page().txtCode.Enter("X");
    ExpectWishToSave(Answer::Yes);
    Traces();
    EXPECT_TRUE(window().Unload());
    ExpectClosed();
    EXPECT_EQ(File(), Text({Loaded("A"), Loaded("B")}));
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings Form_Unload Rules", "mRules Write_Rules_File Start",
                            "mRules Write_Rules_File Finished", "frmGlobalSettings Form_Unload Unloaded"));
}

TEST_F(CloseRules, WritesAnInvalidRuleOnYes) {
    page().cmdAddList.Click();
    page().cmdAddList.Click();
    ExpectWishToSave(Answer::Yes);
    ChooseExit();
    ExpectClosed();
    const RunRule added{.Code = "NEW",
                        .Min = "1",
                        .Max = "2",
                        .Cond = "=",
                        .Zone = "USL",
                        .Description = "New",
                        .Desc2 = {},
                        .Desc3 = {}};
    EXPECT_EQ(File(), Text({Loaded("A"), Loaded("B"), added, added})) << "two rules of one code";
}

TEST_F(CloseRules, AsksNothingWhenTheFocusStandsInAnInvalidField) {
    page().txtCode.Enter("");
    ExpectWishToSave(Answer::No);
    ChooseExit();
    ExpectClosed();
}

TEST_F(CloseRules, KeepsTheMarks) {
    page().cmdUpDown.PressDown();
    ExpectWishToSave(Answer::Yes);
    ChooseExit();
    ExpectMarks(true, true);
}

TEST_F(CloseRules, AsksNothingForTheSharedMarkAlone) {
    state().gbChanged = true;
    ChooseExit();
    ExpectClosed();
}

TEST_F(CloseRules, AsksNothingAfterASave) {
    page().txtCode.Enter("X");
    ChooseSave();
    ChooseExit();
    ExpectClosed();
}

TEST_F(CloseRules, ClosesWhenTheFileCannotBeWritten) {
    page().cmdUpDown.PressDown();
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    ExpectWishToSave(Answer::Yes);
    ChooseExit();
    ExpectClosed();
    EXPECT_EQ(File(), before);
}

} // namespace
} // namespace zy::test
