#include <algorithm>

#include "basics/Int16.h"
#include "controls/CopiedCells.h"
#include "controls/Grid.h"

namespace zy {
namespace {

int CountRows(std::string_view text) {
    int rows = 0;
    for (CopiedCells cells(text); !cells.AtEnd();) {
        cells.Take();
        rows += cells.EndedRow() ? 1 : 0;
    }
    return rows;
}

} // namespace

Grid::Block Grid::Selected() const {
    const auto [top, bottom] = std::minmax({current_.row, blockEnd_.row});
    const auto [left, right] = std::minmax({current_.column, blockEnd_.column});
    return {.first = {std::max(top, 1), left}, .last = {bottom, right}};
}

std::string Grid::Copy() const {
    std::string text;
    const auto block = Selected();
    for (int row = block.first.row; row <= block.last.row; ++row) {
        for (int column = block.first.column; column <= block.last.column; ++column) {
            AppendCopied(text, Text(row, column));
            text += column < block.last.column ? "\t" : "\r\n";
        }
    }
    return text;
}

void Grid::ClearBlock() {
    const auto block = Selected();
    for (int row = block.first.row; row <= block.last.row; ++row) {
        for (int column = block.first.column; column <= block.last.column; ++column) {
            EditTo(row, column, "");
        }
    }
}

void Grid::Paste(std::string_view text) {
    const bool anywhere = current_.row >= 1 || (growsByPaste_ && rows_ == 1);
    if (!TakeFocus() || !anywhere || text.empty()) {
        return;
    }
    CommitEdit();
    const Cell first = current_.row >= 1 ? Selected().first : Cell{1, 0};
    MakeRoom(first.row + CountRows(text));
    const Cell last = PasteFrom(first, text);
    Select(first.row, first.column);
    SelectTo(last.row, last.column);
}

/// Adds what rows are missing, where the grid may grow.
void Grid::MakeRoom(int rows) {
    const int wanted = growsByPaste_ ? std::max(rows, rows_) : rows_;
    if (wanted - 1 > kMaxItems) {
        RaiseOverflow();
    }
    SetRows(wanted);
}

/// Returns the far corner of what was pasted.
Cell Grid::PasteFrom(Cell first, std::string_view text) {
    Cell last = first;
    CopiedCells cells(text);
    for (int row = first.row; row < rows_ && !cells.AtEnd(); ++row) {
        last.row = row;
        int column = first.column;
        do {
            const auto cell = cells.Take();
            if (column < columns_) {
                EditTo(row, column, cell);
                last.column = std::max(last.column, column);
            }
            ++column;
        } while (!cells.EndedRow());
    }
    return last;
}

} // namespace zy
