#include "desktop/GridBinding.h"

#include <wx/settings.h>
#include <wx/sizer.h>

#include <utility>

#include "desktop/CellClipboard.h"
#include "desktop/CellKeys.h"
#include "desktop/CutTexts.h"
#include "desktop/GridNative.h"
#include "desktop/Native.h"
#include "desktop/Refusals.h"
#include "desktop/ShownText.h"

namespace zy {
namespace {

constexpr int kHeader = 0;
constexpr int kNowhere = -1; ///< the row and column where there is no cell

/// A thin line around the grid, of which the toolkit draws none.
wxWindow* MakeBorder(wxWindow* parent) {
    auto* border = MakeSurround(parent);
    border->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW));
    border->SetSizer(new wxBoxSizer(wxVERTICAL));
    return border;
}

} // namespace

GridBinding::GridBinding(const ViewContext& context, const Inside& inside, Grid& model)
    : ControlBinding(context, inside, model), model_(model), border_(MakeBorder(Parent())),
      table_(new GridTable(context, model.cells)), grid_(new GridWidget(border_, table_)),
      widths_(context, model.cells, model.columns, *grid_), cursor_(context, model, *grid_),
      editor_(context, model, *grid_), access_(context, model, *grid_, editor_) {
    border_->GetSizer()->Add(grid_, wxSizerFlags(1).Expand().Border(wxALL, grid_->FromDIP(1)));
    grid_->FitRows(editor_.NeededHeight());
    ObserveModel();
    BindMouse();
    BindKeys();
    ShowCutTexts(*grid_->GetGridWindow(),
                 [this](const wxPoint& onScreen) { return grid_->CutCellAt(onScreen); });
    ShowCutTexts(*grid_->GetGridColLabelWindow(),
                 [this](const wxPoint& onScreen) { return grid_->CutHeaderAt(onScreen); });
    Attach(border_);
    ShowChanges();
}

GridBinding::~GridBinding() {
    model_.cellPlace = nullptr;
}

void GridBinding::ObserveModel() {
    model_.cellPlace = [this](int row, int column) { return PlaceOf(row, column); };
    Keep(model_.cells.rowsChanged.Observe([this] { rowsChanged_ = true; }));
    Keep(model_.cells.cellChanged.Observe([this](int, int) { cellsChanged_ = true; }));
    Keep(Gate().updateViews.Observe([this] { ShowChanges(); }));
}

void GridBinding::BindMouse() {
    const auto down = [this](MouseButton button) {
        return [this, button](wxGridEvent& event) {
            event.Skip();
            // A left click with Shift stretches the block, whose first cell stays the current one.
            if (button != MouseButton::Left || !event.ShiftDown()) {
                PressMouse(button, event.GetRow() + 1, event.GetCol());
            }
        };
    };
    grid_->Bind(wxEVT_GRID_CELL_LEFT_CLICK, down(MouseButton::Left));
    grid_->Bind(wxEVT_GRID_CELL_RIGHT_CLICK, down(MouseButton::Right));
    grid_->Bind(wxEVT_GRID_LABEL_RIGHT_CLICK, down(MouseButton::Right));
    grid_->GetGridWindow()->Bind(wxEVT_RIGHT_DOWN, [this](wxMouseEvent& event) {
        event.Skip();
        // The toolkit's grid announces clicks on cells alone.
        if (grid_->XYToCell(grid_->CalcUnscrolledPosition(event.GetPosition())) == wxGridNoCellCoords) {
            PressMouse(MouseButton::Right, kNowhere, kNowhere);
        }
    });
    grid_->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent& event) { PressMenuKey(event); });
    // The header is no way to select a column.
    grid_->Bind(wxEVT_GRID_LABEL_LEFT_CLICK,
                [this](wxGridEvent& event) { PressMouse(MouseButton::Left, kHeader, event.GetCol()); });
    grid_->Bind(wxEVT_GRID_CELL_LEFT_DCLICK,
                [this](wxGridEvent&) { Gate().Act([this] { model_.OpenEditor(); }); });
}

void GridBinding::PressMouse(MouseButton button, int row, int column) {
    Gate().ActLater([this, button, row, column] {
        if (row < model_.cells.Rows()) {
            model_.PressMouse(button, row, column);
        }
        return model_.HasFocus();
    });
}

