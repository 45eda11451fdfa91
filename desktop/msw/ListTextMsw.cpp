#include "desktop/ListText.h"

#include <wx/dataview.h>
#include <wx/dc.h>
#include <wx/renderer.h>

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

} // namespace

wxDataViewTextRenderer* MakeListText() {
    return new ListText;
}

} // namespace zy
