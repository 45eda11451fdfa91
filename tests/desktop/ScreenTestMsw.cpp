#include <gtest/gtest.h>

#include <cstdlib>

#include "desktop/Native.h"

namespace zy::test {
namespace {

TEST(Screen, HasAsManyDotsPerInchAsTheRunAsksFor) {
    const char* const asked = std::getenv("ZY_WINE_DPI");
    EXPECT_EQ(DotsPerInch(), asked == nullptr ? 96 : std::atof(asked));
}

} // namespace
} // namespace zy::test
