#include "desktop/ListRows.h"

#include <wx/settings.h>

#include "desktop/ShownText.h"

namespace zy {

ListRows::ListRows(const ViewContext& context, const ListView& list)
    : wxDataViewVirtualListModel(static_cast<unsigned>(list.Count())), context_(context), list_(list) {}

void ListRows::MatchCount() {
    const auto count = static_cast<unsigned>(list_.Count());
    if (count == GetCount() + 1) {
        RowAppended();
    } else if (count != GetCount()) {
        Reset(count);
    }
}

void ListRows::GetValueByRow(wxVariant& value, unsigned int row, unsigned int column) const {
    context_.gate.Answer([&] {
        const auto text = list_.CellText(static_cast<int>(row) + 1, static_cast<int>(column));
        value = ToShown(context_.codePage, text);
    });
}

bool ListRows::GetAttrByRow(unsigned int row, unsigned int /*column*/, wxDataViewItemAttr& look) const {
    bool isGrey = false;
    if (list_.isGrey) {
        context_.gate.Answer([&] { isGrey = list_.isGrey(static_cast<int>(row) + 1); });
    }
    if (isGrey) {
        look.SetColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
        look.SetItalic(true);
    }
    return isGrey;
}

bool ListRows::SetValueByRow(const wxVariant& /*value*/, unsigned int /*row*/, unsigned int /*column*/) {
    return false;
}

} // namespace zy
