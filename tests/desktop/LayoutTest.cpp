#include <wx/dataview.h>
#include <wx/display.h>
#include <wx/frame.h>
#include <wx/statusbr.h>

#include <chrono>

#include "RulesWindow.h"
#include "support/EnvironmentVariable.h"

namespace zy::test {
namespace {

class LayoutWindow : public RulesWindow {
  protected:
    LayoutWindow() { PutRules(ThreeRules()); }

    void Resize(const wxSize& size) {
        InWindow([&] { RealFrame().SetSize(size); });
        WaitUntil("the window has its new size", [&] { return IsAbout(RealFrame().GetSize(), size); });
    }
    static bool IsAbout(const wxSize& is, const wxSize& wanted) {
        constexpr int kBorders = 60;
        return std::abs(is.x - wanted.x) < kBorders && std::abs(is.y - wanted.y) < kBorders;
    }

    /// Every control can be seen whole, has the room it needs, and lies on no other.
    void ExpectTidy() {
        const auto end = std::chrono::steady_clock::now() + kPatience;
        std::string wrong;
        do {
            wrong = InWindow([&] { return Untidiness(); });
        } while (!wrong.empty() && std::chrono::steady_clock::now() < end);
        EXPECT_EQ(wrong, "");
    }

    std::string Untidiness() {
        std::string wrong;
        auto& c = page();
        const std::vector<const Control*> list{&c.lstRulesList,  &c.cmdUpDown,    &c.cmdAddList,
                                               &c.cmdDeleteList, &c.cmdSaveRules, &c.cmdHelpRules};
        const std::vector<const Control*> details{
            &c.lblCode,      &c.txtCode,      &c.lblMin,  &c.txtMin,  &c.lblMax,         &c.txtMax,
            &c.lblCondition, &c.cboCondition, &c.lblZone, &c.cboZone, &c.lblDescription, &c.txtDescription};
        wrong += Overlaps({&c.fraRulesList, &c.FraRuleDetails}) + Overlaps(list) + Overlaps(details);
        for (const auto& controls : {list, details}) {
            for (const auto* control : controls) {
                wrong += Clipped(*control) + Cramped(*control);
            }
        }
        return wrong + Clipped(c.fraRulesList) + Clipped(c.FraRuleDetails);
    }
    /// The toolkit itself takes the inside of a box for the whole box.
    static wxRect PlaceOnScreen(const wxWindow& window) {
        return window.IsTopLevel()
                   ? window.GetScreenRect()
                   : wxRect(window.GetParent()->ClientToScreen(window.GetPosition()), window.GetSize());
    }
    static std::string Overlaps(const std::vector<const Control*>& controls) {
        std::string wrong;
        for (std::size_t i = 0; i < controls.size(); ++i) {
            for (std::size_t j = i + 1; j < controls.size(); ++j) {
                if (PlaceOnScreen(Real(*controls[i])).Intersects(PlaceOnScreen(Real(*controls[j])))) {
                    wrong += controls[i]->Name() + " lies on " + controls[j]->Name() + "; ";
                }
            }
        }
        return wrong;
    }
    static std::string Clipped(const Control& control) {
        const auto& real = Real(control);
        const wxRect place = PlaceOnScreen(real);
        for (const auto* outer = real.GetParent(); outer != nullptr; outer = outer->GetParent()) {
            if (!PlaceOnScreen(*outer).Contains(place)) {
                return control.Name() + " is clipped by " + outer->GetName().ToStdString() + "; ";
            }
        }
        return {};
    }
    std::string Cramped(const Control& control) {
        const wxSize size = Real(control).GetSize();
        wxSize needed = Real(control).GetBestSize();
        // How wide a text box or a list is to be is the layout's business.
        if (dynamic_cast<const TextBox*>(&control) != nullptr) {
            needed.x = 40;
        } else if (&control == &page().lstRulesList) {
            needed = wxSize(300, 120);
        }
        return size.x < needed.x || size.y < needed.y ? control.Name() + " is cramped; " : std::string();
    }
};

TEST_F(LayoutWindow, IsTidyAtFirst) {
    Play([&] { ExpectTidy(); });
}

TEST_F(LayoutWindow, IsTidyAtItsLeastSize) {
    Play([&] {
        Resize({586, 560});
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, IsTidyWhenItFillsTheScreen) {
    Play([&] {
        InWindow([&] { RealFrame().Maximize(); });
        WaitUntil("the window fills the screen", [&] {
            return program->form.State() == WindowState::Maximized && RealFrame().GetSize().x > 1500;
        });
        ExpectTidy();
        const auto listWidth = InWindow([&] { return RealList().GetSize().x; });
        EXPECT_GT(listWidth, 1200);
        InWindow([&] { RealFrame().Maximize(false); });
        WaitUntil("the window is as before", [&] {
            return program->form.State() == WindowState::Normal && RealFrame().GetSize().x < 900;
        });
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, IsTidyWithoutRules) {
    PutRules({});
    Play([&] { ExpectTidy(); });
}

TEST_F(LayoutWindow, IsTidyWhereTextIsTwiceAsLarge) {
    const EnvironmentVariable large("GDK_DPI_SCALE", "2");
    Play([&] {
        ExpectTidy();
        Resize({1173, 1120});
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, IsTidyWhereEverythingIsTwiceAsLarge) {
    const EnvironmentVariable large("GDK_SCALE", "2");
    Play([&] {
        ExpectTidy();
        Resize({586, 560});
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, CannotBeDraggedSmallerThanItsLeastSize) {
    Play([&] {
        const auto corner =
            InWindow([] { return RealFrame().GetStatusBar()->GetScreenRect().GetBottomRight(); });
        hands->Drag(corner - wxPoint(5, 5), corner - wxPoint(600, 600));
        WaitUntil("the window has become smaller", [] { return RealFrame().GetSize().x < 700; });
        WaitUntil("the window has its least size", [] { return RealFrame().GetSize() == wxSize(586, 560); });
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
        Resize({1000, 800});
        WaitUntil("the list is wider", [&] { return RealList().GetSize().x > listWidth; });
        ExpectTidy();
        EXPECT_EQ(InWindow([&] { return RealList().GetColumn(0)->GetWidth(); }), 200);
    });
}

} // namespace
} // namespace zy::test
