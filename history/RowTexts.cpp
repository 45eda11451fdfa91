#include "history/RowTexts.h"

namespace zy {

std::string_view RowTexts::Text(int row, int column) const {
    const auto cell = static_cast<std::size_t>(row) * columns_ + static_cast<std::size_t>(column);
    const std::size_t start = cell == 0 ? 0 : ends_.at(cell - 1);
    return std::string_view(texts_).substr(start, ends_.at(cell) - start);
}

void RowTexts::Add(std::string_view text) {
    texts_ += text;
    ends_.push_back(texts_.size());
}

void RowTexts::AddRows(const RowTexts& others, int first, int count) {
    for (int row = first; row < first + count; ++row) {
        for (int column = 0; column < Columns(); ++column) {
            Add(others.Text(row, column));
        }
    }
}

std::size_t RowTexts::Bytes() const {
    return texts_.capacity() + ends_.capacity() * sizeof(std::size_t);
}

bool HaveSameTexts(const RowTexts& rows, int row, const RowTexts& others, int other) {
    int column = 0;
    while (column < rows.Columns() && rows.Text(row, column) == others.Text(other, column)) {
        ++column;
    }
    return column == rows.Columns();
}

} // namespace zy
