#include "history/RowPairs.h"

#include <gmock/gmock.h>

#include <map>

#include "Words.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// For each row after the one before, as places.
std::vector<int> BeforeOfEach(const std::string& before, const std::string& after) {
    const auto pairs = PairRows(List(before), List(after), Key);
    std::vector<int> rows;
    for (int row = 0; row < pairs.RowsAfter(); ++row) {
        rows.push_back(pairs.BeforeOf(row));
    }
    return rows;
}

TEST(RowPairs, RowsOfOneKeyPairWhereverTheyStand) {
    EXPECT_THAT(BeforeOfEach("a1 b1 c1", "c2 d1 a2"), ElementsAre(2, kNoRow, 0));
}

TEST(RowPairs, EmptyListsHaveNone) {
    EXPECT_THAT(BeforeOfEach("a1", ""), IsEmpty());
    EXPECT_THAT(BeforeOfEach("", "a1"), ElementsAre(kNoRow));
}

TEST(RowPairs, EqualRowsPairBeforeThoseOfTheSameKeyAlone) {
    EXPECT_THAT(BeforeOfEach("a1 a2 b1", "a2 a3 b2"), ElementsAre(1, 0, 2));
}

TEST(RowPairs, OfSeveralRowsOfOneKeyTheFirstPairsWithTheFirst) {
    EXPECT_THAT(BeforeOfEach("a1 b1 a2 a3", "b2 a4 a5"), ElementsAre(1, 0, 2));
}

TEST(RowPairs, OfSeveralEqualRowsTheFirstPairsWithTheFirst) {
    EXPECT_THAT(BeforeOfEach("b1 a1 a1 c1", "c2 a1 d1 a1 b2"), ElementsAre(3, 1, kNoRow, 2, 0));
}

TEST(RowPairs, OfEqualRowsTheOneThatWasTakenOutOfTheMiddleHasNoPair) {
    EXPECT_THAT(BeforeOfEach("a1 b1 a1 c1 a1 d1", "a1 b1 c1 a1 d1"), ElementsAre(0, 1, 3, 4, 5));
}

TEST(RowPairs, TextsThatAreJoinedAlikeAreNotEqualRows) {
    RowTexts before(2);
    RowTexts after(2);
    for (const auto* text : {"x", "y", "ab", "c", "z", "z"}) {
        before.Add(text);
    }
    for (const auto* text : {"y", "y", "a", "bc", "w", "w"}) {
        after.Add(text);
    }
    const auto pairs = PairRows(before, after, Key);
    EXPECT_EQ(pairs.AfterOf(1), kNoRow);
}

/// The rows that two lists have in common, each as often as it is in both.
template <typename NameOf>
int InCommon(const RowTexts& before, const RowTexts& after, const NameOf& nameOf) {
    std::map<std::string, int> counts;
    for (int row = 0; row < before.Rows(); ++row) {
        ++counts[nameOf(before, row)];
    }
    int common = 0;
    for (int row = 0; row < after.Rows(); ++row) {
        common += counts[nameOf(after, row)]-- > 0 ? 1 : 0;
    }
    return common;
}

TEST(RowPairs, OfRandomListsAreAsManyAsTheRowsInCommonAndEqualOnesFirst) {
    RandomLists random(1);
    for (int run = 0; run < 100'000; ++run) {
        const auto before = random.Any();
        const auto after = random.Any();
        const auto pairs = PairRows(before, after, Key);
        int count = 0;
        int equal = 0;
        for (int row = 0; row < after.Rows(); ++row) {
            const int other = pairs.BeforeOf(row);
            if (other != kNoRow) {
                ASSERT_EQ(pairs.AfterOf(other), row);
                ASSERT_EQ(Key(before, other), Key(after, row));
                ++count;
                equal += Word(before, other) == Word(after, row) ? 1 : 0;
            }
        }
        ASSERT_EQ(count, InCommon(before, after, Key)) << run;
        ASSERT_EQ(equal, InCommon(before, after, Word)) << run;
    }
}

} // namespace
} // namespace zy::test
