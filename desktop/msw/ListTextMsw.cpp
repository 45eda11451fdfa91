#include "desktop/ListText.h"

#include <wx/dataview.h>
#include <wx/dc.h>
#include <wx/headerctrl.h>
#include <wx/renderer.h>

#include "desktop/CutTexts.h"

namespace zy {
namespace {

/// The toolkit's own draws them as those of a disabled list as soon as a box disables the window.
class ListText final : public wxDataViewTextRenderer {
  protected:
    void RenderText(const wxString& text, int indent, wxRect place, wxDC* context, int state) override {
        place.x += indent;
        place.width -= indent;
        const int flags = (state & wxDATAVIEW_CELL_SELECTED) != 0 ? int{wxCONTROL_SELECTED} : 0;
        wxRendererNative::Get().DrawItemText(GetView(), *context, text, place, GetEffectiveAlignment(), flags,
                                             GetEllipsizeMode());
    }
};

/// The room that the system leaves left and right of a header's text.
constexpr int kHeaderMargin = 6;

wxString CutHeaderAt(const wxDataViewCtrl& list, const wxHeaderCtrl& header, int place) {
    for (unsigned i = 0; i < list.GetColumnCount(); ++i) {
        const auto& column = *list.GetColumn(i);
        const int width = column.GetWidth();
        if (place < width) {
            const int needed = header.GetTextExtent(column.GetTitle()).x + 2 * header.FromDIP(kHeaderMargin);
            return needed > width ? column.GetTitle() : wxString();
        }
        place -= width;
    }
    return {};
}

} // namespace

wxDataViewTextRenderer* MakeListText() {
    return new ListText;
}

int MarginOfListText() {
    return 0;
}

void ShowCutHeaders(wxDataViewCtrl& list) {
    auto& header = *list.GenericGetHeader();
    ShowCutTexts(header, [&list, &header](const wxPoint& onScreen) {
        // The header begins where the rows do, however far they are scrolled.
        const int scrolled = list.GetMainWindow()->GetPosition().x - list.GetScrollPos(wxHORIZONTAL);
        return CutHeaderAt(list, header, header.ScreenToClient(onScreen).x - scrolled);
    });
}

} // namespace zy
