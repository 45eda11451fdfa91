#include "history/RowMerge.h"

#include <gmock/gmock.h>

#include <array>
#include <cctype>

#include "Words.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Change = RowMerge::Change;
using Choice = RowMerge::Choice;

/// Three lists, and what becomes of them.
class Merge {
  public:
    Merge(RowTexts ofBoth, RowTexts ofMe, RowTexts ofThem)
        : base(std::move(ofBoth)), mine(std::move(ofMe)), theirs(std::move(ofThem)) {}
    Merge(const std::string& ofBoth, const std::string& ofMe, const std::string& ofThem)
        : Merge(List(ofBoth), List(ofMe), List(ofThem)) {}
    // The merge looks at these lists.
    Merge(const Merge&) = delete;
    Merge& operator=(const Merge&) = delete;

    std::string Result() const { return Joined(WordsOf(merge.Result())); }

    /// The rows that differ: "a1|a2|- Conflict" is a row of the base that I changed and they removed.
    std::vector<std::string> Differences() const {
        std::vector<std::string> differences;
        for (int i = 0; i < merge.Differences(); ++i) {
            const auto& row = merge.Difference(i);
            differences.push_back(WordIn(base, row.base) + "|" + WordIn(mine, row.mine) + "|" +
                                  WordIn(theirs, row.theirs) + " " + Name(row.change));
        }
        return differences;
    }

    void ChooseAll(Choice choice) {
        for (int i = 0; i < merge.Differences(); ++i) {
            merge.Choose(i, choice);
        }
        merge.ChooseOrder(choice);
    }

    bool HasConflicts() const {
        bool any = false;
        for (int i = 0; i < merge.Differences(); ++i) {
            any = any || merge.Difference(i).change == Change::Conflict;
        }
        return any;
    }

    /// The words of the result in any order, as the differences say: what does not differ is in all lists.
    std::vector<std::string> Expected() const {
        auto words = WordsOf(mine);
        std::vector<std::string> chosen;
        for (int i = 0; i < merge.Differences(); ++i) {
            const auto& row = merge.Difference(i);
            if (row.mine != kNoRow) {
                words.at(static_cast<std::size_t>(row.mine)).clear();
            }
            const bool isTheirs = row.change == Change::Theirs || row.choice == Choice::Theirs;
            chosen.push_back(isTheirs ? WordIn(theirs, row.theirs) : WordIn(mine, row.mine));
        }
        words.insert(words.end(), chosen.begin(), chosen.end());
        std::erase(words, "");
        std::erase(words, "-");
        return words;
    }

    const RowTexts base;
    const RowTexts mine;
    const RowTexts theirs;
    RowMerge merge{base, mine, theirs, Key};

  private:
    static std::string WordIn(const RowTexts& list, int row) { return row == kNoRow ? "-" : Word(list, row); }
    static std::string Name(Change change) {
        constexpr std::array kNames{"None", "Mine", "Theirs", "BothAlike", "Conflict"};
        return kNames.at(static_cast<std::size_t>(change));
    }
};

TEST(RowMerge, EqualListsDifferInNothing) {
    const Merge merge("a1 b1", "a1 b1", "a1 b1");
    EXPECT_THAT(merge.Differences(), IsEmpty());
    EXPECT_EQ(merge.merge.OrderChange(), Change::None);
    EXPECT_TRUE(merge.merge.IsDecided());
    EXPECT_EQ(merge.Result(), "a1 b1");
}

TEST(RowMerge, WhatOneSideAloneChangedIsTakenFromIt) {
    const Merge merge("a1 b1 c1 d1", "a2 c1 d1 e1", "a1 b1 c2 f1");
    EXPECT_THAT(merge.Differences(), ElementsAre("a1|a2|a1 Mine", "b1|-|b1 Mine", "c1|c1|c2 Theirs",
                                                 "-|-|f1 Theirs", "d1|d1|- Theirs", "-|e1|- Mine"));
    EXPECT_TRUE(merge.merge.IsDecided());
    EXPECT_EQ(merge.Result(), "a2 c2 f1 e1");
}

