#include "UnitsTest.h"

namespace zy::test {
namespace {

constexpr Size kLeastWindow{8700, 7900}; // inside the smallest window that a person can make

/// What the display's font asks for, as a view measures it.
struct Fonts {
    const char* name;
    Size button;
    Size arrows;
    int frameCaption;
    int statusBar;
};

constexpr Fonts kNone{"no font", {}, {}, 0, 0};
constexpr Fonts kOrdinary{"an ordinary font", {1275, 510}, {480, 900}, 255, 360};
constexpr Fonts kLarge{"a large font", {1900, 750}, {600, 1300}, 480, 600};

class UnitsLayout : public UnitsTest {
  protected:
    UnitsLayout() { Open(); }

    void Use(const Fonts& fonts) {
        for (auto* button : Buttons()) {
            button->SetPreferred(fonts.button);
        }
        controls.UpDownUnits.SetPreferred(fonts.arrows);
        form.FraUnits.SetPreferred({0, fonts.frameCaption});
        form.zyStatusBar.SetPreferred({0, fonts.statusBar});
    }
    std::vector<CommandButton*> Buttons() {
        return {&controls.cmdAddUNit, &controls.cmdDeleteUnit, &controls.cmdSaveUnits,
                &controls.cmdHelpUnits};
    }
    const Rect& Frame() { return form.FraUnits.Bounds(); }
    const Rect& Arrows() { return controls.UpDownUnits.Bounds(); }
    const Rect& Strip() { return controls.fraUnitFunction.Bounds(); }
    const Rect& Cells() { return grid.Bounds(); }

