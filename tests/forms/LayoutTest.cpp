#include "RulesForm.h"
#include "shell/PageLayout.h"

namespace zy::test {
namespace {

/// How large a view of some toolkit needs its controls to be, in twips.
struct Theme {
    const char* name;
    int letter;     ///< the width of a letter
    int line;       ///< the height of a line of text
    int button;     ///< the height of a button
    int box;        ///< the height of a text box
    int caption;    ///< the room that a frame's caption takes
    int besideText; ///< what a button or a list is wider than its text
};

constexpr Theme kThemes[] = {{"small", 75, 195, 345, 285, 210, 300},
                             {"roomy", 105, 255, 510, 510, 300, 600},
                             {"wide letters", 120, 255, 510, 510, 300, 660},
                             {"not measured yet", 0, 0, 0, 0, 0, 0}};

constexpr Size kLeast{8800, 8400};

/// Where the controls of the rules page stand in windows of many sizes.
class Layout : public RulesForm {
  protected:
    Layout() { StartWithCodes({"A"}); }

    void Use(const Theme& theme) {
        for (Frame* frame : {&page().fraRulesList, &page().FraRuleDetails, &page().fraGridMode}) {
            frame->SetPreferred({0, theme.caption});
        }
        for (Label* label : {&page().lblCode, &page().lblMin, &page().lblMax, &page().lblCondition,
                             &page().lblZone, &page().lblDescription}) {
            label->SetPreferred({Width(theme, label->Caption()), theme.line});
        }
        for (CommandButton* button :
             {&page().cmdAddList, &page().cmdDeleteList, &page().cmdSaveRules, &page().cmdHelpRules}) {
            button->SetPreferred({Width(theme, button->Caption()) + theme.besideText, theme.button});
        }
        // A box holds its text whatever its width is; three letters are the least that is of use.
        for (TextBox* box : {&page().txtCode, &page().txtMin, &page().txtMax, &page().txtDescription}) {
            box->SetPreferred({Width(theme, "WWW") + theme.besideText / 4, theme.box});
        }
        for (ComboBox* box : {&page().cboCondition, &page().cboZone}) {
            std::size_t longest = 0;
            for (const auto& item : box->Items()) {
                longest = std::max(longest, item.size());
            }
            box->SetPreferred({Width(theme, std::string(longest, 'x')) + theme.besideText, theme.box});
        }
        page().cmdUpDown.SetPreferred({theme.button, 2 * theme.button});
        form().zyStatusBar.SetPreferred({0, theme.line});
    }

    static int Width(const Theme& theme, const std::string& text) {
        return theme.letter * static_cast<int>(text.size());
    }

    void ExpectRight(const Container& container) {
        const Rect& outer = container.Bounds();
        std::vector<const Control*> seen;
        for (const auto* control : container.Children()) {
            if (!control->Visible()) {
                continue;
            }
            ExpectInside(*control, outer);
            EXPECT_GE(control->Bounds().width, control->Preferred().width) << control->Name();
            EXPECT_GE(control->Bounds().height, control->Preferred().height) << control->Name();
            for (const auto* other : seen) {
                EXPECT_FALSE(Overlap(control->Bounds(), other->Bounds()))
                    << control->Name() << " " << other->Name();
            }
            seen.push_back(control);
        }
    }

    /// The frame ends right below and right of what stands in it.
    static void ExpectToEnd(const Frame& frame, const Control& last) {
        EXPECT_EQ(frame.Bounds().height - last.Bounds().Bottom(), kGap) << frame.Name();
        EXPECT_EQ(frame.Bounds().width - last.Bounds().Right(), kGap) << frame.Name();
    }

