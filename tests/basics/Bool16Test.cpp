#include "basics/Bool16.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

TEST(Bool16, StartsFalse) {
    EXPECT_FALSE(Bool16());
    EXPECT_EQ(Bool16().Value(), 0);
}

TEST(Bool16, HoldsTrueAsMinusOne) {
    EXPECT_EQ(Bool16(true).Value(), -1);
}

TEST(Bool16, TakesAnyOtherValueForFalse) {
    for (const int value : {1, 2, -2, 32767, -32768}) {
        EXPECT_FALSE(Bool16::FromValue(static_cast<std::int16_t>(value))) << value;
    }
    EXPECT_TRUE(Bool16::FromValue(-1));
}

} // namespace
} // namespace zy::test
