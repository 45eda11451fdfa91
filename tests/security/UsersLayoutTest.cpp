// The places of the controls on the users page, whatever room their texts need.

#include <array>

#include "UsersTest.h"

namespace zy::test {
namespace {

/// What the display's font asks for: the room for a button, and the status bar's height.
struct Fonts {
    const char* name;
    Size button;
    int statusBar;
};

constexpr std::array<Fonts, 3> kFonts{
    {{"no font", {}, 0}, {"an ordinary font", {1275, 510}, 360}, {"a large font", {1900, 750}, 600}}};

class UsersLayout : public UsersTest {
  protected:
    UsersLayout() { StartOver({User("Ann")}); }

    std::array<CommandButton*, 4> Buttons() {
        return {&controls().cmdAddUser, &controls().cmdDeleteUser, &controls().cmdSaveUsers,
                &controls().cmdHelpSecurity};
    }
    const Rect& Frame() { return form().fraSecurity.Bounds(); }
    const Rect& Cells() { return grid().Bounds(); }

    template <typename Checks>
    void ForAllSizes(const Checks& checks) {
        for (const auto& fonts : kFonts) {
            for (auto* button : Buttons()) {
                button->SetPreferred(fonts.button);
            }
            form().zyStatusBar.SetPreferred({0, fonts.statusBar});
            for (int width = 8700; width < 60000; width += 1777) {
                for (int height = 7900; height < 40000; height += 1333) {
                    SCOPED_TRACE(std::string(fonts.name) + ", " + std::to_string(width) + " x " +
                                 std::to_string(height));
                    form().SetInnerSize({width, height});
                    checks(fonts);
                }
            }
        }
    }
};

TEST_F(UsersLayout, FillsTheWindowDownToTheStatusBarWithTheFrame) {
    ForAllSizes([this](const Fonts& fonts) {
        const auto& inner = form().InnerSize();
        EXPECT_EQ(Frame(), (Rect{50, 50, inner.width - 100, inner.height - 100 - fonts.statusBar}));
    });
}

TEST_F(UsersLayout, LeavesNothingOutOfTheLeastSizeThatThePageAsksFor) {
    for (const auto& fonts : kFonts) {
        for (const Size cells : {Size{1200, 1500}, Size{12000, 1500}}) {
            SCOPED_TRACE(fonts.name);
            for (auto* button : Buttons()) {
                button->SetPreferred(fonts.button);
            }
            form().zyStatusBar.SetPreferred({0, fonts.statusBar});
            grid().SetPreferred(cells);
            form().SetInnerSize(form().LeastInnerSize());
            EXPECT_GE(Cells().width, cells.width);
            EXPECT_GE(Cells().height, cells.height);
            EXPECT_LE(Cells().Right(), Frame().width - 50);
            int right = 300;
            for (const auto* button : Buttons()) {
                EXPECT_GT(button->Bounds().left, right);
                right = button->Bounds().Right();
                EXPECT_LE(button->Bounds().Bottom(), Frame().height);
            }
            EXPECT_LT(right, Frame().width - 200);
        }
    }
}

TEST_F(UsersLayout, PutsTheGridAtFiftyAndFiftyAsWideAsTheFrameAllowsAndDownToTheButtons) {
    ForAllSizes([this](const Fonts&) {
        EXPECT_EQ(Cells().left, 50);
        EXPECT_EQ(Cells().top, 50);
        EXPECT_EQ(Cells().Right(), Frame().width - 50);
        EXPECT_GT(Cells().height, Frame().height / 2);
        const int buttons = Buttons()[0]->Bounds().top;
        EXPECT_EQ(buttons - Cells().Bottom(), 150) << "what the strip has above its buttons";
    });
}

TEST_F(UsersLayout, PutsTheGridInItsPlaceAgainWheneverItIsFilled) {
    form().SetInnerSize({9000, 8000});
    const auto place = Cells();
    grid().SetBounds({1, 2, 3, 4});
    page().LoadSecurity();
    EXPECT_EQ(Cells(), place);
}

TEST_F(UsersLayout, PutsTheButtonsInOneRowInTheirOrderInsideTheFrame) {
    ForAllSizes([this](const Fonts& fonts) {
        const int strip = Frame().width - 500;
        int left = 300;
        for (const auto* button : Buttons()) {
            const auto& place = button->Bounds();
            EXPECT_GE(place.left, left) << button->Name();
            EXPECT_LE(place.Right(), Frame().width - 200) << button->Name();
            EXPECT_LE(place.Bottom(), Frame().height - 150) << button->Name();
            EXPECT_EQ(place.width, std::max(strip / 9, fonts.button.width)) << button->Name();
            EXPECT_EQ(place.height, std::max(350, fonts.button.height)) << button->Name();
            EXPECT_EQ(place.top, Buttons()[0]->Bounds().top) << button->Name();
            left = place.Right();
        }
    });
}

} // namespace
} // namespace zy::test
