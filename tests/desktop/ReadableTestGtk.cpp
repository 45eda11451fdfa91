// Whether the texts of the windows can be read in the colours that a desktop gives them.

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/dataview.h>
#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>

#include "PictureContrast.h"
#include "RulesWindow.h"
#include "ScreenPicture.h"
#include "UnitsWindow.h"
#include "desktop/Contrast.h"

namespace zy::test {
namespace {

template <typename EditorWindow>
class Readable : public EditorWindow {
  protected:
    /// Texts stand out from what is around them, for once the window is painted.
    static void ExpectReadable(const std::string& what, const wxRect& onScreen) {
        constexpr int kWithoutBorder = 3;
        WaitUntil(what + " can be read", [inside = wxRect(onScreen).Deflate(kWithoutBorder, kWithoutBorder)] {
            return TextContrast(PictureOnScreen(inside)) >= kReadable;
        });
    }
    void ExpectReadableTexts() {
        for (const auto& [what, place] : InWindow([this] { return Texts(this->RealFrame()); })) {
            ExpectReadable(what, place);
        }
    }

  private:
    using Places = std::vector<std::pair<std::string, wxRect>>;

    /// The texts of buttons, labels, fields and the status bar that can be used; what is disabled may be
    /// pale.
    static Places Texts(const wxWindow& window) {
        Places texts;
        for (const auto* child : window.GetChildren()) {
            if (child->IsShown() && child->IsEnabled()) {
                const auto below = Texts(*child);
                texts.insert(texts.end(), below.begin(), below.end());
                if (ShowsText(*child)) {
                    texts.emplace_back(child->GetName().utf8_string(), child->GetScreenRect());
                }
            }
        }
        return texts;
    }
    static bool ShowsText(const wxWindow& window) {
        if (dynamic_cast<const wxStaticText*>(&window) != nullptr) {
            return !window.GetLabel().empty();
        }
        return dynamic_cast<const wxButton*>(&window) != nullptr ||
               dynamic_cast<const wxChoice*>(&window) != nullptr ||
               dynamic_cast<const wxTextCtrl*>(&window) != nullptr ||
               dynamic_cast<const wxStatusBar*>(&window) != nullptr;
    }
};

class ReadableRules : public Readable<RulesWindow> {
  protected:
    ReadableRules() { PutRules(ThreeRules()); }

    /// The part of an item in a column; of the header for item 0.
    wxRect PlaceOfText(int item, unsigned column) {
        const wxDataViewItem first(wxUIntToPtr(1U));
        auto* shown = RealList().GetColumn(column);
        wxRect place = RealList().GetItemRect(
            item == 0 ? first : wxDataViewItem(wxUIntToPtr(static_cast<unsigned>(item))), shown);
        if (item == 0) {
            place.y -= place.height;
        }
        return {RealList().ClientToScreen(place.GetPosition()), place.GetSize()};
    }
};

class ReadableUnits : public Readable<UnitsWindow> {
  protected:
    ReadableUnits() { PutUnits(ThreeUnits()); }

    /// The header of the first column.
    wxRect PlaceOfTitle() {
        return InWindow([&] {
            const auto headers = RealGrid().GetGridColLabelWindow()->GetScreenRect();
            return wxRect(headers.GetPosition(), wxSize(RealGrid().GetColSize(0), headers.height));
        });
    }
};

TEST_F(ReadableRules, AreAllTexts) {
    Play([&] {
        ClickRow(2);
        WaitForSelection(2);
        ExpectReadableTexts();
        for (int item = 0; item <= 2; ++item) {
            ExpectReadable("item " + std::to_string(item), InWindow([&] { return PlaceOfText(item, 5); }));
        }
    });
}

TEST_F(ReadableUnits, AreAllTexts) {
    Play([&] {
        ClickCell(2, 1);
        Press(WXK_DOWN, wxMOD_SHIFT);
        WaitUntil("two cells are selected", [&] { return grid().selection.BlockEnd() == Cell{3, 1}; });
        ExpectReadableTexts();
        for (int row = 0; row <= 3; ++row) {
            const auto place = row == 0 ? PlaceOfTitle() : RectOfCell(row, 1);
            ExpectReadable("row " + std::to_string(row), place);
        }
    });
}

} // namespace
} // namespace zy::test
