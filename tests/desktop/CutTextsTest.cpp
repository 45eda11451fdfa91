#include <wx/dataview.h>
#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/statusbr.h>

#include "NativeLook.h"
#include "RulesWindow.h"
#include "UnitsWindow.h"

namespace zy::test {
namespace {

const std::string kLong =
    "A description that is so long that no list on an ordinary screen has room for all of it "
    "and whoever wants to read its end has to point at it";

/// The tooltips of a window in which some texts are cut.
template <typename Window>
class WithTooltips : public Window {
  protected:
    /// Points at a text, on a way through it as any mouse has one, and waits until it is shown whole.
    void ExpectTip(const wxPoint& place, const std::string& text) {
        this->hands->PointAt(place + wxPoint(2, 0));
        WaitUntil("\"" + text + "\" is offered", [&] { return IsOffered(text); });
        this->hands->PointAt(place);
        WaitUntil("the tooltip says \"" + text + "\"", [&] { return TipOnScreen() == text; });
    }
    /// Goes on to another place, where the tooltip that is shown goes.
    void ExpectNoTip(const wxPoint& place) {
        this->hands->PointAt(place);
        WaitUntil("there is no tooltip", [&] { return !TipOnScreen(); });
    }

  private:
    /// Whether a window below the mouse has that tooltip, shown or not.
    static bool IsOffered(const std::string& text) {
        wxPoint place;
        const auto* below = wxFindWindowAtPointer(place);
        while (below != nullptr && below->GetToolTipText().utf8_string() != text) {
            below = below->GetParent();
        }
        return below != nullptr;
    }
};

class CutTextsInTheList : public WithTooltips<RulesWindow> {
  protected:
    // There is nothing else to be said of the first two: more points are to count than there are.
    CutTextsInTheList() {
        PutRules({"R1|2|1|>|UCL|" + kLong, "R2|4|3|<=|LWL|Short", "R3|2|3|<=|LWL|" + kLong});
    }

    wxPoint PlaceIn(int item, unsigned column) {
        return InWindow([&] {
            const wxDataViewItem row(wxUIntToPtr(static_cast<unsigned>(item)));
            const wxRect place = RealList().GetItemRect(row, RealList().GetColumn(column));
            return RealList().ClientToScreen(place.GetPosition() + wxSize(6, place.height / 2));
        });
    }
    void Narrow(unsigned column) {
        constexpr int kNarrow = 14;
        const wxDataViewItem row(wxUIntToPtr(1U));
        auto* made = InWindow([&] { return RealList().GetColumn(column); });
        InWindow([&] { made->SetWidth(kNarrow); });
        WaitUntil("the column is narrow", [&] { return RealList().GetItemRect(row, made).width <= kNarrow; });
    }
    /// The header stands above the first item.
    wxPoint PlaceOfHeader(unsigned column) { return PlaceIn(1, column) - wxPoint(0, 22); }
};

TEST_F(CutTextsInTheList, AreShownWholeByATooltip) {
    Play([&] {
        ExpectTip(PlaceIn(1, 5), kLong);
        ExpectNoTip(PlaceIn(2, 5));
        ExpectTip(PlaceIn(1, 5), kLong);
        ExpectNoTip(PlaceIn(1, 0));
    });
}

TEST_F(CutTextsInTheList, StandAboveWhatTheRuleSays) {
    const std::string sentence = "2 of 3 points in a row on or below the lower warning limit (LWL)";
    Play([&] {
        ExpectTip(PlaceIn(3, 0), sentence);
        ExpectTip(PlaceIn(3, 5), kLong + "\n" + sentence);
    });
}

TEST_F(CutTextsInTheList, AreShownWholeWhereAPersonHasMadeTheColumnNarrow) {
    Play([&] {
        Narrow(4);
        ExpectTip(PlaceIn(2, 4), "LWL");
    });
}

#ifndef _WIN32
// The header of a list on Windows is the system's own, which shows none.
TEST_F(CutTextsInTheList, OfTheHeaderAreShownWholeToo) {
    Play([&] {
        Narrow(0);
        hands->PointAt(PlaceOfHeader(0));
        WaitUntil("the tooltip says all of it", [] { return TipOnScreen() == "Rule ID"; });
        ExpectNoTip(PlaceOfHeader(1));
    });
}
#endif

TEST_F(CutTextsInTheList, OfTheStatusBarAreShownWholeToo) {
    Play([&] {
        InWindow([&] { program->form.zyStatusBar.SetText(kLong + kLong); });
        hands->PointAt(PlaceOf(program->form.zyStatusBar)); // the toolkit's own, which it does not tell of
        WaitUntil("the tooltip says all of it", [] { return TipOnScreen() == kLong + kLong; });
    });
}

class CutTextsInTheGrid : public WithTooltips<UnitsWindow> {
  protected:
    CutTextsInTheGrid() { PutUnits({"Kilograms,kg", kLong + ",long"}); }

    wxPoint PlaceOfHeader(int column) {
        const wxRect cell = RectOfCell(1, column);
        return {cell.x + 6, GridWindow::PlaceOfHeader().y};
    }
};

TEST_F(CutTextsInTheGrid, AreShownWholeByATooltip) {
    Play([&] {
        ExpectTip(RectOfCell(2, 1).GetPosition() + wxPoint(6, 6), kLong);
        ExpectNoTip(RectOfCell(1, 1).GetPosition() + wxPoint(6, 6));
        ExpectTip(RectOfCell(2, 1).GetPosition() + wxPoint(6, 6), kLong);
        ExpectNoTip(RectOfCell(2, 0).GetPosition() + wxPoint(6, 6));
    });
}

TEST_F(CutTextsInTheGrid, OfTheHeaderAreShownWholeToo) {
    Play([&] {
        InWindow([&] { RealGrid().SetColSize(0, 16); });
        ExpectTip(PlaceOfHeader(0), "Unit");
        ExpectNoTip(PlaceOfHeader(1));
    });
}

} // namespace
} // namespace zy::test
