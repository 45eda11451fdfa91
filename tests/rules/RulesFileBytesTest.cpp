#include "RulesTest.h"

namespace zy::test {
namespace {

/// What a save leaves on the disk, byte for byte.
class RulesFileBytes : public RulesTest {
  protected:
    std::string Saved() {
        rules.Write_Rules_File();
        return File().value_or("no file");
    }
};

TEST_F(RulesFileBytes, AreNoneForAnEmptyList) {
    PutFile("old text");
    EXPECT_EQ(Saved(), "");
}

TEST_F(RulesFileBytes, AreNineLinesForARule) {
    Add({.Code = "R1",
         .Min = "2",
         .Max = "3",
         .Cond = ">=",
         .Zone = "UWL",
         .Description = "2 of 3 above",
         .Desc2 = {},
         .Desc3 = {}});
    EXPECT_EQ(Saved(), "[RULE]\r\n"
                       "   CODE         = R1\r\n"
                       "   MIN          = 2\r\n"
                       "   MAX          = 3\r\n"
                       "   COND         = >=\r\n"
                       "   ZONE         = UWL\r\n"
                       "   DESC1        = 2 of 3 above\r\n"
                       "   DESC2        = \r\n"
                       "   DESC3        = \r\n");
}

TEST_F(RulesFileBytes, FollowTheOrderOfTheListWithoutBlankLines) {
    const auto first = AddCode("B");
    const auto second = AddCode("A");
    const auto third = AddCode("C");
    EXPECT_EQ(Saved(), Section(first) + Section(second) + Section(third));
}

TEST_F(RulesFileBytes, HoldTheWholeDescriptionInDesc1AndNothingInDesc2AndDesc3) {
    Add({.Code = "R1",
         .Min = "1",
         .Max = "2",
         .Cond = ">",
         .Zone = "UCL",
         .Description = "first second third",
         .Desc2 = "second",
         .Desc3 = "third"});
    EXPECT_EQ(Saved(), "[RULE]\r\n"
                       "   CODE         = R1\r\n"
                       "   MIN          = 1\r\n"
                       "   MAX          = 2\r\n"
                       "   COND         = >\r\n"
                       "   ZONE         = UCL\r\n"
                       "   DESC1        = first second third\r\n"
                       "   DESC2        = \r\n"
                       "   DESC3        = \r\n");
}

TEST_F(RulesFileBytes, HoldEmptyValuesAsLinesThatEndBehindTheBlank) {
    Add({});
    EXPECT_EQ(Saved(), "[RULE]\r\n"
                       "   CODE         = \r\n"
                       "   MIN          = \r\n"
                       "   MAX          = \r\n"
                       "   COND         = \r\n"
                       "   ZONE         = \r\n"
                       "   DESC1        = \r\n"
                       "   DESC2        = \r\n"
                       "   DESC3        = \r\n");
}

TEST_F(RulesFileBytes, HoldEveryValueAsItStands) {
    const RunRule odd{.Code = " a ",
                      .Min = "=1",
                      .Max = "[RULE]",
                      .Cond = "\"<\"",
                      .Zone = std::string("\0\t\xFF", 3),
                      .Description = "\xE9 = [x]  ",
                      .Desc2 = {},
                      .Desc3 = {}};
    Add(odd);
    EXPECT_EQ(Saved(), Section(odd));
}

TEST_F(RulesFileBytes, HoldEveryRuleOfAFullList) {
    AddMany(kMaxItems);
    const auto size = Section({}).size();
    EXPECT_EQ(Saved().size(), size * kMaxItems);
}

} // namespace
} // namespace zy::test
