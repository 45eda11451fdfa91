#include "rules/StandardRules.h"

#include <algorithm>
#include <set>

#include "RulesTest.h"
#include "rules/RulePicture.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class StandardRulesOverAList : public RulesTest {
  protected:
    std::vector<OfferedRule> Offered(const StandardSet& set) {
        return RulesOf(set, rules.gaRules, world.codePage);
    }
    /// The rules of a set, each as "code min of max cond zone", and the grey ones as "-".
    std::vector<std::string> Lines(std::string_view name) {
        std::vector<std::string> lines;
        for (const auto& set : StandardSets()) {
            if (set.name == name) {
                for (const auto& [rule, whyNot] : Offered(set)) {
                    lines.push_back(whyNot.empty() ? rule.Code + " " + rule.Min + " of " + rule.Max + " " +
                                                         rule.Cond + " " + rule.Zone
                                                   : "-");
                }
            }
        }
        return lines;
    }
};

TEST_F(StandardRulesOverAList, AreThoseOfTheirSources) {
    EXPECT_THAT(Lines("Western Electric"),
                ElementsAre("W1U 1 of 1 > UCL", "W1L 1 of 1 < LCL", "W2U 2 of 3 > UWL", "W2L 2 of 3 < LWL",
                            "-", "W4U 8 of 8 > AVG", "W4L 8 of 8 < AVG"));
    EXPECT_THAT(Lines("Nelson"), ElementsAre("N1U 1 of 1 > UCL", "N1L 1 of 1 < LCL", "N2U 9 of 9 > AVG",
                                             "N2L 9 of 9 < AVG", "N3U 6 of 6 > PREV", "N3L 6 of 6 < PREV",
                                             "-", "N5U 2 of 3 > UWL", "N5L 2 of 3 < LWL", "-", "-", "-"));
    EXPECT_THAT(Lines("AIAG"), ElementsAre("A1U 1 of 1 > UCL", "A1L 1 of 1 < LCL", "A2U 7 of 7 > AVG",
                                           "A2L 7 of 7 < AVG", "A3U 6 of 6 > PREV", "A3L 6 of 6 < PREV", "-",
                                           "A5U 2 of 3 > UWL", "A5L 2 of 3 < LWL", "-", "-", "-"));
    EXPECT_THAT(Lines("Montgomery"),
                ElementsAre("M1U 1 of 1 > UCL", "M1L 1 of 1 < LCL", "M2U 2 of 3 > UWL", "M2L 2 of 3 < LWL",
                            "-", "M4U 8 of 8 > AVG", "M4L 8 of 8 < AVG", "M5U 6 of 6 > PREV",
                            "M5L 6 of 6 < PREV", "-", "-", "-"));
    EXPECT_THAT(Lines("Westgard"), ElementsAre("G1U 1 of 1 > UWL", "G1L 1 of 1 < LWL", "G2U 1 of 1 > UCL",
                                               "G2L 1 of 1 < LCL", "G3U 2 of 2 > UWL", "G3L 2 of 2 < LWL",
                                               "-", "-", "G6U 10 of 10 > AVG", "G6L 10 of 10 < AVG"));
    EXPECT_THAT(Lines("Westgard, variants"),
                ElementsAre("V1U 2 of 3 > UWL", "V1L 2 of 3 < LWL", "-", "V3U 6 of 6 > AVG",
                            "V3L 6 of 6 < AVG", "V4U 8 of 8 > AVG", "V4L 8 of 8 < AVG", "V5U 9 of 9 > AVG",
                            "V5L 9 of 9 < AVG", "V6U 12 of 12 > AVG", "V6L 12 of 12 < AVG",
                            "V7U 7 of 7 > PREV", "V7L 7 of 7 < PREV"));
    EXPECT_THAT(Lines("Grant and Leavenworth"),
                ElementsAre("L1U 7 of 7 > AVG", "L1L 7 of 7 < AVG", "L2U 10 of 11 > AVG",
                            "L2L 10 of 11 < AVG", "L3U 12 of 14 > AVG", "L3L 12 of 14 < AVG",
                            "L4U 14 of 17 > AVG", "L4L 14 of 17 < AVG", "L5U 16 of 20 > AVG",
                            "L5L 16 of 20 < AVG"));
}

TEST_F(StandardRulesOverAList, SayWhatTheirPicturesSay) {
    for (const auto& set : StandardSets()) {
        EXPECT_THAT(std::string(set.source), Not(IsEmpty()));
        for (const auto& [rule, whyNot] : Offered(set)) {
            if (whyNot.empty()) {
                const auto picture = PictureOf(rule, '.');
                EXPECT_TRUE(picture.IsDrawn()) << rule.Code;
                EXPECT_EQ(rule.Description + " (" + rule.Zone + ")", picture.sentence);
            }
        }
    }
    EXPECT_EQ(Offered(StandardSets().front()).front().rule.Description,
              "1 point above the upper control limit");
}

TEST_F(StandardRulesOverAList, SayWhyTheyCannotBeInserted) {
    const auto offered = Offered(StandardSets().front());
    EXPECT_EQ(offered[4].whyNot, "there is no zone at 1 SD");
    EXPECT_EQ(offered[4].rule.Description, "4 of 5 points beyond 1 SD on one side: there is no zone at 1 SD");
    EXPECT_EQ(offered[4].rule.Code, "");
}

TEST_F(StandardRulesOverAList, HaveCodesThatNoRuleOfTheListHas) {
    AddCode("w1u ");
    AddCode("W2L");
    AddCode("W00");
    const auto lines = Lines("Western Electric");
    EXPECT_THAT(lines, ElementsAre("W01 1 of 1 > UCL", "W1L 1 of 1 < LCL", "W2U 2 of 3 > UWL",
                                   "W02 2 of 3 < LWL", "-", "W4U 8 of 8 > AVG", "W4L 8 of 8 < AVG"));
}

TEST_F(StandardRulesOverAList, NeverShareACodeAndStayWithinThreeCharacters) {
    for (int round = 0; round < 20; ++round) {
        for (const auto& set : StandardSets()) {
            for (const auto& [rule, whyNot] : Offered(set)) {
                if (whyNot.empty()) {
                    Add(rule);
                }
            }
        }
    }
    std::set<std::string> codes;
    for (const auto& code : Codes()) {
        EXPECT_TRUE(!code.empty() && code.size() <= 3) << code;
        EXPECT_TRUE(codes.insert(code).second) << code;
    }
    EXPECT_EQ(codes.size(), 20U * 60U);
}

TEST(AFreeCode, IsTheWantedOneOrOneLikeItOrAny) {
    std::set<std::string> taken;
    const auto isTaken = [&](const std::string& code) { return taken.contains(code); };
    EXPECT_EQ(FreeCode("X1U", isTaken), "X1U");
    taken.insert("X1U");
    EXPECT_EQ(FreeCode("X1U", isTaken), "X00");
    const auto takesX = [](const std::string& code) { return code.front() == 'X'; };
    EXPECT_EQ(FreeCode("X1U", takesX), "000");
    const auto leavesOne = [](const std::string& code) { return code != "ZZZ"; };
    EXPECT_EQ(FreeCode("X1U", leavesOne), "ZZZ");
}

} // namespace
} // namespace zy::test
