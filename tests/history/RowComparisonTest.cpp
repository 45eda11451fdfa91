#include "history/RowComparison.h"

#include <gmock/gmock.h>

#include "Words.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Kind = RowDifference::Kind;

/// A difference in signs: "+a1" is added, "-a1" removed, "a1>a2" changed, "^a1" moved, "^a1>a2" both.
std::string Sign(const RowTexts& before, const RowTexts& after, const RowDifference& difference) {
    const std::string moved = difference.isMoved ? "^" : "";
    switch (difference.kind) {
    case Kind::Added:
        return moved + "+" + Word(after, difference.after);
    case Kind::Removed:
        return moved + "-" + Word(before, difference.before);
    case Kind::Changed:
        return moved + Word(before, difference.before) + ">" + Word(after, difference.after);
    default:
        return moved + Word(after, difference.after);
    }
}

std::vector<std::string> Signs(const RowTexts& before, const RowTexts& after, const RowKey& key = Key) {
    std::vector<std::string> signs;
    for (const auto& difference : CompareRows(before, after, key)) {
        signs.push_back(Sign(before, after, difference));
    }
    return signs;
}

std::vector<std::string> Signs(const std::string& before, const std::string& after) {
    return Signs(List(before), List(after));
}

TEST(RowComparison, EqualListsDifferInNothing) {
    EXPECT_THAT(Signs("a1 b1 a1", "a1 b1 a1"), IsEmpty());
    EXPECT_THAT(Signs("", ""), IsEmpty());
}

TEST(RowComparison, ARowThatIsNotInTheOtherListIsAddedOrRemoved) {
    EXPECT_THAT(Signs("a1 b1", "a1 c1 b1"), ElementsAre("+c1"));
    EXPECT_THAT(Signs("a1 c1 b1", "a1 b1"), ElementsAre("-c1"));
    EXPECT_THAT(Signs("", "a1 b1"), ElementsAre("+a1", "+b1"));
    EXPECT_THAT(Signs("a1 b1", ""), ElementsAre("-a1", "-b1"));
}

TEST(RowComparison, ARowWithOtherTextsUnderItsKeyIsChanged) {
    EXPECT_THAT(Signs("a1 b1 c1", "a1 b2 c1"), ElementsAre("b1>b2"));
}

TEST(RowComparison, ARowThatIsItsOwnKeyIsNeverChanged) {
    EXPECT_THAT(Signs(List("a1 b1"), List("a1 b2"), Word), ElementsAre("-b1", "+b2"));
}

TEST(RowComparison, OneRowThatWentFarHasMovedAndNotThoseThatItPassed) {
    EXPECT_THAT(Signs("a1 b1 c1 d1", "d1 a1 b1 c1"), ElementsAre("^d1"));
    EXPECT_THAT(Signs("a1 b1 c1 d1", "b1 c1 d1 a1"), ElementsAre("^a1"));
}

TEST(RowComparison, ARowCanBeMovedAndChanged) {
    EXPECT_THAT(Signs("a1 b1 c1", "b1 c1 a2"), ElementsAre("^a1>a2"));
}

TEST(RowComparison, RowsThatOnlyGiveWayToOthersHaveNotMoved) {
    EXPECT_THAT(Signs("a1 b1 c1 d1", "e1 f1 a1 c1 d1"), ElementsAre("+e1", "+f1", "-b1"));
}

TEST(RowComparison, ARemovedRowIsToldWhereItStoodInFrontOfWhatCameThere) {
    EXPECT_THAT(Signs("a1 b1 c1 d1 e1", "a2 f1 c1 g1 e2"),
                ElementsAre("a1>a2", "-b1", "+f1", "-d1", "+g1", "e1>e2"));
    EXPECT_THAT(Signs("a1 b1", "c1 b1"), ElementsAre("-a1", "+c1"));
}

