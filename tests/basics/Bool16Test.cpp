#include <gtest/gtest.h>

#include "support/RawBool16.h"

namespace zy::test {
namespace {

TEST(Bool16, StartsFalse) {
    EXPECT_FALSE(Bool16());
    EXPECT_EQ(ValueOf(Bool16()), 0);
}

TEST(Bool16, HoldsTrueAsMinusOne) {
    EXPECT_EQ(ValueOf(Bool16(true)), -1);
}

TEST(Bool16, TakesAnyOtherValueForFalse) {
    for (const int value : {1, 2, -2, 32767, -32768}) {
        EXPECT_FALSE(FromValue(static_cast<std::int16_t>(value))) << value;
    }
    EXPECT_TRUE(FromValue(-1));
}

} // namespace
} // namespace zy::test
