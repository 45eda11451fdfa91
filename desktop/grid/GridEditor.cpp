#include "desktop/GridEditor.h"

#include <wx/toplevel.h>

#include <string>
#include <utility>

#include "desktop/CellKeys.h"
#include "desktop/GridNative.h"
#include "desktop/Native.h"
#include "desktop/Refusals.h"
#include "desktop/ShownText.h"

namespace zy {
namespace {

wxTextCtrl* MakeText(const GridWidget& grid) {
    auto* text = new wxTextCtrl(grid.GetGridWindow(), wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                wxBORDER_NONE | EveryKeyStyle());
    HideOverCells(*text);
    // Assistive technology learns of the names that a control gets after its first one.
    SetAccessibleName(*text, "Cell");
    return text;
}

/// No text, whatever character a system makes of it.
bool IsCharacterWithControl(const wxKeyEvent& event) {
    const wxUniChar character = event.GetUnicodeKey();
    return event.GetModifiers() == wxMOD_CONTROL && character >= ' ' && character != WXK_DELETE;
}

} // namespace

GridEditor::GridEditor(const ViewContext& context, Grid& model, GridWidget& grid)
    : context_(context), model_(model), editor_(model.editor), grid_(grid), text_(MakeText(grid)),
      button_(context, editor_, model.selection, grid),
      openChanged_(editor_.openChanged.Observe([this] { changed_ = true; })),
      textChanged_(editor_.textChanged.Observe([this] { changed_ = true; })) {
    BindText();
    CommitWhenLeft();
}

void GridEditor::BindText() {
    TakeLineEnds(*text_);
    MoveQuickly(*text_);
    const auto remember = [this](wxEvent& event) {
        RememberSelection();
        event.Skip();
    };
    text_->Bind(wxEVT_TEXT_PASTE, remember);
    text_->Bind(wxEVT_MIDDLE_DOWN, remember);
    text_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { TakeText(); });
    text_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { PressKey(event); });
    text_->Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
        event.Skip(!IsCharacterWithControl(event) && !button_.PickByLetter(TypedCharacter(event)));
    });
}

void GridEditor::CommitWhenLeft() {
    auto* window = wxGetTopLevelParent(&grid_);
    // Not every click takes the keyboard away, such as one on a button that the edit is to enable.
    ObserveMousePress(*window, [this] {
        if (editor_.IsOpen() && IsMouseBeside()) {
            context_.gate.ActLater([this] {
                editor_.Commit();
                return true;
            });
        }
    });
    window->Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) {
        event.Skip();
        // The list of a cell is a menu too, and belongs to the edit.
        if (!event.IsPopup()) {
            context_.gate.Act([this] { editor_.Commit(); });
        }
    });
}

bool GridEditor::IsMouseBeside() const {
    const wxPoint mouse = wxGetMousePosition();
    const auto isOver = [&](const wxWindow& window) { return window.GetScreenRect().Contains(mouse); };
    const bool scrolls =
        isOver(grid_) && !isOver(*grid_.GetGridWindow()) && !isOver(*grid_.GetGridColLabelWindow());
    return !scrolls && !isOver(*text_) && !button_.IsAt(mouse);
}

void GridEditor::Show() {
    const bool changed = std::exchange(changed_, false);
    if (!editor_.IsOpen()) {
        Close();
        return;
    }
    if (!text_->IsShown()) {
        Open();
    } else {
        Place();
    }
    if (changed) {
        ShowTextAndCaret();
        Place();
    }
}

void GridEditor::Open() {
    grid_.Reveal(model_.selection.Current());
    Place();
    SetAccessibleName(*text_, NameOfCell());
    if (model_.HasFocus()) {
        text_->SetFocus();
    }
}

wxString GridEditor::NameOfCell() const {
    const auto [row, column] = model_.selection.Current();
    return grid_.GetColLabelValue(column) + wxString::Format(", row %d of %d", row, model_.cells.Rows() - 1);
}

