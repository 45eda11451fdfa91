#include "RulesTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RuleListTest : public RulesTest {
  protected:
    RuleList& list = rules.gaRules;
};

TEST_F(RuleListTest, StartsEmptyWithAnUpperBoundOfZero) {
    EXPECT_EQ(list.UBound(), 0);
}

TEST_F(RuleListTest, CountsFromOne) {
    AddCode("A");
    AddCode("B");
    EXPECT_EQ(list.UBound(), 2);
    EXPECT_EQ(list(1).Code, "A");
    EXPECT_EQ(list(2).Code, "B");
}

TEST_F(RuleListTest, HoldsTheRulesThemselvesAndNoCopies) {
    RunRule& rule = AddCode("A");
    list(1).Code = "X";
    EXPECT_EQ(rule.Code, "X");
}

TEST_F(RuleListTest, RaisesSubscriptOutOfRangeForAnIndexThatNoRuleHas) {
    AddCode("A");
    const RuleList& constant = list;
    for (const int index : {-32768, -1, 0, 2, 32767, 65536}) {
        SCOPED_TRACE(index);
        EXPECT_EQ(ErrorNumber([&] { static_cast<void>(list(index)); }), 9);
        EXPECT_EQ(ErrorNumber([&] { static_cast<void>(constant(index)); }), 9);
        EXPECT_EQ(ErrorNumber([&] { list.Remove(index); }), 9);
        EXPECT_EQ(ErrorNumber([&] { list.Swap(1, index); }), 9);
        EXPECT_EQ(ErrorNumber([&] { list.Swap(index, 1); }), 9);
    }
    EXPECT_THAT(Codes(), ElementsAre("A"));
}

TEST_F(RuleListTest, MovesTheRulesBehindARemovedOneDown) {
    for (const auto* code : {"A", "B", "C", "D"}) {
        AddCode(code);
    }
    list.Remove(2);
    EXPECT_THAT(Codes(), ElementsAre("A", "C", "D"));
    list.Remove(3);
    EXPECT_THAT(Codes(), ElementsAre("A", "C"));
    list.Remove(1);
    EXPECT_THAT(Codes(), ElementsAre("C"));
    list.Remove(1);
    EXPECT_THAT(Codes(), IsEmpty());
}

TEST_F(RuleListTest, SwapsTwoRules) {
    for (const auto* code : {"A", "B", "C"}) {
        AddCode(code);
    }
    list.Swap(1, 3);
    EXPECT_THAT(Codes(), ElementsAre("C", "B", "A"));
}

TEST_F(RuleListTest, DropsAllRulesWhenItIsReset) {
    AddCode("A");
    list.Reset(5);
    EXPECT_EQ(list.UBound(), 0);
    AddCode("B");
    EXPECT_THAT(Codes(), ElementsAre("B"));
}

TEST_F(RuleListTest, HoldsUpTo32767Rules) {
    AddMany(32767);
    EXPECT_EQ(list.UBound(), 32767);
    EXPECT_EQ(ErrorNumber([&] { AddCode("NEW"); }), 6);
    EXPECT_EQ(list.UBound(), 32767);
}

} // namespace
} // namespace zy::test
