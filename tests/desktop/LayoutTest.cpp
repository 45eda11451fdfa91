#include <wx/dataview.h>
#include <wx/frame.h>
#include <wx/statusbr.h>

#include "LayoutWindow.h"

namespace zy::test {
namespace {

TEST_F(LayoutWindow, IsTidyAtFirst) {
    Play([&] { ExpectTidy(); });
}

TEST_F(LayoutWindow, IsTidyAtItsLeastSize) {
    Play([&] {
        Resize(LeastSize());
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, IsTidyWhenItFillsTheScreen) {
    Play([&] {
        const auto before = InWindow([] { return RealFrame().GetSize(); });
        InWindow([&] { RealFrame().Maximize(); });
        WaitUntil("the window fills the screen", [&] {
            return program->form.State() == WindowState::Maximized && RealFrame().GetSize().x > 1500;
        });
        ExpectTidy();
        const auto listWidth = InWindow([&] { return RealList().GetSize().x; });
        EXPECT_GT(listWidth, 1200);
        InWindow([&] { RealFrame().Maximize(false); });
        WaitUntil("the window is as before", [&] {
            return program->form.State() == WindowState::Normal && RealFrame().GetSize() == before;
        });
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, IsTidyWithoutRules) {
    PutRules({});
    Play([&] { ExpectTidy(); });
}

TEST_F(LayoutWindow, CannotBeDraggedSmallerThanItsLeastSize) {
    Play([&] {
        const auto before = InWindow([] { return RealFrame().GetSize(); });
        const auto corner =
            InWindow([] { return RealFrame().GetStatusBar()->GetScreenRect().GetBottomRight(); });
        hands->DragWindow(corner - wxPoint(5, 5), corner - wxPoint(600, 600));
        WaitUntil("the window has become smaller", [&] { return RealFrame().GetSize().x < before.x; });
        WaitUntil("the window has its least size", [] { return RealFrame().GetSize() == LeastSize(); });
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, RunsNoLayoutWhileItIsMinimized) {
    world.traceServers.SetRunning(true);
    Play([&] {
        const auto before = InWindow([&] { return page().lstRulesList.Bounds(); });
        InWindow([&] { RealFrame().Iconize(); });
        WaitUntil("the window is minimized", [&] { return program->form.State() == WindowState::Minimized; });
        EXPECT_EQ(InWindow([&] { return page().lstRulesList.Bounds(); }), before);
        InWindow([&] { RealFrame().Restore(); });
        WaitUntil("the window is back", [&] { return program->form.State() == WindowState::Normal; });
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, ShowsTheStateThatTheProgramSets) {
    Play([&] {
        InWindow([&] { program->form.SetState(WindowState::Maximized); });
        WaitUntil("the window fills the screen", [] { return RealFrame().IsMaximized(); });
        InWindow([&] { program->form.SetState(WindowState::Normal); });
        WaitUntil("the window is as before", [] { return !RealFrame().IsMaximized(); });
    });
}

TEST_F(LayoutWindow, AColumnThatAPersonMadeWiderStaysSo) {
    Play([&] {
        const auto listWidth = InWindow([&] { return RealList().GetSize().x; });
        InWindow([&] { RealList().GetColumn(0)->SetWidth(200); });
        WaitUntil("the column is wider", [&] { return RealList().GetColumn(0)->GetWidth() == 200; });
        Resize(InWindow([] { return RealFrame().GetSize(); }) + wxSize(200, 160));
        WaitUntil("the list is wider", [&] { return RealList().GetSize().x > listWidth; });
        ExpectTidy();
        EXPECT_EQ(InWindow([&] { return RealList().GetColumn(0)->GetWidth(); }), 200);
    });
}

TEST_F(LayoutWindow, APageThatNeedsMoreRoomThanThereIsScrollsToTheControlThatHasTheKeyboard) {
    Play([&] {
        NeedRoom({13000, 10800});
        for (int round = 0; round < 2; ++round) {
            for (const auto* control : ControlsInOrder()) {
                WaitForFocus(*control);
                ExpectSeen(*control);
                ExpectStatusBarSeen();
                Press(WXK_TAB);
            }
        }
        ExpectUncrowded();
    });
}

TEST_F(LayoutWindow, APageThatComesToNeedMoreRoomKeepsTheControlWithTheKeyboardInSight) {
    Play([&] {
        Press('D', wxMOD_ALT);
        WaitForFocus(page().txtDescription);
        NeedRoom({13000, 11500});
        ExpectSeen(page().txtDescription);
        ExpectStatusBarSeen();
    });
}

TEST_F(LayoutWindow, APageThatNeededMoreRoomFillsWhatThereIsAgainWhenThatIsEnough) {
    Play([&] {
        NeedRoom({13000, 11500});
        NeedRoom({});
        WaitUntil("the page has its room", [&] { return program->form.InnerSize().height < 11000; });
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, AButtonOfWhichAPartAloneIsSeenIsClickedWhereItStands) {
    Play([&] {
        NeedRoom({13000, 11500});
        const auto place = ScrollUntilTheTopOfItIsSeen(page().cmdAddList);
        hands->Click(place);
        WaitForSelection(4);
    });
}

} // namespace
} // namespace zy::test
