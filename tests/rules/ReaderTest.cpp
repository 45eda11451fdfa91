#include "ReaderTest.h"

#include "platform/BytesFile.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RulesReader : public ReaderTest {};

TEST_F(RulesReader, TakesWhatTheProgramWrites) {
    const RunRule first{.Code = "R1",
                        .Min = "2",
                        .Max = "3",
                        .Cond = ">=",
                        .Zone = "-15S",
                        .Description = "first",
                        .Desc2 = {},
                        .Desc3 = {}};
    const RunRule second{.Code = "R2",
                         .Min = "1",
                         .Max = "100",
                         .Cond = "=",
                         .Zone = "TARG",
                         .Description = "second",
                         .Desc2 = {},
                         .Desc3 = {}};
    EXPECT_THAT(Taken(Section(first) + Section(second)), ElementsAre(Shown(first), Shown(second)));
    EXPECT_EQ(skipped, 0U);
    EXPECT_TRUE(complete);
}

TEST_F(RulesReader, TakesThreeDescriptionPieces) {
    EXPECT_THAT(Taken("[RULE]\r\nDESC1= one\r\nDESC2= two\r\nDESC3= three\r\n"),
                ElementsAre("|||||one|two|three"));
}

TEST_F(RulesReader, LeavesMissingKeysEmpty) {
    EXPECT_THAT(Taken("[RULE]\r\nMAX= 7\r\n"), ElementsAre("||7|||||"));
}

TEST_F(RulesReader, TakesKeysInAnyOrder) {
    EXPECT_THAT(
        Taken("[RULE]\r\nDESC3= 8\r\nDESC2= 7\r\nDESC1= 6\r\nZONE= 5\r\nCOND= 4\r\nMAX= 3\r\nMIN= 2\r\n"
              "CODE= 1\r\n"),
        ElementsAre("1|2|3|4|5|6|7|8"));
}

TEST_F(RulesReader, TakesARuleForEveryHeaderAlsoWithoutKeys) {
    EXPECT_THAT(Taken("[RULE]\r\n[RULE]\r\nCODE= A\r\n[RULE]"),
                ElementsAre("|||||||", "A|||||||", "|||||||"));
}

TEST_F(RulesReader, TakesTheValueBehindTheFirstEqualsSign) {
    EXPECT_THAT(Taken("[RULE]\r\nCODE= a=b = c\r\n"), ElementsAre("a=b = c|||||||"));
}

TEST_F(RulesReader, TakesOneBlankOffTheFrontOfAValue) {
    EXPECT_THAT(Taken("[RULE]\r\nCODE=  a \r\nMIN=b\r\nMAX= \r\nCOND=\r\nZONE=\tc\r\n"),
                ElementsAre(" a |b|||\tc|||"));
}

TEST_F(RulesReader, TakesAValueThatLooksLikeAHeader) {
    EXPECT_THAT(Taken("[RULE]\r\nCODE= [RULE]\r\nMIN= [\r\n"), ElementsAre("[RULE]|[||||||"));
}

TEST_F(RulesReader, TakesHeadersAndKeysIndentedByBlanksAndTabs) {
    EXPECT_THAT(Taken(" \t[RULE]\t \r\n\t CODE\t = A\r\nMIN= 1\r\n"), ElementsAre("A|1||||||"));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(RulesReader, DoesNotCountBlankLinesAsSkipped) {
    EXPECT_THAT(Taken("\r\n[RULE]\r\n\r\n  \t \r\nCODE= A\r\n\n"), ElementsAre("A|||||||"));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(RulesReader, TakesTheSameFromAFileThatComesInSmallPieces) {
    for (std::size_t atATime = 1; atATime < 60; ++atATime) {
        SCOPED_TRACE(atATime);
        BytesFile file("\xEF\xBB\xBF[RULE]\r\n   CODE         = A\r\n\r\nMIN= 1\n[RULE]\r\nCODE= B",
                       {.piece = atATime});
        EXPECT_THAT(TakenFrom(file), ElementsAre("A|1||||||", "B|||||||"));
        EXPECT_EQ(skipped, 0U);
        EXPECT_TRUE(complete);
    }
}

// The reader works block by block. Wherever a block ends, nothing may be lost.
TEST_F(RulesReader, TakesTheSameWhereverABlockEnds) {
    const std::string rule = "[RULE]\r\nCODE= A\r\nMIN= 1\r\n";
    for (const std::size_t block : {4096U, 16384U, 65536U, 131072U, 262144U}) {
        for (std::size_t before = block - rule.size() - 3; before <= block + 3; ++before) {
            SCOPED_TRACE(before);
            const std::string filler(before - 2, ';');
            EXPECT_THAT(Taken(filler + "\r\n" + rule), ElementsAre("A|1||||||"));
            EXPECT_EQ(skipped, 1U);
            EXPECT_TRUE(complete);
        }
    }
}

TEST_F(RulesReader, TakesEveryRuleOfAFileOfManyBlocks) {
    const RunRule rule{.Code = "R1",
                       .Min = "2",
                       .Max = "3",
                       .Cond = ">=",
                       .Zone = "UCL",
                       .Description = "a description of some length",
                       .Desc2 = {},
                       .Desc3 = {}};
    constexpr std::size_t kRules = 3001;
    std::string text;
    for (std::size_t i = 0; i < kRules; ++i) {
        text += Section(rule);
    }
    EXPECT_EQ(Taken(text), std::vector<std::string>(kRules, Shown(rule)));
    EXPECT_EQ(skipped, 0U);
}

TEST_F(RulesReader, TakesNothingFromAnEmptyFile) {
    EXPECT_THAT(Taken(""), IsEmpty());
    EXPECT_EQ(skipped, 0U);
    EXPECT_TRUE(complete);
}

} // namespace
} // namespace zy::test
