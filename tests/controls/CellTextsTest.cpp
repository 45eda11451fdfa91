#include "controls/CellTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

namespace zy::test {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> All(const CellTexts& texts) {
    const auto some = texts.Some(0, texts.Count());
    return {some.begin(), some.end()};
}

TEST(CellTexts, AreEmptyAtFirst) {
    CellTexts texts;
    EXPECT_EQ(texts.Count(), 0U);
    texts.Resize(2);
    EXPECT_THAT(All(texts), ElementsAre("", ""));
}

TEST(CellTexts, AreAppendedSetAndErased) {
    CellTexts texts;
    for (const char* text : {"a", "", "c", "d", "e"}) {
        texts.Append(text);
    }
    texts.Set(1, "b");
    texts.Erase(2, 2);
    EXPECT_THAT(All(texts), ElementsAre("a", "b", "e"));
    texts.Set(0, "");
    EXPECT_EQ(texts[0], "");
}

TEST(CellTexts, MayBeLongerThanABlock) {
    CellTexts texts;
    const std::string text(200000, 'x');
    texts.Append("a");
    texts.Append(text);
    texts.Append("b");
    EXPECT_THAT(All(texts), ElementsAre("a", text, "b"));
}

TEST(CellTexts, MayBeSetFromEachOther) {
    CellTexts texts;
    texts.Append("a");
    texts.Append("b");
    const auto a = texts[0];
    texts.Set(0, texts[1]);
    texts.Set(1, a);
    EXPECT_THAT(All(texts), ElementsAre("b", "a"));
}

TEST(CellTexts, MayBePartsOfAShortText) {
    CellTexts texts;
    texts.AppendPartsOf("ab", [](std::string_view text, std::vector<std::string_view>& parts) {
        parts.push_back(text.substr(1));
        parts.push_back(text);
    });
    texts.Append("c");
    EXPECT_THAT(All(texts), ElementsAre("b", "ab", "c"));
}

TEST(CellTexts, StayAsTheyAreWhenATextCannotBeTakenApart) {
    CellTexts texts;
    texts.Append("a");
    const auto fail = [](std::string_view text, std::vector<std::string_view>& parts) {
        parts.push_back(text);
        throw std::runtime_error("no part");
    };
    EXPECT_THROW(texts.AppendPartsOf("b", fail), std::runtime_error);
    EXPECT_THAT(All(texts), ElementsAre("a"));
}

TEST(CellTexts, TakenOverWholeAreNotCopiedWhenACellGoes) {
    CellTexts texts;
    texts.AppendPartsOf(std::string(300000, 'x'), [](std::string_view text, auto& parts) {
        for (std::size_t part = 0; part < 3; ++part) {
            parts.push_back(text.substr(part * 100000, 100000));
        }
    });
    const auto* const place = texts[0].data();
    texts.Erase(2, 1);
    EXPECT_EQ(texts[0].data(), place);
}

TEST(CellTexts, ThatNoCellHoldsAnyMoreAreDroppedWhenACellGoes) {
    CellTexts texts;
    texts.Append("kept");
    texts.Append("going");
    for (int edit = 0; edit < 10; ++edit) {
        texts.Set(0, std::string(100000, static_cast<char>('a' + edit)));
    }
    const auto* const place = texts[0].data();
    texts.Erase(1, 1);
    EXPECT_NE(texts[0].data(), place) << "nothing was cleared away";
    EXPECT_EQ(texts[0], std::string(100000, 'j'));
}

TEST(CellTexts, AreThoseOfAPlainListAfterManyChanges) {
    CellTexts texts;
    std::vector<std::string> list;
    constexpr unsigned kSeed = 20261;
    std::mt19937 random(kSeed);
    const auto upTo = [&](std::size_t most) { return random() % (most + 1); };
    for (int step = 0; step < 20000; ++step) {
        const std::string text(upTo(200), static_cast<char>('a' + upTo(25)));
        const auto cell = list.empty() ? 0 : upTo(list.size() - 1);
        const auto action = upTo(9);
        if (action < 4 || list.empty()) {
            texts.Append(text);
            list.push_back(text);
        } else if (action < 8) {
            texts.Set(cell, text);
            list[cell] = text;
        } else if (action == 8) {
            texts.Erase(cell, 1);
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(cell));
        } else {
            const auto count = list.size() - std::min(list.size(), upTo(8)) + upTo(6);
            texts.Resize(count);
            list.resize(count);
        }
    }
    EXPECT_EQ(All(texts), list);
}

} // namespace
} // namespace zy::test
