#include "desktop/GridTable.h"

#include <algorithm>

#include "desktop/ShownText.h"

namespace zy {
namespace {

/// More characters than a cell on any screen has room for.
constexpr std::size_t kMostDrawn = 1024;

} // namespace

GridTable::GridTable(const ViewContext& context, const GridCells& cells)
    : context_(context), cells_(cells), rows_(std::max(cells.Rows() - 1, 0)) {}

void GridTable::MatchRows() {
    const int before = rows_;
    rows_ = std::max(cells_.Rows() - 1, 0);
    if (rows_ > before) {
        wxGridTableMessage appended(this, wxGRIDTABLE_NOTIFY_ROWS_APPENDED, rows_ - before);
        GetView()->ProcessTableMessage(appended);
    } else if (rows_ < before) {
        wxGridTableMessage deleted(this, wxGRIDTABLE_NOTIFY_ROWS_DELETED, rows_, before - rows_);
        GetView()->ProcessTableMessage(deleted);
    }
}

void GridTable::SetValue(int /*row*/, int /*column*/, const wxString& /*value*/) {}

std::string_view GridTable::TextAt(int modelRow, int column) const {
    return modelRow < cells_.Rows() ? cells_.Text(modelRow, column) : std::string_view();
}

wxString GridTable::Shown(int modelRow, int column) const {
    return ToShown(context_.codePage, TextAt(modelRow, column).substr(0, kMostDrawn));
}

} // namespace zy
