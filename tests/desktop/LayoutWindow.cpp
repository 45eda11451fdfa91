#include "LayoutWindow.h"

#include <wx/frame.h>
#include <wx/statusbr.h>

#include <chrono>

#include "desktop/Native.h"
#include "desktop/Scale.h"

namespace zy::test {
namespace {

/// The toolkit itself takes the inside of a box for the whole box.
wxRect PlaceOnScreen(const wxWindow& window) {
    return window.IsTopLevel()
               ? window.GetScreenRect()
               : wxRect(window.GetParent()->ClientToScreen(window.GetPosition()), window.GetSize());
}

} // namespace

wxSize LayoutWindow::LeastSize() {
    const double twipsPerPixel = Scale(DotsPerInch()).TwipsPerPixel();
    return {static_cast<int>(8800 / twipsPerPixel), static_cast<int>(8400 / twipsPerPixel)};
}

void LayoutWindow::ExpectNothingWrong(const std::function<std::string()>& describe) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    std::string wrong;
    do {
        wrong = InWindow(describe);
    } while (!wrong.empty() && std::chrono::steady_clock::now() < end);
    EXPECT_EQ(wrong, "");
}

void LayoutWindow::ExpectTidy() {
    ExpectNothingWrong([&] { return Crowding() + Clipping(); });
}

void LayoutWindow::ExpectUncrowded() {
    ExpectNothingWrong([&] { return Crowding(); });
}

void LayoutWindow::ExpectSeen(const Control& control) {
    ExpectNothingWrong([&] { return Clipped(control); });
}

void LayoutWindow::ExpectStatusBarSeen() {
    ExpectNothingWrong([] {
        const bool seen = RealFrame().GetScreenRect().Contains(RealFrame().GetStatusBar()->GetScreenRect());
        return std::string(seen ? "" : "the status bar lies outside of the window");
    });
}

void LayoutWindow::NeedRoom(const Size& least) {
    InWindow([&] {
        program->form.leastInnerSize = [least] { return least; };
        RealFrame().SetSize(RealFrame().GetSize() + wxSize(10, 10)); // which lays the page out
    });
    WaitUntil("the page has the room that it needs", [&] {
        const Size& size = program->form.InnerSize();
        return size.width >= least.width && size.height >= least.height;
    });
}

wxScrolledWindow& LayoutWindow::PageArea() {
    return dynamic_cast<wxScrolledWindow&>(*Real(program->form.fraRules).GetParent()->GetParent());
}

wxPoint LayoutWindow::ScrollUntilTheTopOfItIsSeen(const Control& control) {
    constexpr int kSeen = 12;
    return InWindow([&] {
        auto& area = PageArea();
        const wxRect place = PlaceOnScreen(Real(control));
        const wxRect room = PlaceOnScreen(area);
        int step = 0;
        area.GetScrollPixelsPerUnit(nullptr, &step);
        const int beyond = room.GetBottom() - place.GetTop() - kSeen;
        area.Scroll((place.x - room.x) / step, -beyond / step);
        return PlaceOnScreen(Real(control)).GetTopLeft() + wxPoint(kSeen, kSeen / 2);
    });
}

std::string LayoutWindow::Crowding() {
    std::string wrong = Overlaps({&page().fraRulesList, &page().FraRuleDetails});
    for (const auto& controls : {ListControls(), DetailControls()}) {
        wrong += Overlaps(controls);
        for (const auto* control : controls) {
            wrong += Cramped(*control);
        }
    }
    return wrong;
}

std::string LayoutWindow::Clipping() {
    std::string wrong = Clipped(page().fraRulesList) + Clipped(page().FraRuleDetails);
    for (const auto& controls : {ListControls(), DetailControls()}) {
        for (const auto* control : controls) {
            wrong += Clipped(*control);
        }
    }
    return wrong;
}

std::vector<const Control*> LayoutWindow::ListControls() {
    auto& c = page();
    return {&c.lstRulesList, &c.cmdUpDown, &c.cmdAddList, &c.cmdDeleteList, &c.cmdSaveRules, &c.cmdHelpRules};
}

std::vector<const Control*> LayoutWindow::DetailControls() {
    auto& c = page();
    return {&c.lblCode, &c.txtCode,      &c.lblMin,       &c.txtMin,  &c.lblMax,         &c.txtMax,
            &c.lblZone, &c.lblCondition, &c.cboCondition, &c.cboZone, &c.lblDescription, &c.txtDescription};
}

std::string LayoutWindow::Overlaps(const std::vector<const Control*>& controls) {
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

std::string LayoutWindow::Text(const wxRect& place) {
    return wxString::Format("%d,%d %dx%d", place.x, place.y, place.width, place.height).ToStdString();
}

std::string LayoutWindow::Clipped(const Control& control) {
    const auto& real = Real(control);
    const wxRect place = PlaceOnScreen(real);
    for (const auto* outer = real.GetParent(); outer != nullptr; outer = outer->GetParent()) {
        if (!PlaceOnScreen(*outer).Contains(place)) {
            return control.Name() + " at " + Text(place) + " is clipped by " +
                   outer->GetName().ToStdString() + " at " + Text(PlaceOnScreen(*outer)) + "; ";
        }
    }
    return {};
}

std::string LayoutWindow::Cramped(const Control& control) {
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

} // namespace zy::test