void GridEditor::Close() {
    if (text_->IsShown()) {
        // While the cell's list is dropped down, the toolkit says that nothing has the focus.
        if (HoldsFocus(*text_)) {
            grid_.GetGridWindow()->SetFocus();
        }
        HideOverCells(*text_);
        button_.Hide();
    }
}

void GridEditor::Place() {
    wxRect place = grid_.PlaceOf(model_.selection.Current());
    // The lines between the cells stay.
    place.SetSize(place.GetSize() - wxSize(1, 1));
    wxRect text = button_.PlaceIn(WideEnough(place));
    // The text stays where it stood in the cell.
    text.x += grid_.CellMargin();
    text.width -= grid_.CellMargin();
    ShowOverCells(*text_, text);
}

wxRect GridEditor::WideEnough(wxRect cell) {
    const int right = grid_.GetGridWindow()->GetClientSize().x;
    const int width = grid_.CellMargin() + NeededWidth() + button_.WidthIn(cell);
    cell.SetRight(std::min(cell.GetRight(), right - 1));
    cell.width = std::max(cell.width, std::min(width, right));
    cell.x = std::min(cell.x, std::max(right - cell.width, 0));
    return cell;
}

int GridEditor::NeededWidth() const {
    // A longer text is wider than any grid, and would take long to measure.
    constexpr std::size_t kMostMeasured = 1024;
    const wxString text = text_->GetValue().substr(0, kMostMeasured);
    return text_->GetSizeFromText(text + "0").x; // the caret needs room too
}

bool GridEditor::ShowText() {
    const wxString shown = ToShown(context_.codePage, std::string_view(editor_.Text()).substr(0, kMostShown));
    const bool differs = text_->GetValue() != shown;
    if (differs) {
        text_->ChangeValue(shown);
    }
    return differs;
}

void GridEditor::ShowTextAndCaret() {
    button_.CorrectText();
    ShowText();
    const auto start = static_cast<long>(editor_.SelStart());
    text_->SetSelection(start, start + static_cast<long>(editor_.SelLength()));
}

void GridEditor::TakeFocus() {
    if (!text_->HasFocus()) {
        text_->SetFocus();
        ShowTextAndCaret();
    }
}

void GridEditor::DropList() {
    if (text_->IsShown() && button_.HasList()) {
        button_.Press();
    }
}

void GridEditor::PressKey(wxKeyEvent& event) {
    RememberSelection();
    if (IsAccessKey(event)) {
        // It may press a button that the edit enables.
        context_.gate.Act([this] { editor_.Commit(); });
        HandOnAccessKey(grid_, event);
        return;
    }
    const auto press = GridKeyPressOf(event);
    const bool drops = event.GetKeyCode() == WXK_F4 || (press && press->alt && press->key == Key::Down);
    if (drops && button_.IsShown()) {
        button_.Press();
    } else if (!press || !Press(*press)) {
        event.Skip();
    }
}

bool GridEditor::Press(const KeyPress& press) {
    bool taken = false;
    context_.gate.Act([&] {
        TakeCaret();
        taken = model_.Press(press);
    });
    return taken;
}

void GridEditor::TakeCaret() {
    long start = 0;
    long end = 0;
    text_->GetSelection(&start, &end);
    const std::string text = editor_.Text();
    editor_.Enter(text, static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
}

void GridEditor::TakeText() {
    if (button_.HasList()) {
        ShowTextAndCaret();
        return;
    }
    const std::string before = editor_.Text().substr(0, kMostShown);
    const std::string beyond = editor_.Text().substr(before.size());
    const auto edited = TakeEdit(context_.codePage, before, text_->GetValue());
    if (!edited) {
        Refuse();
        return;
    }
    grid_.Reveal(model_.selection.Current());
    context_.gate.Act([&] { editor_.Enter(edited->text + beyond, edited->changeEnd, 0); });
    if (ShowText()) {
        text_->SetInsertionPoint(static_cast<long>(edited->changeEnd));
    }
}

void GridEditor::Refuse() {
    TellRefused(context_, NameOf(model_.cells, model_.selection.Current()), text_->GetValue());
    ShowText();
    text_->SetSelection(selectionStart_, selectionEnd_);
}

} // namespace zy
