#pragma once

#include <string>
#include <string_view>

#include "controls/CellEditor.h"
#include "controls/Event.h"
#include "controls/GridCells.h"
#include "controls/GridColumns.h"
#include "controls/GridSelection.h"

namespace zy {

/// What of a pasted text a grid did not take.
struct PasteReport {
    /// The list would get longer than it can be: nothing was pasted.
    bool tooLong = false;
    int rowsLeftOut = 0;
    int columnsLeftOut = 0;
    /// Texts that the list of their cell does not hold; these cells are as they were.
    int cellsRefused = 0;
    Cell firstRefused;
    std::string textRefused; ///< for the first one
};

/// The selected block of a grid as a whole: it is copied, emptied, and pasted from its first cell on. Every
/// cell that is emptied or pasted into counts as an edit.
class CellBlock {
  public:
    /// The grid's other parts must outlive it.
    CellBlock(GridCells& cells, const GridColumns& columns, GridSelection& selection, CellEditor& editor);
    CellBlock(const CellBlock&) = delete;
    CellBlock& operator=(const CellBlock&) = delete;

    /// The block as a spreadsheet copies it: cells separated by TAB, rows ended by CR LF. Empty without a
    /// current cell.
    std::string Copy() const;
    void Clear();
    /// Pastes such a text from the block's first cell on, into an empty grid from its first cell on, and
    /// selects what it pasted. An open edit is committed first. Columns beyond the last are left out, rows
    /// beyond the last are added where the grid may grow and left out elsewhere. A cell with a drop-down list
    /// takes an item of it or nothing. Of a text that would make more than 32,767 rows nothing is pasted.
    void Paste(std::string_view text);
    /// Whether a paste may add rows; it may not until this is called.
    void SetGrowsByPaste(bool grows) { growsByPaste_ = grows; }

    /// A text was pasted, behind the events of its edits.
    Event<const PasteReport&> pasted;

  private:
    void EmptyCells();
    int RowsAfterPaste(int rows) const;
    void PasteInto(Cell first, std::string_view text);
    void PasteRows(Cell first, std::string_view text, PasteReport& report);
    bool PasteCell(Cell cell, std::string_view text, PasteReport& report);

    GridCells& cells_;
    const GridColumns& columns_;
    GridSelection& selection_;
    CellEditor& editor_;
    bool growsByPaste_ = false;
};

} // namespace zy
