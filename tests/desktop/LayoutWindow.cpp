#include "LayoutWindow.h"

#include <wx/frame.h>

#include <chrono>
#include <cstdlib>

namespace zy::test {
namespace {

bool IsAbout(const wxSize& is, const wxSize& wanted) {
    constexpr int kBorders = 60;
    return std::abs(is.x - wanted.x) < kBorders && std::abs(is.y - wanted.y) < kBorders;
}

/// The toolkit itself takes the inside of a box for the whole box.
wxRect PlaceOnScreen(const wxWindow& window) {
    return window.IsTopLevel()
               ? window.GetScreenRect()
               : wxRect(window.GetParent()->ClientToScreen(window.GetPosition()), window.GetSize());
}

} // namespace

void LayoutWindow::Resize(const wxSize& size) {
    InWindow([&] { RealFrame().SetSize(size); });
    WaitUntil("the window has its new size", [&] { return IsAbout(RealFrame().GetSize(), size); });
}

void LayoutWindow::ExpectTidy() {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    std::string wrong;
    do {
        wrong = InWindow([&] { return Untidiness(); });
    } while (!wrong.empty() && std::chrono::steady_clock::now() < end);
    EXPECT_EQ(wrong, "");
}

std::string LayoutWindow::Untidiness() {
    std::string wrong;
    auto& c = page();
    const std::vector<const Control*> list{&c.lstRulesList,  &c.cmdUpDown,    &c.cmdAddList,
                                           &c.cmdDeleteList, &c.cmdSaveRules, &c.cmdHelpRules};
    const std::vector<const Control*> details{&c.lblCode, &c.txtCode, &c.lblMin,         &c.txtMin,
                                              &c.lblMax,  &c.txtMax,  &c.lblCondition,   &c.cboCondition,
                                              &c.lblZone, &c.cboZone, &c.lblDescription, &c.txtDescription};
    wrong += Overlaps({&c.fraRulesList, &c.FraRuleDetails}) + Overlaps(list) + Overlaps(details);
    for (const auto& controls : {list, details}) {
        for (const auto* control : controls) {
            wrong += Clipped(*control) + Cramped(*control);
        }
    }
    return wrong + Clipped(c.fraRulesList) + Clipped(c.FraRuleDetails);
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

std::string LayoutWindow::Clipped(const Control& control) {
    const auto& real = Real(control);
    const wxRect place = PlaceOnScreen(real);
    for (const auto* outer = real.GetParent(); outer != nullptr; outer = outer->GetParent()) {
        if (!PlaceOnScreen(*outer).Contains(place)) {
            return control.Name() + " is clipped by " + outer->GetName().ToStdString() + "; ";
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
