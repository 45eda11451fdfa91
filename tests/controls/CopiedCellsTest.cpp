#include "controls/CopiedCells.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The cells of a copied text, each row's joined by "|".
std::vector<std::string> RowsOf(std::string_view text) {
    std::vector<std::string> rows(1);
    for (CopiedCells cells(text); !cells.AtEnd();) {
        do {
            rows.back().append(cells.Take()).append("|");
        } while (!cells.EndedRow());
        rows.emplace_back();
    }
    rows.pop_back();
    return rows;
}

std::string Copied(std::string_view cell) {
    std::string text;
    AppendCopied(text, cell);
    return text;
}

TEST(CopiedCells, AreNoneInAnEmptyText) {
    EXPECT_THAT(RowsOf(""), IsEmpty());
}

TEST(CopiedCells, AreSeparatedByTabAndRowsByALineEnd) {
    EXPECT_THAT(RowsOf("a\tb\nc\td\r\n"), ElementsAre("a|b|", "c|d|"));
}

TEST(CopiedCells, NeedNoLineEndBehindTheLastRow) {
    EXPECT_THAT(RowsOf("a\tb"), ElementsAre("a|b|"));
    EXPECT_THAT(RowsOf("a\r"), ElementsAre("a|"));
}

TEST(CopiedCells, MayBeEmpty) {
    EXPECT_THAT(RowsOf("\t\n\n\ta\n"), ElementsAre("||", "|", "|a|"));
    EXPECT_THAT(RowsOf("a\t"), ElementsAre("a||"));
}

TEST(CopiedCells, AreNotAtTheirEndBehindATab) {
    CopiedCells cells("a\t");
    EXPECT_EQ(cells.Take(), "a");
    EXPECT_FALSE(cells.AtEnd()) << "a TAB has a cell behind it, here an empty one";
    EXPECT_EQ(cells.Take(), "");
    EXPECT_TRUE(cells.EndedRow());
    EXPECT_TRUE(cells.AtEnd());
}

TEST(CopiedCells, GetABlankForACarriageReturnInside) {
    EXPECT_THAT(RowsOf("a\rb\tc\r\td\r\n"), ElementsAre("a b|c |d|"));
}

TEST(CopiedCells, MayStandInQuotesAndHoldSeparatorsThere) {
    EXPECT_THAT(RowsOf("\"a\tb\"\t\"c\nd\"\r\n\"e\r\nf\"\n"), ElementsAre("a b|c d|", "e f|"));
    EXPECT_THAT(RowsOf("\"a\"\r\n\"\""), ElementsAre("a|", "|"));
}

TEST(CopiedCells, HaveEachQuoteDoubledInQuotes) {
    EXPECT_THAT(RowsOf(R"("say ""yes"" now")"), ElementsAre(R"(say "yes" now|)"));
    EXPECT_THAT(RowsOf(R"("""")"), ElementsAre(R"("|)"));
}

TEST(CopiedCells, AreTakenAsTheyStandWhenTheirQuotesDoNotEncloseThem) {
    EXPECT_THAT(RowsOf("\"a\tb\n"), ElementsAre("\"a|b|"));
    EXPECT_THAT(RowsOf("\"a\"b\tc\n"), ElementsAre("\"a\"b|c|"));
    EXPECT_THAT(RowsOf("a\"b\"\tc\n"), ElementsAre("a\"b\"|c|"));
    EXPECT_THAT(RowsOf("\""), ElementsAre("\"|"));
    EXPECT_THAT(RowsOf("\"\"\""), ElementsAre("\"\"\"|"));
}

TEST(CopiedCells, AreQuotedOnlyWhenTheyMustBe) {
    EXPECT_EQ(Copied(""), "");
    EXPECT_EQ(Copied("a, \"b\""), "a, \"b\"");
    EXPECT_EQ(Copied("\"a\""), R"("""a""")");
    EXPECT_EQ(Copied("a\tb"), "\"a\tb\"");
    EXPECT_EQ(Copied("a\rb"), "\"a\rb\"");
    EXPECT_EQ(Copied("a\nb \"c\""), "\"a\nb \"\"c\"\"\"");
}

} // namespace
} // namespace zy::test
