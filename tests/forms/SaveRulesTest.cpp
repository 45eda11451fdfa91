#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The three ways to the file: File > Save, the page's own button, and the question before closing. The first
/// checks the detail form and takes it over; the other two write the rules as they are held.
class SaveRules : public RulesForm {
  protected:
    SaveRules() {
        StartWithCodes({"A", "B"});
        before = *File();
        world.files.Plan({});
    }

    bool DiskUntouched() const { return world.files.Operations().Lines().empty(); }

    std::string before;
    const std::string held = Text({Loaded("A"), Loaded("B")});
};

TEST_F(SaveRules, FromTheMenuDoesNothingWithoutAChange) {
    ChooseSave();
    EXPECT_TRUE(DiskUntouched());
    EXPECT_EQ(File(), before);
}

TEST_F(SaveRules, FromThePageDoesNothingWithoutAChange) {
    page().cmdSaveRules.Click();
    EXPECT_TRUE(DiskUntouched());
}

TEST_F(SaveRules, FromTheMenuTracesARulesSave) {
    Traces();
    ChooseSave();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings ,mnuSave_Click Rules"));
}

TEST_F(SaveRules, FromTheMenuChecksStoresAndWritesInThisOrder) {
    page().txtCode.Enter("X");
    Traces();
    ChooseSave();
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings ,mnuSave_Click Rules", "mRules Validate_Rule Start",
                            "mRules CheckCode Start", "mRules Check_Min Start", "mRules Check_Max Start",
                            "mRules Verify_MinMax Start", "mRules Save_Rules_Edit Start item: A",
                            "mRules Write_Rules_File Start", "mRules Write_Rules_File Finished"));
    auto edited = Loaded("A");
    edited.Code = "X";
    EXPECT_EQ(File(), Text({edited, Loaded("B")}));
    ExpectMarks(false, true);
}

TEST_F(SaveRules, FromTheMenuWritesNothingWhenTheFormFails) {
    page().txtDescription.Enter("");
    world.files.Plan({});
    world.dialogs.ExpectMessage("Rule Description cannot be Blank", "Invalid Rule Description");
    ChooseSave();
    EXPECT_TRUE(DiskUntouched());
    EXPECT_EQ(rules().gaRules(1).Description, "text  ");
    ExpectMarks(true, false);
    EXPECT_TRUE(page().txtDescription.HasFocus());
}

TEST_F(SaveRules, FromTheMenuWritesAfterTheFailureWasMadeGood) {
    page().txtCode.Enter("");
    world.dialogs.ExpectMessage("Rule Code cannot be Blank", "Invalid Rule Code");
    ChooseSave();
    page().txtCode.Type("Q");
    ChooseSave();
    auto edited = Loaded("A");
    edited.Code = "Q";
    EXPECT_EQ(File(), Text({edited, Loaded("B")}));
}

TEST_F(SaveRules, FromTheMenuWritesAnEmptyListWithoutAnyCheck) {
    Delete(Answer::Yes);
    Delete(Answer::Yes);
    Traces();
    ChooseSave();
    EXPECT_EQ(File(), "");
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings ,mnuSave_Click Rules",
                                      "mRules Write_Rules_File Start", "mRules Write_Rules_File Finished"));
    ExpectMarks(false, false);
}

TEST_F(SaveRules, FromThePageWritesTheRulesAsHeldAndNotTheForm) {
    page().txtDescription.Enter("edited");
    Traces();
    page().cmdSaveRules.Click();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings txtDescription_Validate Start",
                                      "frmGlobalSettings cmdSaveRules_Click Start",
                                      "mRules Write_Rules_File Start", "mRules Write_Rules_File Finished"));
    EXPECT_EQ(File(), held);
    EXPECT_EQ(page().txtDescription.Text(), "edited") << "the edit stays in the form";
    ExpectMarks(false, false);
}

TEST_F(SaveRules, FromThePageWritesInvalidRulesToo) {
    StartOver("[RULE]\r\nCODE= TOOLONG\r\nMIN= x\r\n[RULE]\r\nCODE= B\r\n");
    page().cmdUpDown.PressDown();
    page().cmdSaveRules.Click();
    EXPECT_EQ(File(), Text({{.Code = "B",
                             .Min = {},
                             .Max = {},
                             .Cond = {},
                             .Zone = {},
                             .Description = "  ",
                             .Desc2 = {},
                             .Desc3 = {}},
                            {.Code = "TOOLONG",
                             .Min = "x",
                             .Max = {},
                             .Cond = {},
                             .Zone = {},
                             .Description = "  ",
                             .Desc2 = {},
                             .Desc3 = {}}}));
}

TEST_F(SaveRules, FromTheMenuChecksTheRuleInHandAlone) {
    StartOver("[RULE]\r\nCODE= TOOLONG\r\n[RULE]\r\nCODE= B\r\nMIN= 1\r\nMAX= 1\r\nCOND= =\r\nZONE= AVG\r\n");
    list().Pick(2);
    page().txtMax.Enter("2");
    ChooseSave();
    EXPECT_THAT(*File(), ::testing::HasSubstr("   CODE         = TOOLONG\r\n"));
    EXPECT_THAT(*File(), ::testing::HasSubstr("   MAX          = 2\r\n"));
}

TEST_F(SaveRules, FromThePageTakesTheMarkAwayThatTheMenuWouldAskFor) {
    page().txtDescription.Enter("edited");
    page().cmdSaveRules.Click();
    world.files.Plan({});
    ChooseSave();
    EXPECT_TRUE(DiskUntouched()) << "the edit is stored only after the form is changed again";
    page().txtDescription.Enter("edited again");
    ChooseSave();
    auto edited = Loaded("A");
    edited.Description = "edited again";
    EXPECT_EQ(File(), Text({edited, Loaded("B")}));
}

TEST_F(SaveRules, TwiceWritesOnce) {
    page().txtCode.Enter("X");
    ChooseSave();
    world.files.Plan({});
    ChooseSave();
    page().cmdSaveRules.Click();
    EXPECT_TRUE(DiskUntouched());
}

TEST_F(SaveRules, ThatFailsTakesTheMarkAwayAllTheSame) {
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    page().txtCode.Enter("X");
    ChooseSave();
    EXPECT_EQ(File(), before);
    ExpectMarks(false, true);
    EXPECT_THAT(world.dialogs.Shown(), IsEmpty());
}

TEST_F(SaveRules, FromThePageThatFailsTakesTheMarkAwayToo) {
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    page().cmdAddList.Click();
    page().cmdSaveRules.Click();
    EXPECT_EQ(File(), before);
    ExpectMarks(false, false);
}

} // namespace
} // namespace zy::test
