#include <gmock/gmock.h>

#include "Scene.h"

namespace zy::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// Where the program's window is from one run to the next.
class PlacementRuns : public Scene {
  protected:
    void Open() {
        Start({"@UNITS"});
        ASSERT_TRUE(WaitForWindow("ZY Setup - Units of Measure")) << Program().Output();
    }
    void Close() {
        Press("alt+F4");
        EXPECT_EQ(Program().WaitForEnd(), 0);
        EXPECT_EQ(Program().Output(), "");
    }
    static void MoveTo(int left, int top) {
        Printed("xdotool getactivewindow windowmove --sync " + std::to_string(left) + " " +
                std::to_string(top));
    }
    static void Resize(int width, int height) {
        Printed("xdotool getactivewindow windowsize " + std::to_string(width) + " " + std::to_string(height));
    }
    static std::string Geometry() { return Printed("xdotool getactivewindow getwindowgeometry"); }
};

TEST_F(PlacementRuns, StayTheSameWhenNobodyMovesTheWindow) {
    Open();
    Close();
    const auto first = Registry();
    EXPECT_THAT(first, StartsWith("[software\\norvale\\products\\ZYSetup\\Window]\nHeight=9600\nLeft="));
    EXPECT_THAT(first, HasSubstr("\nWidth=12000\nState=0\n"));
    for (int run = 0; run < 3; ++run) {
        Open();
        Close();
        EXPECT_EQ(Registry(), first);
    }
}

TEST_F(PlacementRuns, OpenWhereTheWindowWasLeft) {
    Open();
    MoveTo(210, 130);
    Close();
    EXPECT_THAT(Registry(), HasSubstr("Left=3150\nTop=1950\n"));
    Open();
    Close();
    EXPECT_THAT(Registry(), HasSubstr("Left=3150\nTop=1950\n"));
}

TEST_F(PlacementRuns, NeverMakeTheWindowSmallerThanItsLeastSize) {
    Open();
    Resize(100, 100);
    ASSERT_TRUE(WaitUntil([] { return Geometry().find("584x535") != std::string::npos; }));
    Close();
    EXPECT_THAT(Registry(), HasSubstr("Height=8400\n"));
    EXPECT_THAT(Registry(), HasSubstr("Width=8790\n")); // 586 pixels
}

TEST_F(PlacementRuns, EndWithAnOverflowWhenTheWindowIsTooFarAway) {
    environment.set["GDK_DPI_SCALE"] = "0.5"; // 30 twips to the pixel
    Open();
    MoveTo(1150, 100);
    Press("alt+F4");
    ASSERT_TRUE(WaitForWindow("ZY Setup")) << Program().Output();
    Press("Return");
    EXPECT_EQ(Program().WaitForEnd(), 1);
    EXPECT_EQ(Registry(), "");
}

TEST_F(PlacementRuns, NeedNoDisplayForAnUnknownArgumentAlthoughAPlaceIsStored) {
    Open();
    Close();
    environment.unset.emplace_back("DISPLAY");
    Start({"@OTHER"});
    EXPECT_EQ(Program().WaitForEnd(), 0);
    EXPECT_EQ(Program().Output(), "");
}

} // namespace
} // namespace zy::test