TEST(RowMerge, WhatBothDidAlikeIsNoConflict) {
    const Merge merge("a1 b1", "a2 c1", "a2 c1");
    EXPECT_THAT(merge.Differences(),
                ElementsAre("a1|a2|a2 BothAlike", "b1|-|- BothAlike", "-|c1|c1 BothAlike"));
    EXPECT_TRUE(merge.merge.IsDecided());
    EXPECT_EQ(merge.Result(), "a2 c1");
}

TEST(RowMerge, ARowThatBothChangedIsTakenAsTheOneOrTheOtherHasIt) {
    Merge merge("a1", "a2", "a3");
    EXPECT_THAT(merge.Differences(), ElementsAre("a1|a2|a3 Conflict"));
    merge.merge.Choose(0, Choice::Theirs);
    EXPECT_EQ(merge.Result(), "a3");
    merge.merge.Choose(0, Choice::Mine);
    EXPECT_EQ(merge.Result(), "a2");
}

TEST(RowMerge, ARowWhoseTextsWereChangedInDifferentColumnsIsAConflictToo) {
    const auto row = [](std::array<const char*, 3> texts) {
        RowTexts rows(3);
        for (const auto* text : texts) {
            rows.Add(text);
        }
        return rows;
    };
    const Merge merge(row({"SMITH", "secret", "27-01-31"}), row({"SMITH", "secret", "28-01-31"}),
                      row({"SMITH", "Secret", "27-01-31"}));
    EXPECT_EQ(merge.merge.Difference(0).change, Change::Conflict);
    EXPECT_EQ(merge.merge.Result(), merge.mine);
}

TEST(RowMerge, ARowThatOneRemovedAndTheOtherChangedIsAConflict) {
    Merge merge("a1 b1 c1", "a2 c1", "b2 c1");
    EXPECT_THAT(merge.Differences(), ElementsAre("b1|-|b2 Conflict", "a1|a2|- Conflict"));
    merge.ChooseAll(Choice::Mine);
    EXPECT_EQ(merge.Result(), "a2 c1");
    merge.ChooseAll(Choice::Theirs);
    EXPECT_EQ(merge.Result(), "b2 c1");
}

TEST(RowMerge, RowsOfOneKeyThatBothAddedWithDifferentTextsAreAConflict) {
    Merge merge("a1", "a1 b1", "b2 a1");
    EXPECT_THAT(merge.Differences(), ElementsAre("-|b1|b2 Conflict"));
    merge.ChooseAll(Choice::Theirs);
    EXPECT_EQ(merge.Result(), "b2 a1");
}

TEST(RowMerge, AConflictStaysMineUntilItIsDecided) {
    Merge merge("a1 b1", "a2 b2", "a3 b3");
    EXPECT_FALSE(merge.merge.IsDecided());
    EXPECT_EQ(merge.Result(), "a2 b2");
    merge.merge.Choose(0, Choice::Theirs);
    EXPECT_FALSE(merge.merge.IsDecided());
    merge.merge.Choose(1, Choice::Mine);
    EXPECT_TRUE(merge.merge.IsDecided());
    EXPECT_EQ(merge.Result(), "a3 b2");
    merge.merge.Choose(0, Choice::Undecided);
    EXPECT_FALSE(merge.merge.IsDecided());
}

TEST(RowMerge, NothingCanBeChosenWhereNoConflictIs) {
    Merge merge("a1 b1", "a2 b1", "a1 b2");
    merge.ChooseAll(Choice::Undecided);
    EXPECT_TRUE(merge.merge.IsDecided());
    merge.ChooseAll(Choice::Theirs);
    EXPECT_EQ(merge.Result(), "a2 b2");
    EXPECT_EQ(merge.merge.OrderChoice(), Choice::Mine);
}

