#include "controls/CellBlock.h"

#include <algorithm>

#include "basics/Int16.h"
#include "basics/Text.h"
#include "controls/CopiedCells.h"

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

CellBlock::CellBlock(GridCells& cells, const GridColumns& columns, GridSelection& selection,
                     CellEditor& editor)
    : cells_(cells), columns_(columns), selection_(selection), editor_(editor) {}

std::string CellBlock::Copy() const {
    std::string text;
    const auto block = selection_.Block();
    for (int row = block.first.row; row <= block.last.row; ++row) {
        for (int column = block.first.column; column <= block.last.column; ++column) {
            AppendCopied(text, cells_.Text(row, column));
            text += column < block.last.column ? "\t" : kLineEnd;
        }
    }
    return text;
}

void CellBlock::Clear() {
    cells_.Together("Clear Cells", [this] { EmptyCells(); });
}

void CellBlock::EmptyCells() {
    const auto block = selection_.Block();
    for (int row = block.first.row; row <= block.last.row; ++row) {
        for (int column = block.first.column; column <= block.last.column; ++column) {
            editor_.Overwrite(row, column, "");
        }
    }
}

void CellBlock::Paste(std::string_view text) {
    editor_.Commit();
    if (selection_.IsInData()) {
        PasteInto(selection_.Block().first, text);
    } else if (growsByPaste_ && cells_.Rows() == 1) {
        PasteInto({1, 0}, text);
    } else {
        PasteReport nothing;
        nothing.rowsLeftOut = CountRows(text);
        pasted.Raise(nothing);
    }
}

void CellBlock::PasteInto(Cell first, std::string_view text) {
    const int wanted = RowsAfterPaste(first.row + CountRows(text));
    PasteReport report;
    report.tooLong = wanted - 1 > kMaxItems;
    if (!report.tooLong) {
        cells_.Together("Paste", [&] {
            cells_.SetRows(wanted);
            PasteRows(first, text, report);
        });
    }
    pasted.Raise(report);
}

/// As many as are there and as are missing, where the grid may grow.
int CellBlock::RowsAfterPaste(int rows) const {
    return growsByPaste_ ? std::max(rows, cells_.Rows()) : cells_.Rows();
}

void CellBlock::PasteRows(Cell first, std::string_view text, PasteReport& report) {
    Cell last = first;
    CopiedCells cells(text);
    for (int row = first.row; row < cells_.Rows() && !cells.AtEnd(); ++row) {
        last.row = row;
        int column = first.column;
        do {
            const auto cell = cells.Take();
            if (PasteCell({row, column}, cell, report)) {
                last.column = std::max(last.column, column);
            }
            ++column;
        } while (!cells.EndedRow());
        report.columnsLeftOut = std::max(report.columnsLeftOut, column - cells_.Columns());
    }
    report.rowsLeftOut = CountRows(cells.Rest());
    selection_.Select(first.row, first.column);
    selection_.SelectTo(last.row, last.column);
}

/// False when the grid has no such column.
bool CellBlock::PasteCell(Cell cell, std::string_view text, PasteReport& report) {
    if (cell.column >= cells_.Columns()) {
        return false;
    }
    if (columns_.List(cell.column).Takes(text)) {
        editor_.Overwrite(cell.row, cell.column, text);
    } else if (report.cellsRefused++ == 0) {
        report.firstRefused = cell;
        report.textRefused = text;
    }
    return true;
}

} // namespace zy
