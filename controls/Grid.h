#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "basics/RuntimeError.h"
#include "controls/CellList.h"
#include "controls/CellTexts.h"
#include "controls/Control.h"
#include "controls/Key.h"

namespace zy {

/// A cell by its row and column, both counted from 0.
struct Cell {
    int row = -1;
    int column = 0;

    friend bool operator==(const Cell&, const Cell&) = default;
};

/// A button of the mouse, by the number that the product's grids give it.
enum class MouseButton { Left = 1, Right = 2 };

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

/// A table of editable texts with one fixed header row, row 0.
///
/// The cells live here; a view draws those that are seen. One cell may be current and open for editing: the
/// editor has a text of its own, which a commit takes over and a cancel drops. Leaving the grid commits.
class Grid : public Control {
  public:
    /// A grid that holds the header row alone and has no current cell.
    Grid(Container* parent, std::string name, int columns);

    // The cells. A row or column outside the grid is run-time error 9.

    int Rows() const { return rows_; }
    int Columns() const { return columns_; }
    /// Adds empty rows at the end or cuts rows off it. An open edit is committed first.
    void SetRows(int rows);
    /// Appends a row whose cells are joined by TAB.
    void AddItem(std::string_view tabJoinedCells);
    /// Appends many rows whose cells are parts of one text. The grid takes the text over, so that nothing is
    /// copied; `split` finds the parts and appends them, whole rows.
    void AddRowsOf(std::string text, const CellTexts::Split& split);
    /// Removes a row. An open edit is committed first.
    void RemoveItem(int row);
    /// While off, `rowsChanged` is held back; switching on raises it, once. For filling a grid row by row.
    void SetRedraw(bool on);
    /// Stays what it was until rows are set, removed or pasted, also when the cell's text is changed.
    std::string_view Text(int row, int column) const { return cells_[Index(row, column)]; }
    /// The texts of a row, column by column. To be used before anything in the grid changes.
    std::span<const std::string_view> RowTexts(int row) const {
        return cells_.Some(Index(row, 0), FirstCellOf(1));
    }
    void SetText(int row, int column, std::string_view text);

    // The columns. Widths are in twips.

    static constexpr int kDesignedWidth = 960;
    int ColumnWidth(int column) const { return widths_.at(static_cast<std::size_t>(column)); }
    void SetColumnWidth(int column, int width);
    /// Asks the view to fit the columns to their contents, from this one on. A view that comes later asks by
    /// FittedFrom.
    void FitColumns(int firstColumn) {
        fittedFrom_ = firstColumn;
        fitColumns.Raise(firstColumn);
    }
    /// The first column of the last FitColumns; as many as there are columns when there was none.
    int FittedFrom() const { return fittedFrom_; }
    /// How the cells of a column are edited; as a line of text until this is called.
    void SetColumnList(int column, CellList list);
    /// Where a cell stands inside the grid; the view that shows the grid answers.
    Rect CellPlace(int row, int column) const { return cellPlace ? cellPlace(row, column) : Rect(); }
    /// In a `beforeEdit` handler: edits the cell otherwise than its column's cells, this time.
    void SetEditList(CellList list) { editList_ = std::move(list); }
    const CellList& EditList() const { return editList_; }

    // The current cell, and the block of cells that is selected with it.

    int Row() const { return current_.row; } ///< -1 when there is none
    int Column() const { return current_.column; }
    Cell BlockEnd() const { return blockEnd_; }
    /// Makes a cell current; the block is that cell alone. An open edit is committed first.
    void Select(int row, int column);
    /// Stretches the block from the current cell to this one.
    void SelectTo(int row, int column);

    // Editing.

    /// Opens the current cell for editing, its whole text selected. An edit that is open is committed first.
    void EditCell();
    bool IsEditing() const { return editing_; }
    const std::string& EditText() const { return editText_; }
    std::size_t EditSelStart() const { return editSelStart_; }
    std::size_t EditSelLength() const { return editSelLength_; }
    /// Puts a text in place of the editor's selection; the caret stands behind it.
    void ReplaceEditSelection(std::string_view text);
    /// Ends editing and takes the text over, which counts as an edit also when the text is the same.
    void CommitEdit();
    void CancelEdit();

    // What a person does.

