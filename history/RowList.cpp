#include "history/RowList.h"

namespace zy {

void AddRowsOf(const RowList& rows, int first, int count, RowTexts& copies) {
    for (int row = first; row < first + count; ++row) {
        for (int column = 0; column < rows.Columns(); ++column) {
            copies.Add(rows.Text(row, column));
        }
    }
}

RowTexts CopyOf(const RowList& rows, int first, int count) {
    RowTexts copies(rows.Columns());
    AddRowsOf(rows, first, count, copies);
    return copies;
}

} // namespace zy