TEST(RowMerge, TheOrderIsThatOfTheSideThatChangedIt) {
    const Merge mine("a1 b1 c1", "c1 a1 b1", "a1 b2 c1");
    EXPECT_EQ(mine.merge.OrderChange(), Change::Mine);
    EXPECT_EQ(mine.Result(), "c1 a1 b2");
    const Merge theirs("a1 b1 c1", "a1 b2 c1", "c1 a1 b1");
    EXPECT_EQ(theirs.merge.OrderChange(), Change::Theirs);
    EXPECT_EQ(theirs.Result(), "c1 a1 b2");
    EXPECT_THAT(theirs.Differences(), ElementsAre("b1|b2|b1 Mine"));
}

TEST(RowMerge, AnOrderThatBothChangedAlikeIsNoConflict) {
    const Merge merge("a1 b1 c1", "c1 a1 b1", "c1 a1 b1 d1");
    EXPECT_EQ(merge.merge.OrderChange(), Change::BothAlike);
    EXPECT_TRUE(merge.merge.IsDecided());
    EXPECT_EQ(merge.Result(), "c1 a1 b1 d1");
}

TEST(RowMerge, AnOrderThatBothChangedDifferentlyIsOneConflict) {
    Merge merge("a1 b1 c1", "b1 a1 c1", "a1 c1 b1");
    EXPECT_EQ(merge.merge.OrderChange(), Change::Conflict);
    EXPECT_EQ(merge.merge.OrderChoice(), Choice::Undecided);
    EXPECT_THAT(merge.Differences(), IsEmpty());
    EXPECT_FALSE(merge.merge.IsDecided());
    EXPECT_EQ(merge.Result(), "b1 a1 c1");
    merge.merge.ChooseOrder(Choice::Theirs);
    EXPECT_TRUE(merge.merge.IsDecided());
    EXPECT_EQ(merge.Result(), "a1 c1 b1");
}

TEST(RowMerge, RowsThatBothAddedInDifferentOrdersAreAConflictAboutTheOrder) {
    const Merge merge("a1", "a1 b1 c1", "a1 c1 b1");
    EXPECT_EQ(merge.merge.OrderChange(), Change::Conflict);
    EXPECT_FALSE(merge.merge.IsDecided());
}

TEST(RowMerge, WhereOneSideMovedARowThatTheOtherRemovedTheOrderIsTheSame) {
    const Merge merge("a1 b1 c1", "c1 a1 b1", "b1 a1");
    EXPECT_EQ(merge.merge.OrderChange(), Change::Theirs);
    EXPECT_EQ(merge.Result(), "b1 a1");
}

TEST(RowMerge, AddedRowsStandBehindThoseThatTheyFollowOnTheirSide) {
    EXPECT_EQ(Merge("a1 b1", "a1 b1", "c1 a1 d1 e1 b1 f1").Result(), "c1 a1 d1 e1 b1 f1");
    EXPECT_EQ(Merge("a1 b1", "b1 a1", "c1 a1 d1 e1 b1 f1").Result(), "c1 b1 f1 a1 d1 e1");
    EXPECT_EQ(Merge("a1 b1", "a1 m1 b1", "a1 t1 b1").Result(), "a1 t1 m1 b1");
}

TEST(RowMerge, AddedRowsFollowTheNearestRowInFrontThatIsStillThere) {
    EXPECT_EQ(Merge("a1 b1 c1 d1", "a1 d1", "a1 b1 c1 t1 d1").Result(), "a1 t1 d1");
    EXPECT_EQ(Merge("a1 b1", "b1", "a1 t1 b1").Result(), "t1 b1");
}

TEST(RowMerge, ARowThatTheSideOfTheOrderRemovedComesBackBehindTheOneThatItFollowed) {
    Merge merge("a1 b1 c1", "c1 a1", "a1 b2 c1");
    EXPECT_EQ(merge.merge.OrderChange(), Change::Mine);
    merge.ChooseAll(Choice::Theirs);
    EXPECT_EQ(merge.Result(), "c1 a1 b2");
}

TEST(RowMerge, TheDifferencesStandInTheOrderOfMine) {
    const Merge merge("a1 b1 c1 d1", "d2 e1 a2", "a1 t1 b1 d1");
    EXPECT_THAT(merge.Differences(), ElementsAre("d1|d2|d1 Mine", "-|e1|- Mine", "a1|a2|a1 Mine",
                                                 "-|-|t1 Theirs", "b1|-|b1 Mine", "c1|-|- BothAlike"));
}

