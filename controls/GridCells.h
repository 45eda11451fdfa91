#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "basics/RuntimeError.h"
#include "basics/SharedText.h"
#include "controls/CellTexts.h"
#include "controls/Event.h"

namespace zy {

/// A cell by its row and column, both counted from 0.
struct Cell {
    int row = -1;
    int column = 0;

    friend bool operator==(const Cell&, const Cell&) = default;
};

/// Reads one cell of a grid after another, as they are until one of them changes. Whether there is such a
/// cell is not looked after.
class GridReader {
  public:
    GridReader(CellTexts::Reader cells, std::size_t columns) : cells_(cells), columns_(columns) {}

    std::string_view Text(int row, int column) const {
        return cells_[static_cast<std::size_t>(row) * columns_ + static_cast<std::size_t>(column)];
    }

  private:
    CellTexts::Reader cells_;
    std::size_t columns_;
};

/// The texts of a grid, row by row. Row 0 is the header; the rows below it are the data.
///
/// A row or column outside the grid is run-time error 9.
class GridCells {
  public:
    /// The header row alone, its cells empty.
    explicit GridCells(int columns);
    GridCells(const GridCells&) = delete;
    GridCells& operator=(const GridCells&) = delete;

    /// How many there are, the header counted.
    int Rows() const { return rows_; }
    int Columns() const { return columns_; }
    /// Run-time error 9 for a cell outside the grid, else nothing.
    void Require(int row, int column) const { static_cast<void>(Index(row, column)); }

    /// Adds empty rows at the end or cuts rows off it; 0 cuts off the header too.
    void SetRows(int rows);
    /// Appends a row whose cells are joined by TAB. Cells that the text lacks are empty, more of them than
    /// there are columns are left out.
    void AddItem(std::string_view tabJoinedCells);
    /// Appends rows as `AddItem` would one by one, all in one step. `appendItem` appends the joined cells of
    /// each to a text, counted from 0.
    using AppendItem = std::function<void(std::size_t item, std::string& text)>;
    void AddItems(std::size_t count, const AppendItem& appendItem);
    /// Appends many rows whose cells are parts of one text. The grid holds on to the text, so that nothing is
    /// copied; `split` finds the parts and appends them, whole rows. When it throws, nothing is appended.
    void AddRowsOf(SharedText text, const CellTexts::Split& split);
    /// Removes a row; those below it move up.
    void RemoveItem(int row);
    /// Puts `others` rows in place of `count` rows from `first` on, with the texts that `textOf` gives for
    /// their cells, counted from 0. Run-time error 9 when there are no such rows.
    using TextOf = std::function<std::string_view(int row, int column)>;
    void ReplaceRows(int first, int count, int others, const TextOf& textOf);
    /// While off, `rowsChanged` is held back; switching on raises it, once. For filling a grid row by row.
    void SetRedraw(bool on);

    /// Stays what it was until rows are set, removed or pasted, also when the cell's text is changed.
    std::string_view Text(int row, int column) const { return cells_[Index(row, column)]; }
    /// For going through many rows.
    GridReader Read() const { return {cells_.Read(), FirstCellOf(1)}; }
    /// The bytes of all cells' texts.
    std::size_t TextsSize() const { return cells_.TotalSize(); }
    /// Copies of the texts of the header, which must be there.
    std::vector<std::string> Headers() const;
    /// Raises `cellChanged` when the text differs from the one held.
    void SetText(int row, int column, std::string_view text);

    /// Makes changes that are one deed of the user's, such as a paste. One that repeats goes on with the one
    /// before it.
    enum class Repeats { No, Yes };
    void Together(std::string_view deed, const std::function<void()>& changes, Repeats repeats = Repeats::No);

    /// Rows are set or removed, with the rows as they were. Appending rows does not raise it.
    Event<> resizing;
    /// Rows were set or removed, also while redraw is off.
    Event<> resized;
    /// Rows came or went in any way: what is shown of them is out of date.
    Event<> rowsChanged;
    /// The text of this cell, by row and column, is another one.
    Event<int, int> cellChanged;
    /// Rows are about to change, texts or rows: from the first one on, so many go and so many come in their
    /// place. Behind `resizing`, which may change other rows.
    Event<int, int, int> changing;
    /// That change is done, behind all other events of it.
    Event<> changed;
    /// A deed of several changes begins, with its name, or ends.
    Event<std::string_view, Repeats> deedBegun;
    Event<> deedEnded;

  private:
    std::size_t Index(int row, int column) const {
        if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
            RaiseSubscriptOutOfRange();
        }
        return FirstCellOf(row) + static_cast<std::size_t>(column);
    }
    std::size_t FirstCellOf(int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_);
    }
    void AnnounceRows();
    void ChangeCount(int first, int count, int others);
    void PutText(int row, int column, std::string_view text);

    int columns_;
    int rows_ = 1;
    CellTexts cells_;
    bool redraw_ = true;
};

} // namespace zy
