#include <algorithm>

#include "basics/Int16.h"
#include "basics/Text.h"
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
            text += column < block.last.column ? "\t" : kLineEnd;
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
    if (!TakeFocus() || text.empty()) {
        return;
    }
    CommitEdit();
    if (current_.row >= 1) {
        PasteInto(Selected().first, text);
    } else if (growsByPaste_ && rows_ == 1) {
        PasteInto({1, 0}, text);
    } else {
        PasteReport nothing;
        nothing.rowsLeftOut = CountRows(text);
        pasted.Raise(nothing);
    }
}

void Grid::PasteInto(Cell first, std::string_view text) {
    const int wanted = RowsAfterPaste(first.row + CountRows(text));
    PasteReport report;
    report.tooLong = wanted - 1 > kMaxItems;
    if (!report.tooLong) {
        SetRows(wanted);
        PasteRows(first, text, report);
    }
    pasted.Raise(report);
}

/// As many as are there and as are missing, where the grid may grow.
int Grid::RowsAfterPaste(int rows) const {
    return growsByPaste_ ? std::max(rows, rows_) : rows_;
}

void Grid::PasteRows(Cell first, std::string_view text, PasteReport& report) {
    Cell last = first;
    CopiedCells cells(text);
    for (int row = first.row; row < rows_ && !cells.AtEnd(); ++row) {
        last.row = row;
        int column = first.column;
        do {
            const auto cell = cells.Take();
            if (PasteCell({row, column}, cell, report)) {
                last.column = std::max(last.column, column);
            }
            ++column;
        } while (!cells.EndedRow());
        report.columnsLeftOut = std::max(report.columnsLeftOut, column - columns_);
    }
    report.rowsLeftOut = CountRows(cells.Rest());
    Select(first.row, first.column);
    SelectTo(last.row, last.column);
}

/// False when the grid has no such column.
bool Grid::PasteCell(Cell cell, std::string_view text, PasteReport& report) {
    if (cell.column >= columns_) {
        return false;
    }
    if (columnLists_[static_cast<std::size_t>(cell.column)].Takes(text)) {
        EditTo(cell.row, cell.column, text);
    } else if (report.cellsRefused++ == 0) {
        report.firstRefused = cell;
        report.textRefused = text;
    }
    return true;
}

} // namespace zy