  private:
    static void ExpectInside(const Control& control, const Rect& outer) {
        const Rect& inner = control.Bounds();
        EXPECT_GE(inner.left, 0) << control.Name();
        EXPECT_GE(inner.top, 0) << control.Name();
        EXPECT_LE(inner.Right(), outer.width) << control.Name();
        EXPECT_LE(inner.Bottom(), outer.height) << control.Name();
        EXPECT_GT(inner.height, 0) << control.Name();
        if (dynamic_cast<const Label*>(&control) == nullptr) {
            EXPECT_GT(inner.width, 0) << control.Name();
        }
    }
    static bool Overlap(const Rect& a, const Rect& b) {
        return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
    }
};

TEST_F(Layout, HoldsInEveryWindowFromTheLeastTo4K) {
    // The window's own borders and its menu bar take some of the least size.
    const Size least{kLeast.width - 240, kLeast.height - 900};
    const Size most{3840 * 15, 2160 * 15};
    for (const auto& theme : kThemes) {
        Use(theme);
        for (int width = least.width; width <= most.width; width += 1901) {
            for (int height = least.height; height <= most.height; height += 1307) {
                SCOPED_TRACE(std::string(theme.name) + " " + std::to_string(width) + "x" +
                             std::to_string(height));
                form().SetInnerSize({width, height});
                ExpectRight(form().fraRules);
                ExpectRight(page().fraRulesList);
                ExpectRight(page().FraRuleDetails);
                ASSERT_FALSE(HasFailure());
            }
        }
    }
}

TEST_F(Layout, HoldsForTheGridToo) {
    handlers().ShowGridMode();
    for (const auto& theme : kThemes) {
        Use(theme);
        form().SetInnerSize(kLeast);
        ExpectRight(form().fraRules);
        ExpectRight(page().fraGridMode);
    }
}

TEST_F(Layout, HoldsInTheLeastSizeThatThePageAsksFor) {
    for (const auto& theme : kThemes) {
        SCOPED_TRACE(theme.name);
        Use(theme);
        form().SetInnerSize(form().LeastInnerSize());
        ExpectRight(form().fraRules);
        ExpectRight(page().fraRulesList);
        ExpectRight(page().FraRuleDetails);
        EXPECT_GE(page().lstRulesList.Bounds().width, 4500);
        ExpectToEnd(page().fraRulesList, page().cmdHelpRules);
        ExpectToEnd(page().FraRuleDetails, page().txtDescription);
    }
}

TEST_F(Layout, AsksForNoMoreThanTheLeastWindowHasWhereTextIsOfTheUsualSize) {
    for (const auto& theme : {kThemes[0], kThemes[3]}) {
        Use(theme);
        EXPECT_LT(form().LeastInnerSize().width, kLeast.width - 240);
        EXPECT_LT(form().LeastInnerSize().height, kLeast.height - 900);
    }
}

TEST_F(Layout, AsksForTheRoomThatWideLabelsTake) {
    Use(kThemes[0]);
    page().lblMin.SetPreferred({9000, 195});
    form().SetInnerSize(form().LeastInnerSize());
    ExpectRight(page().FraRuleDetails);
}

TEST_F(Layout, GivesThePageAllRoomAboveTheStatusBar) {
    form().zyStatusBar.SetPreferred({0, 300});
    form().SetInnerSize({10000, 9000});
    EXPECT_EQ(form().fraRules.Bounds(), (Rect{0, 0, 10000, 8700}));
}

TEST_F(Layout, GivesAdditionalRoomToTheListAndTheDescription) {
    Use(kThemes[1]);
    form().SetInnerSize({9000, 8000});
    const Rect list = page().lstRulesList.Bounds();
    const Rect description = page().txtDescription.Bounds();
    const int column = page().lstRulesList.Columns().back().width;
    const Rect button = page().cmdAddList.Bounds();
    form().SetInnerSize({12000, 10000});
    EXPECT_EQ(page().lstRulesList.Bounds().width, list.width + 3000);
    EXPECT_EQ(page().lstRulesList.Bounds().height, list.height + 2000);
    EXPECT_EQ(page().lstRulesList.Columns().back().width, column + 3000);
    EXPECT_EQ(page().txtDescription.Bounds().width, description.width + 3000);
    EXPECT_EQ(page().txtDescription.Bounds().height, description.height);
    EXPECT_EQ(page().cmdAddList.Bounds().width, button.width);
}

TEST_F(Layout, FillsTheListWithItsColumns) {
    Use(kThemes[0]);
    for (const int width : {9000, 20000, 57600}) {
        form().SetInnerSize({width, 9000});
        int columns = 0;
        for (const auto& column : page().lstRulesList.Columns()) {
            columns += column.width;
        }
        EXPECT_LE(columns, page().lstRulesList.Bounds().width);
        EXPECT_GE(columns, page().lstRulesList.Bounds().width - 600) << "room for a scroll bar is left";
    }
}

TEST_F(Layout, SurvivesAWindowWithoutAnyRoom) {
    Use(kThemes[2]);
    for (const Size size : {Size{0, 0}, Size{1, 1}, Size{0, 9000}, Size{9000, 0}, Size{100, 300}}) {
        form().SetInnerSize(size);
        EXPECT_GE(page().lstRulesList.Bounds().width, 0);
        EXPECT_GE(page().lstRulesList.Bounds().height, 0);
        EXPECT_GE(page().txtDescription.Bounds().width, 0);
        EXPECT_GE(page().fraRulesList.Bounds().height, 0);
        EXPECT_GE(page().grdRules.Bounds().height, 0);
    }
}

TEST_F(Layout, DoesNotRunWhileTheWindowIsMinimized) {
    form().SetInnerSize({10000, 9000});
    const Rect before = page().lstRulesList.Bounds();
    form().SetState(WindowState::Minimized);
    form().SetInnerSize({0, 0});
    EXPECT_EQ(page().lstRulesList.Bounds(), before);
    form().SetState(WindowState::Normal);
    form().SetInnerSize({11000, 9000});
    EXPECT_EQ(page().lstRulesList.Bounds().width, before.width + 1000);
}

TEST_F(Layout, RunsInAMaximizedWindow) {
    form().SetState(WindowState::Maximized);
    form().SetInnerSize({28800, 16200});
    EXPECT_EQ(form().fraRules.Bounds().width, 28800);
}

TEST_F(Layout, StandsAfterTheStart) {
    EXPECT_EQ(form().fraRules.Bounds().width, form().InnerSize().width);
    EXPECT_GT(page().cmdAddList.Bounds().width, 0);
}

} // namespace
} // namespace zy::test