    /// Clicks a cell, or moves there by keys. The header cannot be made current.
    void Pick(int row, int column);
    /// Types on the current cell: editing starts with that text in place of the cell's, or goes on with it in
    /// place of the editor's selection.
    void TypeOver(std::string_view text);
    /// Double-clicks the current cell.
    void OpenEditor();
    /// Changed the editor's text, or moved its caret, in the view.
    void EnterEditText(std::string_view text, std::size_t selStart, std::size_t selLength);
    /// Presses a key, on the grid or in its open editor. False when the grid has no use for it.
    bool Press(const KeyPress& press);
    /// Presses a mouse button over a cell, or beside all of them, where row and column are -1.
    void PressMouse(MouseButton button, int row, int column);
    /// Makes the first cell current and stretches the block to the last one.
    void SelectAll();
    /// Chooses an item of the open cell's drop-down list, which commits it.
    void ChooseItem(std::string_view item);
    /// Types in an open cell that has a list: the next item that begins so, in capitals or not, becomes the
    /// editor's text. Where there is none, the text stays.
    void ChooseNext(std::string_view beginning, const CellList::UpperCase& upperCase);
    /// Puts an item in the place of a text that opened the editor and that the open cell's list lacks; the
    /// cell's own text where no item begins so.
    void CorrectEditText(const CellList::UpperCase& upperCase);
    /// Presses the button of a cell that is edited with one.
    void PressCellButton();
    /// The block as a spreadsheet copies it: cells separated by TAB, rows ended by CR LF.
    std::string Copy() const;
    /// Pastes such a text from the block's first cell on, into an empty grid from its first cell on, and
    /// selects what it pasted. Every cell counts as an edit; columns beyond the last are left out, rows
    /// beyond the last are added where the grid may grow and left out elsewhere. A cell with a drop-down list
    /// takes an item of it or nothing. Of a text that would make more than 32,767 rows nothing is pasted.
    void Paste(std::string_view text);
    void SetGrowsByPaste(bool grows) { growsByPaste_ = grows; }

    Event<int, int> beforeEdit;
    Event<int, int> afterEdit;   ///< an edit was committed
    Event<int, int> cellChanged; ///< a cell's text is another one
    Event<> currentCellChanged;
    /// A key went down on the grid; a handler that sets the flag keeps it from the grid.
    Event<const KeyPress&, bool&> keyDown;
    /// A key went down in the editor.
    Event<const KeyPress&> keyDownEdit;
    Event<MouseButton, int, int> mouseDown; ///< with the row and the column
    Event<int, int> cellButtonClick;
    /// A text was pasted, all its edits are told.
    Event<const PasteReport&> pasted;

    // For the view alone.
    std::function<Rect(int row, int column)> cellPlace;
    Event<> rowsChanged;
    Event<> blockChanged;
    Event<> editingChanged;
    Event<> editTextChanged;
    Event<int> fitColumns;

  private:
    struct Block {
        Cell first;
        Cell last;
    };

    std::size_t Index(int row, int column) const {
        if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
            RaiseSubscriptOutOfRange();
        }
        return FirstCellOf(row) + static_cast<std::size_t>(column);
    }
    std::size_t FirstCellOf(int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_);
    }
    void SetCurrent(Cell cell);
    void KeepCurrentInside();
    void TellRowsChanged();
    void AnnounceEdit();
    void OpenEditorWith(std::string_view text, std::size_t selStart, std::size_t selLength);
    void PutItem(std::string_view item);
    void CloseEditor();
    bool PressInEditor(const KeyPress& press);
    bool PressOnCell(const KeyPress& press);
    bool MoveByKey(const KeyPress& press);
    std::optional<Cell> Beside(Cell cell, Key key) const;
    bool MoveByTab(bool backwards);
    Block Selected() const;
    void ClearBlock();
    int RowsAfterPaste(int rows) const;
    void PasteInto(Cell first, std::string_view text);
    void PasteRows(Cell first, std::string_view text, PasteReport& report);
    bool PasteCell(Cell cell, std::string_view text, PasteReport& report);
    void EditTo(int row, int column, std::string_view text);

    int columns_;
    int rows_ = 0;
    CellTexts cells_;
    std::vector<int> widths_;
    std::vector<CellList> columnLists_;
    int fittedFrom_;
    Cell current_;
    Cell blockEnd_;
    bool growsByPaste_ = false;
    bool redraw_ = true;

    bool editing_ = false;
    CellList editList_;
    std::string editText_;
    std::size_t editSelStart_ = 0;
    std::size_t editSelLength_ = 0;
};

} // namespace zy