TEST(RowComparison, TellsWhereTheRowsStand) {
    const RowDifference added{.kind = Kind::Added, .after = 0};
    const RowDifference changed{.kind = Kind::Changed, .before = 1, .after = 2};
    const RowDifference moved{.kind = Kind::Moved, .isMoved = true, .before = 0, .after = 3};
    const RowDifference removed{.kind = Kind::Removed, .before = 2};
    EXPECT_THAT(CompareRows(List("a1 b1 c1 d1"), List("e1 f1 b2 a1 d1"), Key),
                ElementsAre(added, RowDifference{.kind = Kind::Added, .after = 1}, changed, removed, moved));
}

/// How many of the rows can stay at most: tries every choice of the pairs.
int MostThatStay(const RowPairs& pairs) {
    int most = 0;
    for (unsigned choice = 0; choice < 1U << static_cast<unsigned>(pairs.RowsBefore()); ++choice) {
        int last = kNoRow;
        int count = 0;
        for (int row = 0; count >= 0 && row < pairs.RowsBefore(); ++row) {
            if ((choice >> static_cast<unsigned>(row) & 1U) != 0) {
                count = pairs.AfterOf(row) > last ? count + 1 : -1;
                last = pairs.AfterOf(row);
            }
        }
        most = std::max(most, count);
    }
    return most;
}

/// Lists, and what makes one of the other.
class RandomComparison {
  public:
    RandomComparison(RowTexts before, RowTexts after)
        : before_(std::move(before)), after_(std::move(after)), pairs_(PairRows(before_, after_, Key)),
          differences_(CompareRows(before_, after_, Key)) {}

    void ExpectTrueKinds() const {
        for (const auto& difference : differences_) {
            ASSERT_EQ(difference.before == kNoRow, difference.kind == Kind::Added);
            ASSERT_EQ(difference.after == kNoRow, difference.kind == Kind::Removed);
            if (difference.before != kNoRow && difference.after != kNoRow) {
                ASSERT_EQ(pairs_.AfterOf(difference.before), difference.after);
                ASSERT_EQ(Word(before_, difference.before) != Word(after_, difference.after),
                          difference.kind == Kind::Changed);
            }
        }
    }

    void ExpectOrderOfRowsAfter() const {
        int last = kNoRow;
        for (const auto& difference : differences_) {
            if (difference.after != kNoRow) {
                ASSERT_GT(difference.after, last);
                last = difference.after;
            }
        }
    }

    /// What is neither told as moved nor as only in one of the lists stands in both in one order, and is the
    /// same but where it is told as changed.
    void ExpectTheRestStays() const {
        auto before = WordsOf(before_);
        auto after = WordsOf(after_);
        for (const auto& difference : differences_) {
            const bool stays = difference.kind == Kind::Changed && !difference.isMoved;
            Replace(before, difference.before, stays ? Key(before_, difference.before) : "");
            Replace(after, difference.after, stays ? Key(after_, difference.after) : "");
        }
        std::erase(before, "");
        std::erase(after, "");
        ASSERT_EQ(before, after);
        ASSERT_EQ(static_cast<int>(before.size()), MostThatStay(pairs_));
    }

  private:
    static void Replace(std::vector<std::string>& words, int row, const std::string& word) {
        if (row != kNoRow) {
            words.at(static_cast<std::size_t>(row)) = word;
        }
    }

    RowTexts before_;
    RowTexts after_;
    RowPairs pairs_;
    std::vector<RowDifference> differences_;
};

TEST(RowComparison, OfRandomListsLeadsFromOneToTheOtherWithTheFewestMoves) {
    RandomLists random(2);
    for (int run = 0; run < 100'000; ++run) {
        const auto before = random.Any();
        const auto after = run % 2 == 0 ? random.Any() : random.Edited(before);
        const RandomComparison comparison(before, after);
        comparison.ExpectTrueKinds();
        comparison.ExpectOrderOfRowsAfter();
        comparison.ExpectTheRestStays();
        ASSERT_FALSE(::testing::Test::HasFailure())
            << Joined(WordsOf(before)) << " : " << Joined(WordsOf(after));
    }
}

} // namespace
} // namespace zy::test
