#include "desktop/ListRows.h"

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

bool ListRows::SetValueByRow(const wxVariant& /*value*/, unsigned int /*row*/, unsigned int /*column*/) {
    return false;
}

} // namespace zy
