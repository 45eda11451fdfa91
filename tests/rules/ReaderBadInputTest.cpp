#include <random>

#include "ReaderTest.h"

namespace zy::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using namespace std::string_literals; // for texts that hold a NUL

/// Files that are not as the program writes them, and what is taken from each.
class BadRulesFile : public ReaderTest {};

TEST_F(BadRulesFile, WithoutAFinalLineEndGivesItsLastLineToo) {
    EXPECT_THAT(Taken("[RULE]\r\nCODE= A\r\nMIN= 1"), ElementsAre("A|1||||||"));
    EXPECT_THAT(Taken("[RULE]\r\nCODE= A\r"), ElementsAre("A|||||||"));
    EXPECT_THAT(Taken("[RULE]"), ElementsAre("|||||||"));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(BadRulesFile, WithLfAloneGivesTheSameAsWithCrLf) {
    EXPECT_THAT(Taken("[RULE]\nCODE= A\nMIN= 1\n[RULE]\r\nCODE= B\n"), ElementsAre("A|1||||||", "B|||||||"));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(BadRulesFile, WithCrAloneIsOneLineThatIsNoHeader) {
    EXPECT_THAT(Taken("[RULE]\rCODE= A\rMIN= 1\r"), IsEmpty());
    EXPECT_EQ(skipped, 1U);
}

TEST_F(BadRulesFile, WithACrInsideALineKeepsItInTheValue) {
    EXPECT_THAT(Taken("[RULE]\r\nCODE= a\rb\r\r\nMIN= 1\r\n"), ElementsAre("a\rb\r|1||||||"));
}

TEST_F(BadRulesFile, WithANulInAValueKeepsItThere) {
    EXPECT_THAT(Taken("[RULE]\r\nCODE= a\0b\r\nMIN= 1\r\n"s), ElementsAre("a\0b|1||||||"s));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(BadRulesFile, WithANulInAKeyOrAHeaderSkipsThatLine) {
    EXPECT_THAT(Taken("[RULE]\r\nCO\0DE= A\r\nMIN= 1\r\n"s), ElementsAre("|1||||||"));
    EXPECT_EQ(skipped, 1U);
    EXPECT_THAT(Taken("[RULE\0]\r\nCODE= A\r\n[RULE]\r\nCODE= B\r\n"s), ElementsAre("B|||||||"));
    EXPECT_EQ(skipped, 2U);
}

TEST_F(BadRulesFile, OfNulsAloneGivesNoRule) {
    EXPECT_THAT(Taken(std::string(100, '\0')), IsEmpty());
    EXPECT_EQ(skipped, 1U);
}

TEST_F(BadRulesFile, WithAByteOrderMarkGivesAllItsRules) {
    EXPECT_THAT(Taken("\xEF\xBB\xBF[RULE]\r\nCODE= A\r\n"), ElementsAre("A|||||||"));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(BadRulesFile, OfAByteOrderMarkAloneIsEmpty) {
    EXPECT_THAT(Taken("\xEF\xBB\xBF"), IsEmpty());
    EXPECT_EQ(skipped, 0U);
}

TEST_F(BadRulesFile, WithAByteOrderMarkElsewhereSkipsThatLine) {
    EXPECT_THAT(Taken("[RULE]\r\n\xEF\xBB\xBF"
                      "CODE= A\r\nMIN= 1\r\n"),
                ElementsAre("|1||||||"));
    EXPECT_EQ(skipped, 1U);
    EXPECT_THAT(Taken("\xEF\xBB[RULE]\r\nCODE= A\r\n"), IsEmpty()) << "half a mark is none";
    EXPECT_EQ(skipped, 2U);
    EXPECT_THAT(Taken("; rules\r\n\xEF\xBB\xBF[RULE]\r\nCODE= A\r\n"), IsEmpty());
    EXPECT_EQ(skipped, 3U);
    EXPECT_THAT(Taken("[RULE]\r\nCODE= A\r\n\xEF\xBB\xBF[RULE]\r\nCODE= B\r\n"), ElementsAre("B|||||||"));
    EXPECT_EQ(skipped, 1U);
    EXPECT_THAT(Taken("[RULE]\r\n\xEF\xBB\xBF[RULE]\r\nCODE= A\r\n"), ElementsAre("A|||||||"));
    EXPECT_EQ(skipped, 1U);
}

TEST_F(BadRulesFile, InUtf16GivesNoRule) {
    EXPECT_THAT(Taken("\xFF\xFE[\0R\0U\0L\0E\0]\0\r\0\n\0C\0O\0D\0E\0=\0A\0\r\0\n\0"s), IsEmpty());
}

TEST_F(BadRulesFile, WithKeysBeforeTheFirstHeaderSkipsThem) {
    EXPECT_THAT(Taken("CODE= X\r\nMIN= 9\r\n[RULE]\r\nCODE= A\r\n"), ElementsAre("A|||||||"));
    EXPECT_EQ(skipped, 2U);
}

TEST_F(BadRulesFile, WithoutAnyHeaderGivesNoRule) {
    EXPECT_THAT(Taken("CODE= X\r\nMIN= 9\r\n"), IsEmpty());
    EXPECT_EQ(skipped, 2U);
}

TEST_F(BadRulesFile, WithAnotherSectionSkipsItAndWhatIsUnderIt) {
    EXPECT_THAT(Taken("[RULE]\r\nCODE= A\r\n[OTHER]\r\nCODE= X\r\nMIN= 9\r\n[RULE]\r\nCODE= B\r\n"),
                ElementsAre("A|||||||", "B|||||||"));
    EXPECT_EQ(skipped, 3U);
}

TEST_F(BadRulesFile, WithDamagedHeadersSkipsTheirSections) {
    for (const auto* header : {"[RULE", "[]", "[", "[ RULE ]", "[RULES]", "[RULE]]", "[RULE] x", "[RULE]="}) {
        EXPECT_THAT(Taken(header + "\r\nCODE= A\r\n"s), IsEmpty()) << header;
        EXPECT_EQ(skipped, 2U) << header;
    }
}

TEST_F(BadRulesFile, WithUnknownKeysGivesTheKnownOnes) {
    EXPECT_THAT(
        Taken("[RULE]\r\nCODE= A\r\nCOLOUR= red\r\nDESC4= x\r\nCODES= x\r\n= x\r\n{ODE= x\r\nMIN= 1\r\n"),
        ElementsAre("A|1||||||"));
    EXPECT_EQ(skipped, 5U);
}

TEST_F(BadRulesFile, WithARepeatedKeyGivesTheLastOfIt) {
    EXPECT_THAT(Taken("[RULE]\r\nCODE= A\r\nCODE= B\r\nMIN= 1\r\nCODE= \r\n"), ElementsAre("|1||||||"));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(BadRulesFile, WithHeadersAndKeysInAnotherCaseGivesThemAll) {
    EXPECT_THAT(Taken("[rule]\r\ncode= A\r\nMin= 1\r\nmax= 2\r\n[Rule]\r\ndesc1= d\r\nzOnE= z\r\n"),
                ElementsAre("A|1|2|||||", "||||z|d||"));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(BadRulesFile, WithLinesWithoutAnEqualsSignSkipsThem) {
    EXPECT_THAT(Taken("[RULE]\r\nCODE\r\nCODE A\r\nMIN= 1\r\nRULE]\r\n"), ElementsAre("|1||||||"));
    EXPECT_EQ(skipped, 3U);
}

TEST_F(BadRulesFile, WithCommentsSkipsThem) {
    EXPECT_THAT(Taken("; rules\r\n[RULE]\r\n; CODE= X\r\n# MIN= 9\r\n'MAX= 9\r\nCODE= A ; kept\r\n"),
                ElementsAre("A ; kept|||||||"));
    EXPECT_EQ(skipped, 4U);
}

TEST_F(BadRulesFile, WithAValueOfOneMegabyteGivesItWhole) {
    const std::string value(1 << 20, 'x');
    EXPECT_THAT(Taken("[RULE]\r\nCODE= " + value + "\r\nMIN= 1\r\n[RULE]\r\nCODE= B\r\n"),
                ElementsAre(value + "|1||||||", "B|||||||"));
    EXPECT_THAT(Taken("[RULE]\r\nCODE= " + value), ElementsAre(value + "|||||||"));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(BadRulesFile, WithAMegabyteThatIsNoKeyLineSkipsThatLineAlone) {
    const std::string noise(1 << 20, 'x');
    EXPECT_THAT(Taken("[RULE]\r\nCODE= A\r\n" + noise + "\r\nMIN= 1\r\n" + noise + "= 1\r\nMAX= 2\r\n"),
                ElementsAre("A|1|2|||||"));
    EXPECT_EQ(skipped, 2U);
}

std::string Noise(unsigned seed) {
    std::mt19937 random(seed);
    std::string noise(random() % 2000, '\0');
    for (auto& byte : noise) {
        byte = static_cast<char>(random() & 0xFF);
    }
    return noise;
}

TEST_F(BadRulesFile, OfBinaryNoiseGivesNoRuleAndIsReadToItsEnd) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        EXPECT_THAT(Taken(Noise(seed)), IsEmpty()) << "seed " << seed;
        EXPECT_TRUE(complete) << "seed " << seed;
    }
}

TEST_F(BadRulesFile, WithBinaryNoiseBetweenTheRulesGivesTheRules) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        EXPECT_THAT(Taken("[RULE]\r\nCODE= A\r\n" + Noise(seed) + "\r\n[RULE]\r\nCODE= B\r\n"),
                    ElementsAre("A|||||||", "B|||||||"))
            << "seed " << seed;
    }
}

TEST_F(BadRulesFile, CutAtAnyByteGivesTheRulesUpToThere) {
    const auto whole = "[RULE]\r\n   CODE         = A1\r\n   MIN          = 12\r\n"s;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const auto taken = Taken(whole.substr(0, length));
        const std::vector<std::string> possible{"|||||||", "A|||||||", "A1|||||||", "A1|1||||||",
                                                "A1|12||||||"};
        EXPECT_EQ(taken.size(), length < 6 ? 0U : 1U) << length;
        EXPECT_THAT(taken, Each(::testing::AnyOfArray(possible))) << length;
    }
}

} // namespace
} // namespace zy::test
