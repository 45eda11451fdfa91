#include <functional>

#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// File > Save takes the detail form over into the rule in hand and writes the list.
class StoreEdit : public RulesForm {
  protected:
    StoreEdit() { StartWithCodes({"A", "B", "C"}); }

    /// Edits rule 2 and saves; `expected` is what has to stand in the file for it.
    void ExpectStored(const std::function<void()>& edit, const RunRule& expected) {
        list().Pick(2);
        edit();
        ChooseSave();
        EXPECT_EQ(File(), Text({Loaded("A"), expected, Loaded("C")}));
        ExpectInHand(2);
        ExpectMarks(false, true);
    }
};

TEST_F(StoreEdit, StoresTheCode) {
    auto expected = Loaded("B");
    expected.Code = "X";
    ExpectStored([&] { page().txtCode.Enter("X"); }, expected);
}

TEST_F(StoreEdit, StoresTheMin) {
    auto expected = Loaded("B");
    expected.Min = "1.5";
    ExpectStored([&] { page().txtMin.Enter("1.5"); }, expected);
}

TEST_F(StoreEdit, StoresTheMax) {
    auto expected = Loaded("B");
    expected.Max = " 1e2 ";
    ExpectStored([&] { page().txtMax.Enter(" 1e2 "); }, expected);
}

TEST_F(StoreEdit, StoresTheDescription) {
    auto expected = Loaded("B");
    expected.Description = " = [x] ";
    ExpectStored([&] { page().txtDescription.Enter(" = [x] "); }, expected);
}

TEST_F(StoreEdit, StoresWhatIsTypedAtTheCaret) {
    auto expected = Loaded("B");
    expected.Description = "new text  ";
    ExpectStored([&] { page().txtDescription.Type("new "); }, expected);
}

TEST_F(StoreEdit, StoresTheRelationAtTheFrontOfEveryCondition) {
    const char* relations[] = {">", ">=", "<", "<=", "="};
    list().Pick(2);
    for (const int index : {4, 3, 2, 1, 0}) {
        page().cboCondition.Pick(index);
        ChooseSave();
        EXPECT_EQ(rules().gaRules(2).Cond, relations[index]);
    }
}

TEST_F(StoreEdit, StoresTheCodeAtTheFrontOfEveryZone) {
    const char* zones[] = {"USL", "UCL", "UWL",  "TARG", "LWL",  "LCL", "LSL", "PREV",
                           "+4S", "+3S", "+15S", "AVG",  "-15S", "-3S", "-4S"};
    list().Pick(2);
    for (int index = 14; index >= 0; --index) {
        page().cboZone.Pick(index);
        ChooseSave();
        EXPECT_EQ(rules().gaRules(2).Zone, zones[index]);
    }
}

TEST_F(StoreEdit, StoresAllFieldsAtOnce) {
    ExpectStored(
        [&] {
            page().txtCode.Enter("R9");
            page().txtMax.Enter("5");
            page().txtMin.Enter("3");
            page().cboCondition.Pick(3);
            page().cboZone.Pick(13);
            page().txtDescription.Enter("all new");
        },
        {.Code = "R9",
         .Min = "3",
         .Max = "5",
         .Cond = "<=",
         .Zone = "-3S",
         .Description = "all new",
         .Desc2 = {},
         .Desc3 = {}});
}

TEST_F(StoreEdit, ShowsTheNewTextsInTheRowAndKeepsItSelected) {
    list().Pick(2);
    int refreshed = 0;
    const auto subscription = list().itemChanged.Observe([&](int item) { refreshed += item == 2 ? 1 : 100; });
    page().txtCode.Enter("X");
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C")) << "not before it is stored";
    ChooseSave();
    EXPECT_THAT(Codes(), ElementsAre("A", "X", "C"));
    EXPECT_EQ(refreshed, 1);
    ExpectInHand(2);
}

TEST_F(StoreEdit, TracesTheCodeThatTheRuleHadBefore) {
    list().Pick(2);
    page().txtCode.Enter("X");
    Traces();
    handlers().details.Save_Rules_Edit(2);
    EXPECT_THAT(Traces(), ElementsAre("mRules Save_Rules_Edit Start item: B"));
}

TEST_F(StoreEdit, SetsNoMarkWhenNoFieldChanged) {
    handlers().details.Save_Rules_Edit(1);
    ExpectMarks(false, false);
    EXPECT_THAT(Rows(), ElementsAre("A|1|2|>|UCL|text  ", "B|1|2|>|UCL|text  ", "C|1|2|>|UCL|text  "));
}

TEST_F(StoreEdit, SetsTheSharedMarkWhenAnyFieldChanged) {
    const std::function<void()> edits[] = {
        [&] { page().txtCode.SetText("X"); },    [&] { page().txtMin.SetText("2"); },
        [&] { page().txtMax.SetText("3"); },     [&] { page().txtDescription.SetText(""); },
        [&] { page().cboZone.SetListIndex(0); }, [&] { page().cboCondition.SetListIndex(1); }};
    for (const auto& edit : edits) {
        state().gbChanged = false;
        edit();
        handlers().details.Save_Rules_Edit(1);
        EXPECT_TRUE(state().gbChanged);
    }
}

TEST_F(StoreEdit, EndsTheTimeOfANewRule) {
    page().cmdAddList.Click();
    EXPECT_TRUE(rules().gbNewRule);
    handlers().details.Save_Rules_Edit(4);
    EXPECT_FALSE(rules().gbNewRule);
}

TEST_F(StoreEdit, KeepsConditionAndZoneWhereNoneIsSelected) {
    page().cboCondition.SetListIndex(-1);
    page().cboZone.SetListIndex(-1);
    handlers().details.Save_Rules_Edit(1);
    EXPECT_EQ(rules().gaRules(1).Cond, ">");
    EXPECT_EQ(rules().gaRules(1).Zone, "UCL");
}

TEST_F(StoreEdit, RaisesSubscriptOutOfRangeForARuleThatIsNotThere) {
    EXPECT_EQ(ErrorNumber([&] { handlers().details.Save_Rules_Edit(4); }), 9);
    EXPECT_EQ(ErrorNumber([&] { handlers().details.Save_Rules_Edit(-1); }), 9);
}

TEST_F(StoreEdit, SpellsAZoneAsTheListDoes) {
    auto rule = RuleOf("Z");
    rule.Zone = "Avg ";
    StartWith({rule});
    page().txtMin.Enter("2");
    ChooseSave();
    auto expected = Loaded("Z");
    expected.Min = "2";
    expected.Zone = "AVG";
    EXPECT_EQ(File(), Text({expected}));
}

} // namespace
} // namespace zy::test
