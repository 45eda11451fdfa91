#pragma once

#include <wx/button.h>

#include "controls/CellEditor.h"
#include "desktop/GridWidget.h"
#include "desktop/ViewContext.h"

namespace zy {

/// The button of an open cell: an arrow that drops the cell's list down, or an ellipsis for a dialog of its
/// own.
class GridCellButton {
  public:
    GridCellButton(const ViewContext& context, CellEditor& editor, const GridSelection& selection,
                   GridWidget& grid)
        : context_(context), editor_(editor), selection_(selection), grid_(grid) {}

    /// Takes its room off the right end of a cell and returns the rest; the whole cell where that has no
    /// button.
    wxRect PlaceIn(const wxRect& cell);
    void Hide();
    bool IsShown() const;
    /// Whether the mouse, at this place on the screen, is over it.
    bool IsAt(const wxPoint& mouse) const;
    /// The width that it takes off a cell.
    int WidthIn(const wxRect& cell);
    void Press();

    /// Whether the open cell has a list.
    bool HasList() const;
    /// Puts the next item that begins with a character into the editor. False where the cell has no list.
    bool PickByLetter(wxUniChar letter);
    /// Puts an item in the place of a text that was typed to open the editor and that the list lacks.
    void CorrectText();

  private:
    /// The button for the open cell; the other one is hidden.
    wxButton& Button();
    wxButton* MakeListButton();
    wxButton* MakeDialogButton();
    void DropDown();
    /// Capitals as the code page has them.
    CellList::UpperCase UpperCase() const;

    const ViewContext& context_;
    CellEditor& editor_;
    const GridSelection& selection_;
    GridWidget& grid_;
    // Made for the first cell that needs them.
    wxButton* list_ = nullptr;
    wxButton* dialog_ = nullptr;
};

} // namespace zy