    /// Runs the checks for many sizes of the window and all fonts.
    template <typename Checks>
    void ForAllSizes(const Checks& checks) {
        for (const auto& fonts : {kNone, kOrdinary, kLarge}) {
            Use(fonts);
            for (int width = kLeastWindow.width; width < 60000; width += 1777) {
                for (int height = kLeastWindow.height; height < 40000; height += 1333) {
                    SCOPED_TRACE(std::string(fonts.name) + ", " + std::to_string(width) + " x " +
                                 std::to_string(height));
                    form.SetInnerSize({width, height});
                    checks(fonts);
                }
            }
        }
    }
    /// The buttons stand side by side in their strip.
    void ExpectApart() {
        int right = 0;
        for (const auto* button : Buttons()) {
            EXPECT_GT(button->Bounds().left, right);
            right = button->Bounds().Right();
            ExpectInside(button->Bounds(), {Strip().width, Strip().height});
        }
    }
    static bool Overlap(const Rect& a, const Rect& b) {
        return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
    }
    static void ExpectInside(const Rect& inner, const Size& outer) {
        EXPECT_GE(inner.left, 0);
        EXPECT_GE(inner.top, 0);
        EXPECT_LE(inner.Right(), outer.width);
        EXPECT_LE(inner.Bottom(), outer.height);
        EXPECT_GT(inner.width, 0);
        EXPECT_GT(inner.height, 0);
    }
};

TEST_F(UnitsLayout, FillsTheWindowDownToTheStatusBarWithTheFrame) {
    ForAllSizes([this](const Fonts& fonts) {
        const auto& inner = form.InnerSize();
        EXPECT_EQ(Frame(), (Rect{50, 50, inner.width - 100, inner.height - 100 - fonts.statusBar}));
    });
}

TEST_F(UnitsLayout, PutsTheArrowsAtTheLeftAboutTheMiddleAQuarterOfTheFrameHigh) {
    ForAllSizes([this](const Fonts& fonts) {
        EXPECT_EQ(Arrows().left, 50);
        EXPECT_EQ(Arrows().height, std::max(Frame().height / 4, fonts.arrows.height));
        EXPECT_EQ(Arrows().width, std::max(375, fonts.arrows.width));
        EXPECT_NEAR(Arrows().top + Arrows().height / 2, Frame().height / 2, 1);
    });
}

TEST_F(UnitsLayout, PutsTheStripWhollyInsideTheFrameNearItsBottom) {
    ForAllSizes([this](const Fonts&) {
        EXPECT_EQ(Strip().left, 300);
        EXPECT_EQ(Strip().width, Frame().width - 500);
        ExpectInside(Strip(), {Frame().width, Frame().height});
        EXPECT_EQ(Frame().height - Strip().Bottom(), 100);
    });
}

TEST_F(UnitsLayout, PutsTheButtonsInOneRowInsideTheStripInTheirOrder) {
    ForAllSizes([this](const Fonts&) {
        int left = 0;
        for (const auto* button : Buttons()) {
            const auto& bounds = button->Bounds();
            ExpectInside(bounds, {Strip().width, Strip().height});
            EXPECT_EQ(bounds.top, 150);
            EXPECT_GE(bounds.left, left);
            left = bounds.Right();
        }
    });
}

TEST_F(UnitsLayout, GivesTheButtonsANinthOfTheStripAndTheirDesignedHeightWhereTheirTextsFit) {
    Use(kNone);
    for (int width = kLeastWindow.width; width < 60000; width += 111) {
        form.SetInnerSize({width, kLeastWindow.height});
        EXPECT_EQ(Strip().height, 550);
        for (const auto* button : Buttons()) {
            EXPECT_EQ(button->Bounds().width, Strip().width / 9);
            EXPECT_EQ(button->Bounds().height, 350);
        }
    }
}

TEST_F(UnitsLayout, GivesTheButtonsTheRoomThatTheirTextsNeed) {
    ForAllSizes([this](const Fonts& fonts) {
        for (const auto* button : Buttons()) {
            EXPECT_EQ(button->Bounds().width, std::max(Strip().width / 9, fonts.button.width));
            EXPECT_EQ(button->Bounds().height, std::max(350, fonts.button.height));
        }
    });
}

TEST_F(UnitsLayout, LeavesNothingOutOfTheLeastSizeThatThePageAsksFor) {
    for (const auto& fonts : {kNone, kOrdinary, kLarge}) {
        SCOPED_TRACE(fonts.name);
        for (const Size cells : {Size{1200, 1500}, Size{1200, 0}, Size{12000, 1500}}) {
            Use(fonts);
            grid.SetPreferred(cells);
            form.SetInnerSize(form.LeastInnerSize());
            EXPECT_GE(Cells().width, cells.width);
            EXPECT_GE(Cells().height, cells.height);
            EXPECT_GE(Arrows().top, fonts.frameCaption);
            ExpectInside(Arrows(), {Frame().width, Frame().height});
            ExpectInside(Strip(), {Frame().width, Frame().height});
            ExpectApart();
        }
    }
}

TEST_F(UnitsLayout, AsksForNoMoreThanTheLeastWindowHasWhereTextIsOfTheUsualSize) {
    for (const auto& fonts : {kNone, kOrdinary}) {
        Use(fonts);
        grid.SetPreferred({1200, 1500});
        EXPECT_LT(form.LeastInnerSize().width, kLeastWindow.width);
        EXPECT_LT(form.LeastInnerSize().height, kLeastWindow.height);
    }
}

TEST_F(UnitsLayout, GivesTheGridWhatIsLeftBetweenArrowsAndStrip) {
    ForAllSizes([this](const Fonts& fonts) {
        ExpectInside(Cells(), {Frame().width, Frame().height});
        EXPECT_EQ(Cells().left, Arrows().Right() + 100);
        EXPECT_EQ(Cells().Right(), Frame().width - 100);
        EXPECT_LE(Cells().Bottom(), Strip().top);
        EXPECT_GE(Cells().top, fonts.frameCaption);
        EXPECT_GT(Cells().width, Frame().width / 2);
        EXPECT_GT(Cells().height, Frame().height / 2);
    });
}

TEST_F(UnitsLayout, LetsNothingOverlap) {
    ForAllSizes([this](const Fonts&) {
        EXPECT_FALSE(Overlap(Arrows(), Cells()));
        EXPECT_FALSE(Overlap(Arrows(), Strip()));
        EXPECT_FALSE(Overlap(Cells(), Strip()));
        const auto buttons = Buttons();
        for (std::size_t i = 1; i < buttons.size(); ++i) {
            EXPECT_FALSE(Overlap(buttons[i - 1]->Bounds(), buttons[i]->Bounds()));
        }
    });
}

TEST_F(UnitsLayout, LeavesSizesAsTheyAreThatWouldNotBePositive) {
    Use(kOrdinary);
    form.SetInnerSize({9000, 8000});
    const auto frame = Frame();
    const auto strip = Strip();
    form.SetInnerSize({0, 0});
    EXPECT_EQ(Frame().width, frame.width);
    EXPECT_EQ(Frame().height, frame.height);
    form.SetInnerSize({9000, 100});
    EXPECT_EQ(Frame().width, 8900);
    EXPECT_EQ(Frame().height, frame.height) << "each size for itself";
    form.SetInnerSize({600, 8000});
    EXPECT_EQ(Frame().width, 500);
    EXPECT_EQ(Strip().width, strip.width);
}

TEST_F(UnitsLayout, GivesNoControlANegativeSizeHoweverSmallTheWindow) {
    for (int width = 0; width < 3000; width += 60) {
        for (int height = 0; height < 3000; height += 60) {
            form.SetInnerSize({width, height});
            for (const Rect& bounds : {Frame(), Arrows(), Strip(), Cells(), Buttons()[0]->Bounds()}) {
                EXPECT_GE(bounds.width, 0);
                EXPECT_GE(bounds.height, 0);
            }
        }
    }
}

TEST_F(UnitsLayout, IsNotDoneWhileTheWindowIsMinimized) {
    form.SetInnerSize({9000, 8000});
    const auto frame = Frame();
    form.SetState(WindowState::Minimized);
    form.SetInnerSize({20000, 20000});
    EXPECT_EQ(Frame(), frame);
    form.SetState(WindowState::Normal);
    form.SetInnerSize({20000, 20000});
    EXPECT_EQ(Frame().width, 19900);
}

} // namespace
} // namespace zy::test
