#include "desktop/Displays.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

const wxRect kScreen(0, 0, 1920, 1080);
const wxRect kScreenToTheRight(1920, 200, 1280, 1024);

TEST(Displays, LeaveAPlaceAloneWhoseTitleAPersonCanTakeHoldOf) {
    for (const auto& place :
         {wxRect(0, 0, 600, 600), wxRect(1860, 1060, 600, 600), wxRect(-540, 100, 600, 600),
          wxRect(1900, 300, 600, 600), wxRect(-100, 0, 3000, 2000), wxRect(10, 10, 0, 0)}) {
        SCOPED_TRACE(place.x);
        EXPECT_EQ(Reachable(place, {kScreen, kScreenToTheRight}), place);
    }
}

TEST(Displays, MoveAPlaceThatLiesOnNoScreenInsideTheNearest) {
    EXPECT_EQ(Reachable({2500, 100, 600, 500}, {kScreen}), wxRect(1320, 100, 600, 500));
    EXPECT_EQ(Reachable({-900, 1200, 600, 500}, {kScreen}), wxRect(0, 580, 600, 500));
    EXPECT_EQ(Reachable({5000, 5000, 600, 500}, {kScreen, kScreenToTheRight}), wxRect(2600, 724, 600, 500));
    EXPECT_EQ(Reachable({-32768, -32768, 600, 500}, {kScreen, kScreenToTheRight}), wxRect(0, 0, 600, 500));
}

TEST(Displays, MoveAPlaceWhoseTitleIsOutOfReachAlthoughItsRestIsSeen) {
    EXPECT_EQ(Reachable({100, -300, 600, 500}, {kScreen}), wxRect(100, 0, 600, 500));
    EXPECT_EQ(Reachable({1900, 100, 600, 500}, {kScreen}), wxRect(1320, 100, 600, 500));
}

TEST(Displays, ShowTheTopLeftCornerOfAPlaceThatIsLargerThanTheScreen) {
    EXPECT_EQ(Reachable({3000, 2000, 2400, 1400}, {kScreen}), wxRect(0, 0, 2400, 1400));
}

TEST(Displays, LeaveAPlaceAloneWhenThereIsNoScreen) {
    EXPECT_EQ(Reachable({3000, 2000, 600, 600}, {}), wxRect(3000, 2000, 600, 600));
}

} // namespace
} // namespace zy::test