TEST(RowMerge, EmptyListsMerge) {
    EXPECT_EQ(Merge("", "", "").Result(), "");
    EXPECT_EQ(Merge("", "a1", "b1").Result(), "b1 a1");
    EXPECT_EQ(Merge("a1 b1", "", "a1 b1").Result(), "");
}

// What has to hold whatever the lists are.

constexpr int kRuns = 30'000;

/// A list, and what two people made of it.
struct Lists {
    RowTexts base;
    RowTexts mine;
    RowTexts theirs;
};

std::string Printed(const Lists& lists) {
    return Joined(WordsOf(lists.base)) + " : " + Joined(WordsOf(lists.mine)) + " : " +
           Joined(WordsOf(lists.theirs));
}

/// Some have something to do with each other, and some nothing.
Lists AnyLists(RandomLists& random) {
    const auto base = random.Any();
    if (random.Below(4) == 0) {
        return {base, random.Any(), random.Any()};
    }
    return {base, random.Edited(base), random.Edited(base)};
}

template <typename Check>
void ForRandomLists(unsigned seed, const Check& check) {
    RandomLists random(seed);
    for (int run = 0; run < kRuns; ++run) {
        const auto lists = AnyLists(random);
        check(lists);
        ASSERT_FALSE(::testing::Test::HasFailure()) << Printed(lists);
    }
}

std::vector<std::string> Sorted(std::vector<std::string> words) {
    std::sort(words.begin(), words.end());
    return words;
}

TEST(RowMerge, WhereTheyChangedNothingTheResultIsMine) {
    ForRandomLists(1, [](const Lists& lists) {
        const Merge merge(lists.base, lists.mine, lists.base);
        ASSERT_TRUE(merge.merge.IsDecided());
        ASSERT_EQ(merge.merge.Result(), merge.mine);
    });
}

TEST(RowMerge, WhereIChangedNothingTheResultIsTheirs) {
    ForRandomLists(2, [](const Lists& lists) {
        const Merge merge(lists.base, lists.base, lists.theirs);
        ASSERT_TRUE(merge.merge.IsDecided());
        ASSERT_EQ(merge.merge.Result(), merge.theirs);
    });
}

TEST(RowMerge, WhereBothMadeTheSameTheResultIsThat) {
    ForRandomLists(3, [](const Lists& lists) {
        const Merge merge(lists.base, lists.mine, lists.mine);
        ASSERT_TRUE(merge.merge.IsDecided());
        ASSERT_FALSE(merge.HasConflicts());
        ASSERT_EQ(merge.merge.Result(), merge.mine);
    });
}

TEST(RowMerge, EveryRowOfTheResultIsThatOfTheSideThatWasChosen) {
    ForRandomLists(4, [](const Lists& lists) {
        Merge merge(lists.base, lists.mine, lists.theirs);
        for (const auto choice : {Choice::Undecided, Choice::Mine, Choice::Theirs}) {
            merge.ChooseAll(choice);
            ASSERT_EQ(Sorted(WordsOf(merge.merge.Result())), Sorted(merge.Expected()));
        }
    });
}

/// Takes the rows that differ out of a list.
std::vector<std::string> Without(const RowTexts& list, const RowMerge& merge, int RowMerge::Row::*place) {
    auto words = WordsOf(list);
    for (int i = 0; i < merge.Differences(); ++i) {
        const int row = merge.Difference(i).*place;
        if (row != kNoRow) {
            // None is told of twice.
            EXPECT_NE(words.at(static_cast<std::size_t>(row)), "");
            words.at(static_cast<std::size_t>(row)).clear();
        }
    }
    std::erase(words, "");
    return Sorted(words);
}

TEST(RowMerge, WhatIsNotToldAsDifferentIsTheSameInAllThreeLists) {
    ForRandomLists(5, [](const Lists& lists) {
        const Merge merge(lists.base, lists.mine, lists.theirs);
        const auto base = Without(merge.base, merge.merge, &RowMerge::Row::base);
        ASSERT_EQ(Without(merge.mine, merge.merge, &RowMerge::Row::mine), base);
        ASSERT_EQ(Without(merge.theirs, merge.merge, &RowMerge::Row::theirs), base);
    });
}

