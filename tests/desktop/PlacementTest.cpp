#include <wx/frame.h>

#include <thread>

#include "RulesWindow.h"
#include "shell/mRegistryEdit.h"

namespace zy::test {
namespace {

using ::testing::Ge;
using ::testing::Le;

/// Where the real window opens, how large it can be, and what is stored of it.
class Placement : public RulesWindow {
  protected:
    void Store(const std::string& name, const std::string& text) {
        world.registry.Put(mRegistryEdit::kKey, name, text);
    }
    void StorePlace(int left, int top, int width, int height) {
        constexpr int kTwips = 15;
        Store("Left", std::to_string(left * kTwips));
        Store("Top", std::to_string(top * kTwips));
        Store("Width", std::to_string(width * kTwips));
        Store("Height", std::to_string(height * kTwips));
    }
    std::string Stored(const std::string& name) {
        const auto key = world.registry.Open(mRegistryEdit::kKey);
        return key ? key->QueryText(name, 260).value_or("none") : "no key";
    }
    void WaitForPlace(const wxRect& place) {
        WaitUntil("the window has its place", [&] { return RealFrame().GetRect() == place; });
    }
    /// A place counts once the window has stood there for a moment.
    static void LetItSettle() { std::this_thread::sleep_for(std::chrono::milliseconds(400)); }
    void WaitForState(WindowState state) {
        WaitUntil("the window has its state", [&] { return program->form.State() == state; });
    }
    /// Drags the corner at the bottom right by that much.
    void DragCornerBy(int x, int y) {
        const auto corner = InWindow([] { return RealFrame().GetRect().GetBottomRight(); });
        hands->DragWindow(corner - wxPoint(1, 1), corner + wxPoint(x, y));
    }
};

TEST_F(Placement, OpensTheWindowAtItsDesignedSizeWithoutAStoredPlace) {
    Play([&] { WaitUntil("it has its size", [] { return RealFrame().GetSize() == wxSize(800, 640); }); });
    EXPECT_EQ(Stored("Width"), "12000");
    EXPECT_EQ(Stored("Height"), "9600");
    EXPECT_EQ(Stored("State"), "0");
}

TEST_F(Placement, OpensTheWindowWhereItWasLeftAndStoresTheSameAgain) {
    StorePlace(300, 200, 700, 650);
    Play([&] { WaitForPlace({300, 200, 700, 650}); });
    EXPECT_EQ(Stored("Left"), "4500");
    EXPECT_EQ(Stored("Top"), "3000");
    EXPECT_EQ(Stored("Width"), "10500");
    EXPECT_EQ(Stored("Height"), "9750");
}

TEST_F(Placement, StoresWhereAPersonHasMovedTheWindow) {
    StorePlace(300, 200, 700, 650);
    Play([&] {
        WaitForPlace({300, 200, 700, 650});
        hands->DragWindow({500, 205}, {560, 305});
        WaitForPlace({360, 300, 700, 650});
    });
    EXPECT_EQ(Stored("Left"), "5400");
    EXPECT_EQ(Stored("Top"), "4500");
}

TEST_F(Placement, LetsAPersonDragTheWindowDownToItsLeastSizeAndNoFurther) {
    Store("MinWidth", "1500");
    Store("MinHeight", "1500");
    StorePlace(100, 100, 800, 700);
    Play([&] {
        WaitForPlace({100, 100, 800, 700});
        DragCornerBy(-500, -500);
        WaitForPlace({100, 100, 586, 560});
        DragCornerBy(60, 40);
        WaitUntil("it is larger again", [] { return RealFrame().GetSize().x > 600; });
        DragCornerBy(-300, -300);
        WaitForPlace({100, 100, 586, 560});
    });
}

TEST_F(Placement, GivesTheWindowItsLeastSizeWhenASmallerOneOrNoneIsStored) {
    Store("Left", "1500");
    Play([&] { WaitUntil("it has its size", [] { return RealFrame().GetSize() == wxSize(586, 560); }); });
}

TEST_F(Placement, OpensOnTheNearestScreenWhenThePlaceLiesOnNone) {
    StorePlace(2000, -900, 700, 650);
    Play([&] {
        WaitUntil("it has its size", [] { return RealFrame().GetSize() == wxSize(700, 650); });
        const auto place = InWindow([] { return RealFrame().GetRect(); });
        EXPECT_THAT(place.x, Ge(0));
        EXPECT_THAT(place.GetRight(), Le(1600));
        EXPECT_THAT(place.y, Ge(0));
    });
}

TEST_F(Placement, OpensMaximizedAndGoesBackToTheStoredPlace) {
    StorePlace(300, 200, 700, 650);
    Store("State", "2");
    Play([&] {
        WaitForState(WindowState::Maximized);
        WaitUntil("it fills the screen", [] { return RealFrame().GetSize().x >= 1590; });
        InWindow([] { RealFrame().Maximize(false); });
        WaitForPlace({300, 200, 700, 650});
        EXPECT_EQ(InWindow([&] { return program->form.State(); }), WindowState::Normal);
    });
    EXPECT_EQ(Stored("State"), "0");
    EXPECT_EQ(Stored("Width"), "10500");
}

TEST_F(Placement, StoresTheNormalPlaceOfAMaximizedWindow) {
    StorePlace(300, 200, 700, 650);
    Play([&] {
        WaitForPlace({300, 200, 700, 650});
        LetItSettle();
        InWindow([] { RealFrame().Maximize(); });
        WaitForState(WindowState::Maximized);
        WaitUntil("it fills the screen", [] { return RealFrame().GetSize().x >= 1590; });
    });
    EXPECT_EQ(Stored("State"), "2");
    EXPECT_EQ(Stored("Left"), "4500");
    EXPECT_EQ(Stored("Top"), "3000");
    EXPECT_EQ(Stored("Width"), "10500");
    EXPECT_EQ(Stored("Height"), "9750");
}

TEST_F(Placement, StoresWhereAPersonHadMovedTheWindowBeforeItWasMaximized) {
    StorePlace(300, 200, 700, 650);
    Play([&] {
        WaitForPlace({300, 200, 700, 650});
        hands->DragWindow({500, 205}, {560, 305});
        WaitForPlace({360, 300, 700, 650});
        LetItSettle();
        InWindow([] { RealFrame().Maximize(); });
        WaitForState(WindowState::Maximized);
        WaitUntil("it fills the screen", [] { return RealFrame().GetSize().x >= 1590; });
    });
    EXPECT_EQ(Stored("State"), "2");
    EXPECT_EQ(Stored("Left"), "5400");
    EXPECT_EQ(Stored("Top"), "4500");
}

#ifndef _WIN32
// Windows itself keeps the place that a maximized window goes back to.
TEST_F(Placement, TakesAPlaceOnTheWayToTheMaximizedOneForNoPlaceOfTheWindow) {
    StorePlace(300, 200, 700, 650);
    Play([&] {
        WaitForPlace({300, 200, 700, 650});
        LetItSettle();
        InWindow([] {
            RealFrame().SetSize(0, 0, 1500, 1100);
            RealFrame().Maximize();
        });
        WaitForState(WindowState::Maximized);
        WaitUntil("it fills the screen", [] { return RealFrame().GetSize().x >= 1590; });
    });
    EXPECT_EQ(Stored("Left"), "4500");
    EXPECT_EQ(Stored("Width"), "10500");
}
#endif

TEST_F(Placement, StoresAMinimizedWindowAsANormalOneAtItsPlace) {
    StorePlace(300, 200, 700, 650);
    Play([&] {
        WaitForPlace({300, 200, 700, 650});
        LetItSettle();
        InWindow([] { RealFrame().Iconize(); });
        WaitForState(WindowState::Minimized);
    });
    EXPECT_EQ(Stored("State"), "0");
    EXPECT_EQ(Stored("Left"), "4500");
    EXPECT_EQ(Stored("Width"), "10500");
}

} // namespace
} // namespace zy::test
