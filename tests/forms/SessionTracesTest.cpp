#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// One session from start to end, as the trace viewer shows it.
class SessionTraces : public RulesForm {};

TEST_F(SessionTraces, TellAWholeSessionInItsOrder) {
    StartWithCodes({"A", "B"});
    list().Pick(2);
    page().txtCode.Enter("X");
    page().cmdAddList.Click();
    page().txtCode.Enter("N1");
    ChooseSave();
    list().Pick(1);
    page().cmdUpDown.PressDown();
    page().cmdSaveRules.Click();
    Delete(Answer::Yes);
    ExpectWishToSave(Answer::Yes);
    ChooseExit();

    EXPECT_THAT(Traces(),
                ElementsAre(
                    // the start
                    "mZYGlobal mMain ZYGlobal Start", "mSecurity SecurityFileLocation Start",
                    "mZYGlobal mMain Rules Mode Started", "mRules Build_Rules_Array Start",
                    "frmGlobalSettings Form_Load Start", "frmGlobalSettings ShowRules Rules",
                    "mRules LoadRulesListMode Start", "mRules EditRule Start",
                    "frmGlobalSettings txtCode_Change Start", "frmGlobalSettings txtMin_Change Start",
                    "frmGlobalSettings txtMax_Change Start", "frmGlobalSettings txtDescription_Change Start",
                    "frmGlobalSettings cboCondition_Click Start", "frmGlobalSettings cboZone_Click Start",
                    // picking B
                    "frmGlobalSettings lstRulesList_ItemClick Start", "mRules EditRule Start",
                    "frmGlobalSettings txtCode_Change Start",
                    // typing a code
                    "frmGlobalSettings txtCode_Change Start",
                    // adding a rule
                    "frmGlobalSettings txtCode_Validate Start", "mRules CheckCode Start",
                    "frmGlobalSettings cmdAddList_Click Start", "mRules Add_New_Rule Start",
                    "mRules LoadRulesListMode Start", "mRules EditRule Start",
                    "frmGlobalSettings txtCode_Change Start", "mRules EditRule Start",
                    "frmGlobalSettings txtCode_Change Start", "frmGlobalSettings txtDescription_Change Start",
                    "frmGlobalSettings cboCondition_Click Start", "frmGlobalSettings cboZone_Click Start",
                    // typing its code
                    "frmGlobalSettings txtCode_Change Start",
                    // File > Save
                    "frmGlobalSettings ,mnuSave_Click Rules", "mRules Validate_Rule Start",
                    "mRules CheckCode Start", "mRules Check_Min Start", "mRules Check_Max Start",
                    "mRules Verify_MinMax Start", "mRules Save_Rules_Edit Start item: NEW",
                    "mRules Write_Rules_File Start", "mRules Write_Rules_File Finished",
                    // picking A
                    "frmGlobalSettings txtCode_Validate Start", "mRules CheckCode Start",
                    "frmGlobalSettings lstRulesList_ItemClick Start", "mRules EditRule Start",
                    "frmGlobalSettings txtCode_Change Start", "frmGlobalSettings txtDescription_Change Start",
                    "frmGlobalSettings cboCondition_Click Start", "frmGlobalSettings cboZone_Click Start",
                    // moving it down
                    "frmGlobalSettings cmdUpDown_DownClick Start", "mRules Move_Rule_Down Start",
                    "mRules LoadRulesListMode Start", "mRules EditRule Start",
                    "frmGlobalSettings txtCode_Change Start", "mRules EditRule Start",
                    "frmGlobalSettings txtCode_Change Start",
                    // the page's Save
                    "frmGlobalSettings cmdSaveRules_Click Start", "mRules Write_Rules_File Start",
                    "mRules Write_Rules_File Finished",
                    // deleting
                    "frmGlobalSettings cmdDeleteList_Click Start", "mRules Delete_Rule Start item: 2",
                    "mRules EditRule Start", "frmGlobalSettings txtCode_Change Start",
                    "frmGlobalSettings cmdDeleteList_Click Rule Deleted",
                    // closing with Yes
                    "frmGlobalSettings Form_Unload Rules", "mRules Write_Rules_File Start",
                    "mRules Write_Rules_File Finished", "frmGlobalSettings Form_Unload Unloaded"));
    auto added = RuleOf("N1");
    added.Cond = "=";
    added.Zone = "USL";
    added.Description = "New";
    EXPECT_EQ(File(), Text({Loaded("B"), added}));
}

TEST_F(SessionTraces, BearTheProgramsName) {
    world.system.SetExecutableName("another");
    StartWithCodes({});
    for (const auto& record : world.traceServers.Records()) {
        EXPECT_EQ(record.executable, "another");
    }
    EXPECT_FALSE(world.traceServers.Records().empty());
}

TEST_F(SessionTraces, AreNotSoughtAfterTheFirstLookFoundNoViewer) {
    world.traceServers.SetRunning(false);
    StartWithCodes({"A", "B"});
    world.traceServers.SetRunning(true);
    list().Pick(2);
    EXPECT_EQ(world.traceServers.LookUps(), 1U);
    EXPECT_TRUE(world.traceServers.Records().empty());
}

} // namespace
} // namespace zy::test
