#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/CellBlock.h"
#include "controls/CellEditor.h"
#include "controls/Control.h"
#include "controls/GridCells.h"
#include "controls/GridColumns.h"
#include "controls/GridSelection.h"
#include "controls/Key.h"

namespace zy {

/// A button of the mouse, by the number that the product's grids give it.
enum class MouseButton { Left = 1, Right = 2 };

/// A table of editable texts with one fixed header row, row 0.
///
/// It is put together of parts, each with events of its own; a view draws those of its cells that are seen.
/// The grid itself is what the user works on. Leaving it commits an open edit.
class Grid : public Control {
  public:
    /// A grid that holds the header row alone and has no current cell.
    Grid(Container* parent, std::string name, int columnCount);

    GridCells cells;
    GridColumns columns;
    GridSelection selection;
    CellEditor editor;
    CellBlock block;

    // What the user does. Nothing happens where the focus may not come here.

    /// Clicks a cell, or moves there by keys. The header cannot be made current. Run-time error 9 for a cell
    /// outside the grid.
    void Pick(int row, int column);
    /// Types on the current cell: editing starts with that text in place of the cell's, or goes on with it in
    /// place of the editor's selection.
    void TypeOver(std::string_view text);
    /// Double-clicks the current cell.
    void OpenEditor();
    /// Presses a key, on the grid or in its open editor. False when the grid has no use for it.
    bool Press(const KeyPress& press);
    /// Presses a mouse button over a cell, or beside all of them, where row and column are -1.
    void PressMouse(MouseButton button, int row, int column);
    void SelectAll();
    /// Pastes a text into the block; an empty one is no paste.
    void Paste(std::string_view text);

    /// A key went down on the grid; a handler that sets the flag keeps it from the grid.
    Event<const KeyPress&, bool&> keyDown;
    Event<MouseButton, int, int> mouseDown; ///< with the row and the column

    /// Where a cell stands inside the grid, in twips; nowhere while no view shows the grid.
    Rect CellPlace(int row, int column) const { return cellPlace ? cellPlace(row, column) : Rect(); }
    /// The view that shows the grid answers that.
    std::function<Rect(int row, int column)> cellPlace;

  private:
    bool PressOnCell(const KeyPress& press);
    bool PressTab(const KeyPress& press);
};

} // namespace zy
