#include <functional>

#include "RulesForm.h"
#include "support/RawBool16.h"

namespace zy::test {
namespace {

/// Which action sets which mark of unsaved changes.
class Marks : public RulesForm {
  protected:
    Marks() { StartWithCodes({"A", "B", "C"}); }

    struct Case {
        const char* action;
        std::function<void()> act;
        bool changeFlag;
        bool changed;
    };

    void Expect(const Case& each) {
        SCOPED_TRACE(each.action);
        StartWithCodes({"A", "B", "C"});
        each.act();
        ExpectMarks(each.changeFlag, each.changed);
        EXPECT_EQ(ValueOf(rules().gbRulesChanged), 0) << "never set";
    }
};

TEST_F(Marks, AreSetByTheActionsThatChangeSomethingAndByNoOther) {
    const Case cases[] = {
        {"picking a rule", [&] { list().Pick(2); }, false, false},
        {"moving the focus", [&] { page().txtCode.TakeFocus(); }, false, false},
        {"typing into the code", [&] { page().txtCode.Type("X"); }, true, false},
        {"typing into the min", [&] { page().txtMin.Enter("2"); }, true, false},
        {"typing into the max", [&] { page().txtMax.Enter("3"); }, true, false},
        {"typing into the description", [&] { page().txtDescription.Type("X"); }, true, false},
        {"picking a condition", [&] { page().cboCondition.Pick(4); }, true, false},
        {"picking a zone", [&] { page().cboZone.Pick(4); }, true, false},
        {"picking the condition that is selected", [&] { page().cboCondition.Pick(0); }, false, false},
        {"entering the text that stands there", [&] { page().txtCode.Enter("A"); }, false, false},
        {"adding", [&] { page().cmdAddList.Click(); }, true, false},
        {"deleting", [&] { Delete(Answer::Yes); }, true, false},
        {"refusing to delete", [&] { Delete(Answer::No); }, false, false},
        {"moving down", [&] { page().cmdUpDown.PressDown(); }, true, true},
        {"moving the first up", [&] { page().cmdUpDown.PressUp(); }, false, false},
        {"asking for help", [&] { page().cmdHelpRules.Click(); }, false, false},
        {"storing an unchanged form", [&] { handlers().details.Save_Rules_Edit(1); }, false, false},
        {"refilling the list", [&] { handlers().listMode.LoadRulesListMode(); }, false, false},
        {"clearing the form", [&] { handlers().details.ClearRule(); }, false, false},
        {"saving an edit from the menu",
         [&] {
             page().txtCode.Enter("X");
             ChooseSave();
         },
         false, true},
        {"saving an added rule from the page",
         [&] {
             page().cmdAddList.Click();
             page().cmdSaveRules.Click();
         },
         false, false},
        {"saving a move from the page",
         [&] {
             page().cmdUpDown.PressDown();
             page().cmdSaveRules.Click();
         },
         false, true},
        {"saving from the menu with nothing to save", [&] { ChooseSave(); }, false, false}};
    for (const auto& each : cases) {
        Expect(each);
    }
}

TEST_F(Marks, StayWhenAnEditIsTakenBack) {
    page().txtCode.Enter("X");
    page().txtCode.Enter("A");
    ExpectMarks(true, false);
}

TEST_F(Marks, AreTestedForTrueAlone) {
    form().ChangeFlag = FromValue(1);
    world.files.Plan({});
    ChooseSave();
    page().cmdSaveRules.Click();
    EXPECT_EQ(world.files.Operations().Count(), 0U);
}

} // namespace
} // namespace zy::test
