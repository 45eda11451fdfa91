#pragma once

#include "controls/Grid.h"
#include "desktop/GridTable.h"
#include "desktop/GridWidget.h"
#include "desktop/ViewContext.h"

namespace zy {

/// The current cell of a grid and the block selected with it, both ways: what the user does with the
/// toolkit's own keys and the mouse is passed to the model, and what the model has is shown.
class GridCursor {
  public:
    GridCursor(const ViewContext& context, Grid& model, GridWidget& grid);

    /// Shows the model's cell and block, scrolled into view, when they have changed since the last time. True
    /// when they had.
    bool Show();
    /// Gives the toolkit the rows that have come or gone. When rows go, it moves its own cursor into those
    /// that are left, which is no move of the user's: the next Show shows the model's cell and block in any
    /// case.
    void MatchRows(GridTable& table);
    /// Takes a key by which the toolkit would go on from its own cursor, where the model has no current cell:
    /// that leads to the first one. False for other keys, and where there is a cell to go on from.
    bool BeginBy(const wxKeyEvent& event);

  private:
    void TakeCell(const wxGridEvent& event);
    /// A user who comes to the grid by keys needs a cell to go on from.
    bool TakeFirstCell();
    bool TakeBlock();
    void Touch() { changed_ = true; }
    void ShowCell();
    void ShowBlock();
    bool HasCell() const { return selection_.Row() >= 1 && selection_.Row() <= grid_.GetNumberRows(); }

    const ViewContext& context_;
    Grid& model_;
    GridSelection& selection_;
    GridWidget& grid_;
    bool changed_ = true;
    const bool isStart_;   ///< the program starts here, and picks a cell of its own or none
    int shownRow_ = -1;    ///< where the current row was shown last
    bool reveals_ = false; ///< the cell is to be seen, be it the one that was shown last
    bool showing_ = false; ///< the toolkit announces a move because the model's is shown
    Subscription blockChanged_;
    Subscription revealAsked_;
};

} // namespace zy
