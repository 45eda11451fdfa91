#pragma once

#include "controls/Grid.h"
#include "desktop/ControlBinding.h"
#include "desktop/GridAccess.h"
#include "desktop/GridColumnWidths.h"
#include "desktop/GridCursor.h"
#include "desktop/GridEditor.h"
#include "desktop/GridTable.h"
#include "desktop/GridWidget.h"

namespace zy {

/// A grid. What the program does to it is shown once, at the end of the action.
class GridBinding : public ControlBinding {
  public:
    GridBinding(const ViewContext& context, const Inside& inside, Grid& model);
    ~GridBinding() override;

    void TakeFocus() override;
    void ShowAppearance() override;
    void Rescale() override;

  private:
    /// A grid needs no certain room; a few rows will do.
    void Measure() override;
    /// Where a cell of the model stands inside the grid, in twips.
    Rect PlaceOf(int row, int column) const;
    void ObserveModel();
    void BindMouse();
    void BindKeys();
    void PressMouse(MouseButton button, int row, int column);
    void PressMenuKey(wxContextMenuEvent& event);
    /// Where the menu of the current cell opens, on the screen.
    wxPoint PlaceOfMenu();
    void PressKey(wxKeyEvent& event);
    /// A key that the model has no use for: most are the toolkit's.
    void HandOn(wxKeyEvent& event);
    bool UseClipboard(const wxKeyEvent& event);
    void TypeKey(wxKeyEvent& event);

    void ShowChanges();

    Grid& model_;
    wxWindow* border_;
    GridTable* table_;
    GridWidget* grid_;
    GridColumnWidths widths_;
    GridCursor cursor_;
    GridEditor editor_;
    GridAccess access_;
    bool rowsChanged_ = false;
    bool cellsChanged_ = false;
};

} // namespace zy
