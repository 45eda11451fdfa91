#include "basics/Int16.h"

#include <gtest/gtest.h>

#include "basics/RuntimeError.h"
#include "support/RaisedError.h"

namespace zy::test {
namespace {

TEST(Int16, HoldsEveryValueOfSixteenBits) {
    EXPECT_EQ(ToInt16(32767), 32767);
    EXPECT_EQ(ToInt16(-32768), -32768);
    EXPECT_EQ(ToInt16(std::size_t{32767}), 32767);
    EXPECT_EQ(ToInt16(std::int64_t{-32768}), -32768);
}

TEST(Int16, RaisesOverflowOutsideSixteenBits) {
    EXPECT_EQ(ErrorNumber([] { ToInt16(32768); }), 6);
    EXPECT_EQ(ErrorNumber([] { ToInt16(-32769); }), 6);
    EXPECT_EQ(ErrorNumber([] { ToInt16(std::size_t{32768}); }), 6);
    EXPECT_EQ(ErrorNumber([] { ToInt16(std::size_t{0x10000}); }), 6);
    EXPECT_EQ(ErrorNumber([] { ToInt16(std::int64_t{0x100000000}); }), 6);
}

TEST(Int16, RefusesToCountBeyondItsEnds) {
    std::int16_t counter = 32767;
    EXPECT_EQ(ErrorNumber([&] { counter = ToInt16(counter + 1); }), 6);
    EXPECT_EQ(counter, 32767);
    counter = -32768;
    EXPECT_EQ(ErrorNumber([&] { counter = ToInt16(counter - 1); }), 6);
    EXPECT_EQ(counter, -32768);
}

TEST(Int16, CountsUpAndDown) {
    std::int16_t counter = 1;
    EXPECT_EQ(counter = ToInt16(counter + 1), 2);
    EXPECT_EQ(counter = ToInt16(counter - 1), 1);
}

TEST(Int16, ReadsAWholeNumberFromText) {
    EXPECT_EQ(ToInt16("12"), 12);
    EXPECT_EQ(ToInt16(" -1 "), -1);
    EXPECT_EQ(ToInt16("32767"), 32767);
}

TEST(Int16, RaisesTypeMismatchForATextThatIsNoNumber) {
    for (const char* text : {"", " ", "one", "1x", "1.5", "--1"}) {
        EXPECT_EQ(ErrorNumber([&] { ToInt16(text); }), 13) << text;
    }
}

TEST(Int16, RaisesOverflowForANumberInTextThatIsTooLarge) {
    EXPECT_EQ(ErrorNumber([] { ToInt16("32768"); }), 6);
    EXPECT_EQ(ErrorNumber([] { ToInt16("99999999999999999999999"); }), 6);
}

} // namespace
} // namespace zy::test
