#pragma once

#include <optional>

#include "controls/Event.h"
#include "controls/GridCells.h"
#include "controls/Key.h"

namespace zy {

/// Cells from the upper left one to the lower right one, both included.
struct CellRange {
    Cell first;
    Cell last;

    bool Contains(const Cell& cell) const;
};

/// The current cell of a grid and the block that is selected with it, which reaches from the current cell to
/// the block's end. When rows go, the current cell stays inside those that are left.
class GridSelection {
  public:
    /// No cell is current. The cells must outlive the selection.
    explicit GridSelection(GridCells& cells);
    GridSelection(const GridSelection&) = delete;
    GridSelection& operator=(const GridSelection&) = delete;

    const Cell& Current() const { return current_; }
    int Row() const { return current_.row; } ///< -1 when no cell is current
    int Column() const { return current_.column; }
    /// Whether the current cell is one of the data, not of the header.
    bool IsInData() const { return current_.row >= 1; }
    const Cell& BlockEnd() const { return blockEnd_; }
    /// The block's cells in the data; its last row lies above the first one when there are none.
    CellRange Block() const;

    /// Makes a cell current; the block is that cell alone. Run-time error 9 for a cell outside the grid.
    void Select(int row, int column);
    /// Stretches the block from the current cell to this one. Run-time error 9 for a cell outside the grid.
    void SelectTo(int row, int column);
    /// Makes the first cell of the data current and stretches the block to the last one; nothing without
    /// data.
    void SelectAll();

    /// Moves the current cell, or with Shift the block's end, by an arrow key, Home, End or Enter, inside the
    /// data. Without a current cell the first one becomes current. False when the key moves nothing.
    bool MoveByKey(const KeyPress& press);
    /// Asks the view to scroll the current cell into sight, where it is the current one already, too.
    void Reveal() { revealAsked.Raise(); }
    /// One cell on or back, row by row. False at the ends of the data and without a current cell.
    bool MoveByTab(bool backwards);

    /// The current cell or the block is about to change or to be set anew.
    Event<> changing;
    /// Another cell is current, or none any more.
    Event<> currentCellChanged;
    /// The current cell or the block was set, be it to what it was.
    Event<> blockChanged;
    Event<> revealAsked;

  private:
    void SetCurrent(Cell cell);
    void KeepInside();
    std::optional<Cell> Beside(Cell cell, Key key) const;

    GridCells& cells_;
    Cell current_;
    Cell blockEnd_;
};

} // namespace zy
