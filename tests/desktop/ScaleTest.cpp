#include "desktop/Scale.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

TEST(Scale, HasFifteenTwipsToThePixelAt96DotsPerInch) {
    const Scale scale(96);
    EXPECT_EQ(scale.ToPixels(1500), 100);
    EXPECT_EQ(scale.ToTwips(100), 1500);
    EXPECT_EQ(scale.ToTwips(wxSize(2, 3)), (Size{30, 45}));
}

TEST(Scale, HasHalfAsManyAtTwiceTheResolution) {
    const Scale scale(192);
    EXPECT_EQ(scale.ToPixels(1500), 200);
    EXPECT_EQ(scale.ToTwips(2), 15);
    EXPECT_EQ(scale.ToTwips(1), 8); // never fewer than the pixel needs
}

TEST(Scale, KeepsNeighboursNeighbours) {
    const Scale scale(144);
    for (int left = 0; left < 100; ++left) {
        const wxRect first = scale.ToPixels(Rect{left, 0, 107, 10});
        const wxRect second = scale.ToPixels(Rect{left + 107, 0, 53, 10});
        EXPECT_EQ(first.x + first.width, second.x) << left;
    }
}

TEST(Scale, GivesWhatWasMeasuredNoLessRoomWhereverItStands) {
    for (const double resolution : {96.0, 120.0, 144.0, 192.0}) {
        const Scale scale(resolution);
        for (int pixels = 1; pixels < 60; ++pixels) {
            for (int left = 0; left < 40; ++left) {
                EXPECT_GE(scale.ToPixels(Rect{left, 0, scale.ToTwips(pixels), 0}).width, pixels);
            }
        }
    }
}

TEST(Scale, TellsTheTwipsOfAPixel) {
    EXPECT_DOUBLE_EQ(Scale(96).TwipsPerPixel(), 15);
    EXPECT_DOUBLE_EQ(Scale(192).TwipsPerPixel(), 7.5);
}

} // namespace
} // namespace zy::test