Change Mirrored(Change change) {
    return change == Change::Mine ? Change::Theirs : change == Change::Theirs ? Change::Mine : change;
}

TEST(RowMerge, ItMattersToNoRowWhichSideIsMine) {
    ForRandomLists(6, [](const Lists& lists) {
        Merge merge(lists.base, lists.mine, lists.theirs);
        Merge mirrored(lists.base, lists.theirs, lists.mine);
        ASSERT_EQ(mirrored.merge.OrderChange(), Mirrored(merge.merge.OrderChange()));
        ASSERT_EQ(mirrored.merge.Differences(), merge.merge.Differences());
        ASSERT_EQ(mirrored.HasConflicts(), merge.HasConflicts());
        merge.ChooseAll(Choice::Mine);
        mirrored.ChooseAll(Choice::Theirs);
        ASSERT_EQ(Sorted(WordsOf(mirrored.merge.Result())), Sorted(WordsOf(merge.merge.Result())));
    });
}

/// A list with no more than one row of each key.
std::vector<std::string> OfEachKeyOne(const RowTexts& list) {
    std::vector<std::string> words;
    for (const auto& word : WordsOf(list)) {
        const auto isOfItsKey = [&](const std::string& other) { return other.front() == word.front(); };
        if (std::none_of(words.begin(), words.end(), isOfItsKey)) {
            words.push_back(word);
        }
    }
    return words;
}

/// The words of a list that are in another one.
std::vector<std::string> ThoseIn(const std::vector<std::string>& others,
                                 const std::vector<std::string>& words) {
    std::vector<std::string> those;
    std::copy_if(words.begin(), words.end(), std::back_inserter(those), [&](const std::string& word) {
        return std::find(others.begin(), others.end(), word) != others.end();
    });
    return those;
}

/// The word in front of one that is in the list, or none.
std::string InFrontOf(const std::string& word, const std::vector<std::string>& words) {
    const auto found = std::find(words.begin(), words.end(), word);
    return found == words.begin() ? "" : *(found - 1);
}

std::vector<std::string> KeysOf(const RowTexts& list) {
    std::vector<std::string> keys;
    for (int row = 0; row < list.Rows(); ++row) {
        keys.push_back(Key(list, row));
    }
    return keys;
}

/// Whether the rows that are still there stand in the order that they had.
bool KeepsOrder(const RowTexts& base, const RowTexts& side) {
    const auto before = KeysOf(List(OfEachKeyOne(base)));
    const auto after = KeysOf(List(OfEachKeyOne(side)));
    return ThoseIn(before, after) == ThoseIn(after, before);
}

/// Whether both sides have a row that the base has not: it can stand at two places.
bool HaveAddedAlike(const Lists& lists) {
    const auto base = KeysOf(lists.base);
    const auto both = ThoseIn(KeysOf(lists.mine), KeysOf(lists.theirs));
    return ThoseIn(base, both) != both;
}

TEST(RowMerge, WhatTakesThePlaceOfAnotherRowStandsThere) {
    Merge merge(List({"a1", "b1", "c1"}), List({"x1", "b1", "c1"}), List({"a1", "y1", "c1"}));
    EXPECT_EQ(merge.Result(), "x1 y1 c1");
    Merge turned(List({"a1", "b1", "c1"}), List({"a1", "y1", "c1"}), List({"x1", "b1", "c1"}));
    EXPECT_EQ(turned.Result(), "x1 y1 c1");
}

