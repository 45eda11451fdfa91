#include "controls/CellList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string InCapitals(std::string_view text) {
    std::string capitals(text);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return capitals;
}

std::string Next(const CellList& list, std::string_view current, std::string_view beginning) {
    return list.Next(current, beginning, InCapitals).value_or("none");
}

std::string Corrected(const CellList& list, std::string_view typed, std::string_view old = "old") {
    return list.Corrected(typed, old, InCapitals);
}

TEST(CellList, HasTheItemsBetweenItsBarsAsTheyAreWritten) {
    EXPECT_THAT(CellList("A|I").Items(), ElementsAre("A", "I"));
    EXPECT_THAT(CellList("TARG |Avg ").Items(), ElementsAre("TARG ", "Avg "));
    EXPECT_THAT(CellList("one").Items(), ElementsAre("one"));
    EXPECT_THAT(CellList("=||").Items(), ElementsAre("=", "", ""));
    EXPECT_THAT(CellList("|").Items(), ElementsAre("", ""));
}

TEST(CellList, IsAButtonForThreeDotsAlone) {
    EXPECT_TRUE(CellList("...").HasButton());
    EXPECT_THAT(CellList("...").Items(), IsEmpty());
    for (const char* notation : {"", "..", "....", "...|A"}) {
        EXPECT_FALSE(CellList(notation).HasButton()) << notation;
    }
}

TEST(CellList, IsNeitherForNoText) {
    EXPECT_FALSE(CellList("").HasItems());
    EXPECT_EQ(CellList(""), CellList());
    EXPECT_FALSE(CellList() == CellList("..."));
}

TEST(CellList, TakesItsItemsAsTheyStandAndNothingAtAll) {
    const CellList list("A|In use||I");
    for (const char* text : {"A", "In use", "I", ""}) {
        EXPECT_TRUE(list.Takes(text)) << text;
    }
    for (const char* text : {"a", "A ", " A", "A|I", "|", "In", "use"}) {
        EXPECT_FALSE(list.Takes(text)) << text;
    }
    EXPECT_TRUE(CellList("A|I").Takes("")) << "a cell may be emptied";
}

TEST(CellList, TakesEveryTextWithoutItems) {
    EXPECT_TRUE(CellList().Takes("any"));
    EXPECT_TRUE(CellList("...").Takes("any"));
}

TEST(CellList, FindsTheNextItemThatBeginsWithWhatIsTypedInCapitalsOrNot) {
    const CellList list("kg|Km|s|kt");
    EXPECT_EQ(Next(list, "s", "k"), "kt");
    EXPECT_EQ(Next(list, "kg", "k"), "Km");
    EXPECT_EQ(Next(list, "Km", "K"), "kt");
    EXPECT_EQ(Next(list, "kg", "S"), "s");
}

TEST(CellList, GoesOnAtItsFirstItemAndEndsAtTheOneThatStandsThere) {
    const CellList list("kg|km|s|");
    EXPECT_EQ(Next(list, "km", "k"), "kg");
    EXPECT_EQ(Next(list, "s", "s"), "s");
    EXPECT_EQ(Next(list, "", "k"), "kg");
}

TEST(CellList, SearchesFromItsFirstItemWhereATextStandsThatIsNone) {
    EXPECT_EQ(Next(CellList("kg|km|s"), "m", "k"), "kg");
}

TEST(CellList, HasNoNextItemWhenNoneBeginsSo) {
    EXPECT_EQ(Next(CellList("kg|km"), "kg", "x"), "none");
    EXPECT_EQ(Next(CellList(), "kg", "k"), "none");
}

TEST(CellList, CorrectsATypedTextToTheFirstItemThatBeginsSo) {
    const CellList list("Active|active too|Inactive");
    EXPECT_EQ(Corrected(list, "a"), "Active");
    EXPECT_EQ(Corrected(list, "ACTIVE "), "active too");
    EXPECT_EQ(Corrected(list, "i"), "Inactive");
}

TEST(CellList, PutsTheCellsOldTextBackWhenNoItemBeginsSo) {
    EXPECT_EQ(Corrected(CellList("A|I"), "x"), "old") << "also one that is no item";
    EXPECT_EQ(Corrected(CellList("A|I"), "", "I"), "I") << "every item begins with nothing";
}

TEST(CellList, LeavesATypedTextThatIsAnItemOrTheOldText) {
    EXPECT_EQ(Corrected(CellList("Ab|A"), "A"), "A");
    EXPECT_EQ(Corrected(CellList("Ab|"), "", "Ab"), "");
    EXPECT_EQ(Corrected(CellList("Ab"), "a", "a"), "a");
}

TEST(CellList, CorrectsNothingWithoutItems) {
    EXPECT_EQ(Corrected(CellList(), "x"), "x");
    EXPECT_EQ(Corrected(CellList("..."), ""), "");
}

} // namespace
} // namespace zy::test
