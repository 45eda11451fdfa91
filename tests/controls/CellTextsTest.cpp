#include "controls/CellTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

#include "support/RaisedError.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> All(const CellTexts& texts) {
    std::vector<std::string> all;
    for (std::size_t cell = 0; cell < texts.Count(); ++cell) {
        all.emplace_back(texts[cell]);
    }
    return all;
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
    texts.AppendPartsOf(Share("ab"), [](std::string_view text, TextParts& parts) {
        parts.Append(text.substr(1));
        parts.Append(text);
        parts.Append("");
    });
    texts.Append("c");
    EXPECT_THAT(All(texts), ElementsAre("b", "ab", "", "c"));
}

TEST(CellTexts, StayAsTheyAreWhenATextCannotBeTakenApart) {
    CellTexts texts;
    texts.Append("a");
    const auto fail = [](std::string_view text, TextParts& parts) {
        parts.Append(text);
        throw std::runtime_error("no part");
    };
    EXPECT_THROW(texts.AppendPartsOf(Share("b"), fail), std::runtime_error);
    EXPECT_THAT(All(texts), ElementsAre("a"));
}

TEST(CellTexts, TakenOverWholeAreNotCopiedWhenACellGoes) {
    CellTexts texts;
    texts.AppendPartsOf(Share(std::string(300000, 'x')), [](std::string_view text, TextParts& parts) {
        for (std::size_t part = 0; part < 3; ++part) {
            parts.Append(text.substr(part * 100000, 100000));
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

TEST(CellTexts, DoNotOutgrowTheirRoomAndStayAsTheyAre) {
    CellTexts texts(199999);
    const std::string text(100000, 'x');
    texts.Append(text);
    const auto second = [&] { texts.Append(text); };
    EXPECT_EQ(ErrorNumber(second), 7);
    EXPECT_EQ(ErrorNumber([&] { texts.Set(0, std::string(150000, 'y')); }), 7);
    EXPECT_EQ(ErrorNumber([&] { texts.AppendPartsOf(Share(std::string(150000, 'z')), [](auto, auto&) {}); }),
              7);
    EXPECT_THAT(All(texts), ElementsAre(text));
    texts.Append("small");
    EXPECT_THAT(All(texts), ElementsAre(text, "small"));
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