void GridBinding::PressMenuKey(wxContextMenuEvent& event) {
    const bool isKey = event.GetPosition() == wxDefaultPosition;
    if (!isKey || !grid_->GetGridWindow()->HasFocus()) {
        // A button of the mouse has its own event, and an open cell has a menu of its own.
        event.Skip();
        return;
    }
    Context().menuPlace = PlaceOfMenu();
    const Cell cell = model_.selection.Current();
    Gate().Act([&] { model_.PressMouse(MouseButton::Right, cell.row, cell.column); });
    Context().menuPlace.reset();
}

wxPoint GridBinding::PlaceOfMenu() {
    wxPoint place;
    if (model_.selection.IsInData()) {
        grid_->Reveal(model_.selection.Current());
        place = grid_->PlaceOf(model_.selection.Current()).GetBottomLeft();
    }
    return grid_->GetGridWindow()->ClientToScreen(place);
}

void GridBinding::BindKeys() {
    grid_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { PressKey(event); });
    grid_->Bind(wxEVT_CHAR, [this](wxKeyEvent& event) { TypeKey(event); });
}

void GridBinding::PressKey(wxKeyEvent& event) {
    if (UseClipboard(event)) {
        return;
    }
    if (event.GetKeyCode() == WXK_BACK && !event.HasAnyModifiers()) {
        Gate().Act([this] { model_.TypeOver(""); });
        return;
    }
    bool taken = false;
    const auto press = GridKeyPressOf(event);
    if (press) {
        Gate().Act([&] { taken = model_.Press(*press); });
    }
    if (!taken) {
        HandOn(event);
    }
}

void GridBinding::HandOn(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if ((key == WXK_TAB || key == WXK_NUMPAD_TAB) && !event.AltDown()) {
        // The toolkit's grid would move its own cursor.
        grid_->Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward
                                          : wxNavigationKeyEvent::IsForward);
    } else if (key == WXK_SPACE && !event.HasAnyModifiers()) {
        // It would take this one for an arrow.
        TypeKey(event);
    } else if (!cursor_.BeginBy(event)) {
        event.Skip();
    }
}

bool GridBinding::UseClipboard(const wxKeyEvent& event) {
    const auto key = ClipboardKeyOf(event);
    if (key == ClipboardKey::SelectAll) {
        Gate().Act([this] { model_.SelectAll(); });
    } else if (key == ClipboardKey::Copy) {
        CopyCells(Context(), model_.block.Copy());
    } else if (key == ClipboardKey::Cut) {
        CutCells(Context(), model_);
    } else if (key == ClipboardKey::Paste) {
        PasteCells(Context(), model_);
    }
    return key != ClipboardKey::None;
}

void GridBinding::TypeKey(wxKeyEvent& event) {
    const auto character = TypedCharacter(event);
    if (character == 0) {
        event.Skip();
    } else if (const auto typed = TakeEdit(Context().codePage, "", wxString(character))) {
        Gate().Act([&] { model_.TypeOver(typed->text); });
    } else {
        TellRefused(Context(), NameOf(model_.cells, model_.selection.Current()), wxString(character));
    }
}

void GridBinding::TakeFocus() {
    if (model_.editor.IsOpen()) {
        editor_.TakeFocus();
    } else {
        grid_->GetGridWindow()->SetFocus();
    }
}

void GridBinding::Measure() {
    constexpr int kRows = 4;
    const wxSize least(grid_->GetDefaultColSize(),
                       grid_->GetColLabelSize() + kRows * grid_->GetDefaultRowSize());
    model_.SetPreferred(Context().scale.ToTwips(least));
}

Rect GridBinding::PlaceOf(int row, int column) const {
    wxRect place = grid_->PlaceOf({row, column});
    // Behind the border and below the header.
    place.Offset(grid_->GetPosition() + grid_->GetGridWindow()->GetPosition());
    const auto& scale = Context().scale;
    const auto size = scale.ToTwips(place.GetSize());
    return {scale.ToTwips(place.x), scale.ToTwips(place.y), size.width, size.height};
}

void GridBinding::ShowAppearance() {
    ControlBinding::ShowAppearance();
    widths_.Show();
}

void GridBinding::Rescale() {
    grid_->FitRows(editor_.NeededHeight());
    ControlBinding::Rescale();
}

void GridBinding::ShowChanges() {
    const bool hasOtherRows = std::exchange(rowsChanged_, false);
    if (hasOtherRows) {
        cursor_.MatchRows(*table_);
        cellsChanged_ = true;
    }
    if (std::exchange(cellsChanged_, false)) {
        grid_->GetGridWindow()->Refresh();
        grid_->GetGridColLabelWindow()->Refresh();
    }
    widths_.ShowFit();
    cursor_.Show();
    editor_.Show();
    access_.Tell(hasOtherRows);
}

} // namespace zy
