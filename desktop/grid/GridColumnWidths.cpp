#include "desktop/GridColumnWidths.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "desktop/ShownText.h"

namespace zy {
namespace {

// The narrowest and the widest that a column is fitted to, in twips. The user types into the one; of a text
// that is longer than the other the rest is reached in its editor.
constexpr int kNarrowestFit = GridColumns::kDesignedWidth;
constexpr int kWidestFit = 7200;

/// The longest texts in a column's data rows, without those that are equal.
std::vector<std::string_view> LongestTexts(const GridCells& cells, int column) {
    constexpr std::ptrdiff_t kMostMeasured = 32;
    const auto reader = cells.Read();
    std::vector<std::string_view> texts;
    texts.reserve(static_cast<std::size_t>(cells.Rows()));
    for (int row = 1; row < cells.Rows(); ++row) {
        texts.push_back(reader.Text(row, column));
    }
    const auto end = texts.begin() + std::min(kMostMeasured, std::ssize(texts));
    std::nth_element(texts.begin(), end, texts.end(),
                     [](auto one, auto other) { return one.size() > other.size(); });
    std::sort(texts.begin(), end);
    texts.erase(std::unique(texts.begin(), end), texts.end());
    return texts;
}

} // namespace

GridColumnWidths::GridColumnWidths(const ViewContext& context, const GridCells& cells, GridColumns& columns,
                                   GridWidget& grid)
    : context_(context), cells_(cells), columns_(columns), grid_(grid), fitFrom_(columns.FittedFrom()),
      fit_(columns.fit.Observe([this](int first) { fitFrom_ = first; })),
      widthChanged_(columns.widthChanged.Observe([this] { Show(); })) {
    grid_.Bind(wxEVT_GRID_COL_SIZE, [this](wxGridSizeEvent& event) {
        context_.gate.Act([&] { TakeWidth(event.GetRowOrCol()); });
    });
    // The toolkit would measure every row.
    grid_.Bind(wxEVT_GRID_COL_AUTO_SIZE, [this](wxGridSizeEvent& event) {
        context_.gate.Act([&] { Fit(event.GetRowOrCol(), event.GetRowOrCol() + 1); });
    });
    grid_.GetGridWindow()->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        Show();
    });
}

void GridColumnWidths::ShowFit() {
    if (fitFrom_ < cells_.Columns() && cells_.Rows() > 0) {
        Fit(std::exchange(fitFrom_, cells_.Columns()), cells_.Columns());
    }
}

void GridColumnWidths::Show() {
    for (int column = 0; column < cells_.Columns(); ++column) {
        const int width = PixelsOf(column);
        if (grid_.GetColSize(column) != width) {
            grid_.SetColSize(column, width);
        }
    }
}

void GridColumnWidths::Fit(int first, int end) {
    for (int column = first; column < end; ++column) {
        columns_.SetWidth(
            column, std::clamp(context_.scale.ToTwips(NeededPixels(column)), kNarrowestFit, kWidestFit));
    }
}

int GridColumnWidths::NeededPixels(int column) const {
    int width = TextPixels(cells_.Text(0, column), grid_.GetLabelFont());
    for (const auto text : LongestTexts(cells_, column)) {
        width = std::max(width, TextPixels(text, grid_.GetDefaultCellFont()));
    }
    return width + 2 * grid_.CellMargin() + 1;
}

int GridColumnWidths::TextPixels(std::string_view text, const wxFont& font) const {
    // A longer text is wider than any column is made.
    constexpr std::size_t kMostMeasured = 1024;
    int width = 0;
    int height = 0;
    grid_.GetTextExtent(ToShown(context_.codePage, text.substr(0, kMostMeasured)), &width, &height, nullptr,
                        nullptr, &font);
    return width;
}

void GridColumnWidths::TakeWidth(int column) {
    if (grid_.GetColSize(column) != PixelsOf(column)) {
        columns_.SetWidth(column, context_.scale.ToTwips(grid_.GetColSize(column)));
    }
    Show();
}

int GridColumnWidths::PixelsOf(int column) const {
    const int width = context_.scale.ToPixels(columns_.Width(column));
    if (column + 1 < cells_.Columns()) {
        return width;
    }
    int left = grid_.GetGridWindow()->GetClientSize().x;
    for (int other = 0; other < column; ++other) {
        left -= context_.scale.ToPixels(columns_.Width(other));
    }
    return std::max(width, left);
}

} // namespace zy
