#include "basics/Marks.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

constexpr std::string_view kText = "a,bc,,d";

std::ptrdiff_t PlaceFrom(Marks& marks, std::size_t from) {
    return marks.From(kText.data() + from) - kText.data();
}

TEST(Marks, StandWhereTheTextHoldsTheCharacter) {
    Marks marks(kText, ',');
    EXPECT_EQ(marks.Character(), ',');
    EXPECT_EQ(PlaceFrom(marks, 0), 1);
    EXPECT_EQ(PlaceFrom(marks, 1), 1);
    EXPECT_EQ(PlaceFrom(marks, 2), 4);
    EXPECT_EQ(PlaceFrom(marks, 5), 5);
}

TEST(Marks, AreTheEndOfTheTextBehindTheLastOne) {
    Marks marks(kText, ',');
    EXPECT_EQ(PlaceFrom(marks, 6), 7);
    EXPECT_EQ(PlaceFrom(marks, 7), 7);
}

TEST(Marks, MayBePassedUnasked) {
    Marks marks(kText, ',');
    EXPECT_EQ(PlaceFrom(marks, 3), 4);
}

TEST(Marks, OfATextWithoutThemAreItsEnd) {
    Marks marks(kText, ';');
    EXPECT_EQ(PlaceFrom(marks, 0), 7);
    EXPECT_EQ(Marks({}, ',').From(nullptr), nullptr);
}

} // namespace
} // namespace zy::test
