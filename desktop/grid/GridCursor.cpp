#include "desktop/GridCursor.h"

#include <algorithm>
#include <utility>

#include "desktop/CellKeys.h"

namespace zy {
namespace {

wxGridBlockCoords LastBlock(const GridWidget& grid) {
    wxGridBlockCoords last = wxGridNoBlockCoords;
    for (const auto& block : grid.GetSelectedBlocks()) {
        last = block;
    }
    return last;
}

bool IsAtCorner(const wxGridBlockCoords& block, const wxGridCellCoords& cell) {
    return (cell.GetRow() == block.GetTopRow() || cell.GetRow() == block.GetBottomRow()) &&
           (cell.GetCol() == block.GetLeftCol() || cell.GetCol() == block.GetRightCol());
}

/// The block between two cells of the model as the toolkit counts them; none for a single cell.
wxGridBlockCoords BlockBetween(const Cell& one, const Cell& other) {
    if (one == other) {
        return wxGridNoBlockCoords;
    }
    const auto [top, bottom] = std::minmax({one.row - 1, other.row - 1});
    const auto [left, right] = std::minmax({one.column, other.column});
    return {std::max(top, 0), left, bottom, right};
}

} // namespace

GridCursor::GridCursor(const ViewContext& context, Grid& model, GridWidget& grid)
    : context_(context), model_(model), selection_(model.selection), grid_(grid), isStart_(model.HasFocus()),
      blockChanged_(model.selection.blockChanged.Observe([this] { Touch(); })),
      revealAsked_(model.selection.revealAsked.Observe([this] { reveals_ = true; })) {
    grid_.Bind(wxEVT_GRID_SELECT_CELL, [this](wxGridEvent& event) {
        event.Skip();
        TakeCell(event);
    });
    grid_.Bind(wxEVT_GRID_RANGE_SELECTED, [this](wxGridRangeSelectEvent& event) {
        event.Skip();
        if (!showing_) {
            context_.gate.ActLater([this] { return TakeBlock(); });
        }
    });
    grid_.GetGridWindow()->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
        event.Skip();
        // A click picks a cell of its own, and so does a program that moves the focus here. In a window that
        // opens on the grid, the model may know of the focus already.
        const bool opens = event.GetWindow() == nullptr && !isStart_;
        if ((opens || !model_.HasFocus()) && !wxGetMouseState().LeftIsDown()) {
            context_.gate.ActLater([this] { return TakeFirstCell(); });
        }
    });
}

void GridCursor::TakeCell(const wxGridEvent& event) {
    if (!showing_) {
        // The toolkit moves its cursor behind this event.
        const bool isToolkits =
            grid_.GetGridCursorCoords() == wxGridNoCellCoords && event.GetRow() == 0 && event.GetCol() == 0;
        context_.gate.ActLater([this, isToolkits, row = event.GetRow() + 1, column = event.GetCol()] {
            // The toolkit also announces its own first cell in rows that have just come. Where the program
            // has picked another one meanwhile, that counts.
            const bool isCurrent = selection_.Current() == Cell{row, column};
            if (!isCurrent && !(isToolkits && HasCell()) && row < model_.cells.Rows()) {
                model_.Pick(row, column);
            }
            return model_.HasFocus();
        });
    }
}

bool GridCursor::BeginBy(const wxKeyEvent& event) {
    const bool begins = !HasCell() && IsCursorKey(event);
    if (begins) {
        context_.gate.Act([this] { TakeFirstCell(); });
    }
    return begins;
}

bool GridCursor::TakeFirstCell() {
    if (grid_.GetGridWindow()->HasFocus() && !HasCell() && model_.cells.Rows() > 1) {
        model_.Pick(1, 0);
    }
    return true;
}

bool GridCursor::TakeBlock() {
    const auto block = LastBlock(grid_);
    if (!HasCell() || !model_.TakeFocus() || block.GetBottomRow() + 1 >= model_.cells.Rows()) {
        return model_.HasFocus();
    }
    const wxGridCellCoords cell(selection_.Row() - 1, selection_.Column());
    if (block == wxGridNoBlockCoords) {
        selection_.SelectTo(selection_.Row(), selection_.Column());
    } else if (IsAtCorner(block, cell)) {
        const bool down = cell.GetRow() == block.GetTopRow();
        const bool right = cell.GetCol() == block.GetLeftCol();
        selection_.SelectTo((down ? block.GetBottomRow() : block.GetTopRow()) + 1,
                            right ? block.GetRightCol() : block.GetLeftCol());
    } else {
        // A whole row, column or grid: the model's block begins at its current cell.
        selection_.Select(block.GetTopRow() + 1, block.GetLeftCol());
        selection_.SelectTo(block.GetBottomRow() + 1, block.GetRightCol());
    }
    return true;
}

void GridCursor::MatchRows(GridTable& table) {
    showing_ = model_.cells.Rows() - 1 < grid_.GetNumberRows();
    if (showing_) {
        // The toolkit would keep a block that reaches beyond the last row. It is shown again where it is now.
        grid_.ClearSelection();
    }
    table.MatchRows();
    showing_ = false;
    Touch();
}

bool GridCursor::Show() {
    // The toolkit announces a block when the user releases the mouse. Until then it is the user's alone.
    if (grid_.GetGridWindow()->HasCapture() || !std::exchange(changed_, false)) {
        return false;
    }
    showing_ = true;
    ShowCell();
    ShowBlock();
    showing_ = false;
    if (std::exchange(reveals_, false) && HasCell()) {
        grid_.Reveal(selection_.Current());
    }
    return true;
}

void GridCursor::ShowCell() {
    const wxGridCellCoords cell(selection_.Row() - 1, selection_.Column());
    // A click has moved the toolkit's cursor already.
    grid_.RefreshRow(shownRow_);
    grid_.SetHasCurrent(HasCell());
    if (HasCell() && grid_.GetGridCursorCoords() != cell) {
        grid_.GoToCell(cell);
    }
    shownRow_ = grid_.GetGridCursorRow();
    grid_.RefreshRow(shownRow_);
}

void GridCursor::ShowBlock() {
    const auto block =
        HasCell() ? BlockBetween(selection_.Current(), selection_.BlockEnd()) : wxGridNoBlockCoords;
    if (block == LastBlock(grid_)) {
        return;
    }
    grid_.ClearSelection();
    if (block != wxGridNoBlockCoords) {
        grid_.SelectBlock(block.GetTopLeft(), block.GetBottomRight());
    }
    if (HasCell()) {
        grid_.Reveal(selection_.BlockEnd());
    }
}

} // namespace zy
