#include <gmock/gmock.h>

#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// Where the program's window is from one run to the next.
class PlacementRuns : public Scene {};

TEST_F(PlacementRuns, StayTheSameWhenNobodyMovesTheWindow) {
    OpenUnits();
    Close();
    const auto first = outside.Registry();
    EXPECT_THAT(first, StartsWith("[software\\norvale\\products\\ZYSetup\\Window]\nHeight=9600\nLeft="));
    EXPECT_THAT(first, HasSubstr("\nWidth=12000\n"));
    EXPECT_THAT(first, HasSubstr("\nState=0\n"));
    for (int run = 0; run < 3; ++run) {
        OpenUnits();
        Close();
        EXPECT_EQ(outside.Registry(), first);
    }
}

TEST_F(PlacementRuns, OpenWhereTheWindowWasLeft) {
    OpenUnits();
    MoveActiveWindow(210, 130);
    Close();
    EXPECT_THAT(outside.Registry(), AllOf(HasSubstr("\nLeft=3150\n"), HasSubstr("\nTop=1950\n")));
    OpenUnits();
    Close();
    EXPECT_THAT(outside.Registry(), AllOf(HasSubstr("\nLeft=3150\n"), HasSubstr("\nTop=1950\n")));
}

TEST_F(PlacementRuns, NeverMakeTheWindowSmallerThanItsLeastSize) {
    OpenUnits();
    const auto before = ActiveWindowSize();
    ResizeActiveWindow(100, 100);
    ASSERT_TRUE(WaitUntil([&] { return ActiveWindowSize() != before; }));
    Close();
    EXPECT_THAT(outside.Registry(),
                AllOf(HasSubstr("\nHeight=8400\n"), HasSubstr("\nWidth=8790\n"))); // 586 pixels wide
}

} // namespace
} // namespace zy::test