TEST(RowMerge, TheOrderOfOneSideIsKeptAndTheOthersRowsFollowThoseInFrontOfThem) {
    ForRandomLists(7, [](const Lists& lists) {
        Merge merge(List(OfEachKeyOne(lists.base)), List(OfEachKeyOne(lists.mine)),
                    List(OfEachKeyOne(lists.theirs)));
        merge.ChooseAll(Choice::Theirs);
        const bool isTheirs = merge.merge.OrderChoice() == Choice::Theirs;
        const auto result = KeysOf(merge.merge.Result());
        const auto first = ThoseIn(result, KeysOf(isTheirs ? merge.theirs : merge.mine));
        const auto second = ThoseIn(result, KeysOf(isTheirs ? merge.mine : merge.theirs));
        ASSERT_EQ(ThoseIn(first, result), first);
        if (merge.merge.OrderChange() == Change::None && KeepsOrder(lists.base, lists.mine) &&
            KeepsOrder(lists.base, lists.theirs)) {
            // Where nobody changed the order, both orders are kept.
            ASSERT_TRUE(HaveAddedAlike(lists) || ThoseIn(second, result) == second);
            return;
        }
        for (const auto& key : result) {
            if (ThoseIn(first, {key}).empty()) {
                ASSERT_EQ(InFrontOf(key, result), InFrontOf(key, second));
            }
        }
    });
}

bool IsLower(const std::string& word) {
    return std::islower(static_cast<unsigned char>(word.front())) != 0;
}

std::vector<std::string> Lower(std::vector<std::string> words, bool isLower) {
    std::erase_if(words, [&](const std::string& word) { return IsLower(word) != isLower; });
    return words;
}

/// Changes, removes and adds rows of keys in lower or in upper case alone, and moves none.
std::vector<std::string> EditedRows(RandomLists& random, const std::vector<std::string>& words,
                                    bool inLower) {
    std::vector<std::string> edited;
    for (const auto& word : words) {
        const bool isLeft = IsLower(word) != inLower;
        switch (isLeft ? 3 : random.Below(5)) {
        case 0:
            break;
        case 1:
            edited.push_back(word.substr(0, 1) + "7");
            break;
        default:
            edited.push_back(word);
        }
        if (random.Below(5) == 0) {
            const int number = static_cast<int>(edited.size());
            edited.push_back(std::string(1, static_cast<char>((inLower ? 'j' : 'J') + number)) + "8");
        }
    }
    return edited;
}

/// Lists of which each side changed other rows.
template <typename Check>
void ForChangesOfDifferentRows(unsigned seed, const Check& check) {
    RandomLists random(seed);
    for (int run = 0; run < kRuns; ++run) {
        auto base = WordsOf(random.Any());
        for (auto& word : base) {
            word.front() =
                static_cast<char>(random.Below(2) == 0 ? word.front() : std::toupper(word.front()));
        }
        check(random, base);
        ASSERT_FALSE(::testing::Test::HasFailure()) << Joined(base);
    }
}

TEST(RowMerge, ChangesOfDifferentRowsMergeWithoutAConflictAndTheResultHasBothInTheirOrders) {
    ForChangesOfDifferentRows(8, [](RandomLists& random, const std::vector<std::string>& words) {
        const auto base = OfEachKeyOne(List(words));
        const auto mine = EditedRows(random, base, true);
        const auto theirs = EditedRows(random, base, false);
        const Merge merge(List(base), List(mine), List(theirs));
        const auto result = WordsOf(merge.merge.Result());
        ASSERT_TRUE(merge.merge.IsDecided());
        ASSERT_EQ(Lower(result, true), Lower(mine, true));
        ASSERT_EQ(Lower(result, false), Lower(theirs, false));
    });
}

TEST(RowMerge, ChangesOfDifferentRowsAreInNoConflictWhereKeysComeTwice) {
    ForChangesOfDifferentRows(9, [](RandomLists& random, const std::vector<std::string>& base) {
        const auto mine = EditedRows(random, base, true);
        const auto theirs = EditedRows(random, base, false);
        const Merge merge(List(base), List(mine), List(theirs));
        const auto result = WordsOf(merge.merge.Result());
        ASSERT_FALSE(merge.HasConflicts());
        ASSERT_EQ(Sorted(Lower(result, true)), Sorted(Lower(mine, true)));
        ASSERT_EQ(Sorted(Lower(result, false)), Sorted(Lower(theirs, false)));
    });
}

} // namespace
} // namespace zy::test
