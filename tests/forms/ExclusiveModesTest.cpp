#include "support/EditorsTest.h"
#include "support/RawBool16.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Save and closing serve one editor: the first in charge of rules, security, units.
class ExclusiveModes : public EditorsTest {
  protected:
    ExclusiveModes() { StartAndForget("@RULES"); }

    void SetModes(bool rules, bool users, bool unitsOfMeasure) {
        state().gbRulesMode = rules;
        state().gbSecurityMode = users;
        state().gbUnitsMode = unitsOfMeasure;
        calls.clear();
    }
};

TEST_F(ExclusiveModes, PutTheRulesFirst) {
    SetModes(true, true, true);
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre("trace frmGlobalSettings ,mnuSave_Click Rules"));
    SetModes(true, true, true);
    window().Unload();
    EXPECT_EQ(calls.front(), "trace frmGlobalSettings Form_Unload Rules");
}

TEST_F(ExclusiveModes, PutTheUsersBeforeTheUnits) {
    SetModes(false, true, true);
    ChooseSave();
    EXPECT_THAT(calls, ::testing::Contains("trace mSecurity Validate_Security Start"));
    EXPECT_THAT(calls, ::testing::Not(::testing::Contains("trace mUnits ValidateUnits Start")));
    SetModes(false, true, true);
    window().Unload();
    EXPECT_THAT(calls, ::testing::Contains("trace frmGlobalSettings Form_Unload Security"));
    EXPECT_THAT(calls, ::testing::Not(::testing::Contains("trace frmGlobalSettings Form_Unload Units")));
}

TEST_F(ExclusiveModes, SaveNothingWithoutAnEditorInCharge) {
    SetModes(false, false, false);
    form().ChangeFlag = true;
    state().gbChanged = true;
    ChooseSave();
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(ExclusiveModes, CloseWithoutAQuestionWithoutAnEditorInCharge) {
    SetModes(false, false, false);
    form().ChangeFlag = true;
    state().gbChanged = true;
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("SetProcedure", "Open key", "Create key",
                                   "trace frmGlobalSettings Form_Unload Unloaded"));
}

TEST_F(ExclusiveModes, AreTestedForTrueAlone) {
    SetModes(false, true, false);
    state().gbRulesMode = FromValue(1);
    ChooseSave();
    EXPECT_THAT(calls, ::testing::Contains("trace frmGlobalSettings ,mnuSave_Click Security"));
}

TEST_F(ExclusiveModes, LayOutEveryPageInCharge) {
    SetModes(true, true, true);
    form().SetInnerSize({20000, 12000});
    EXPECT_THAT(calls, ElementsAre("trace frmGlobalSettings Form_Resize Start"));
    EXPECT_EQ(form().fraRules.Bounds().width, 20000);
    EXPECT_EQ(form().fraSecurity.Bounds().width, 20000 - 100);
    EXPECT_EQ(form().FraUnits.Bounds().width, 20000 - 100);
}

} // namespace
} // namespace zy::test
