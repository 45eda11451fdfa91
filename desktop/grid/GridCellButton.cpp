#include "desktop/GridCellButton.h"

#include <wx/bmpbuttn.h>
#include <wx/menu.h>
#include <wx/settings.h>

#include <algorithm>
#include <string_view>

#include "desktop/GridNative.h"
#include "desktop/Native.h"
#include "desktop/Pictures.h"
#include "desktop/ShownText.h"

namespace zy {
namespace {

void HideButton(wxButton* button) {
    if (button != nullptr) {
        HideOverCells(*button);
    }
}

} // namespace

bool GridCellButton::HasList() const {
    return editor_.List().HasItems();
}

wxRect GridCellButton::PlaceIn(const wxRect& cell) {
    const int width = WidthIn(cell);
    if (width == 0) {
        Hide();
        return cell;
    }
    ShowOverCells(Button(), {cell.GetRight() + 1 - width, cell.y, width, cell.height});
    return {cell.x, cell.y, cell.width - width, cell.height};
}

int GridCellButton::WidthIn(const wxRect& cell) {
    const bool hasOne = HasList() || editor_.List().HasButton();
    return !hasOne ? 0 : std::min(cell.width, std::max(Button().GetBestSize().x, cell.height));
}

wxButton& GridCellButton::Button() {
    auto& button = HasList() ? list_ : dialog_;
    HideButton(HasList() ? dialog_ : list_);
    if (button == nullptr) {
        button = HasList() ? MakeListButton() : MakeDialogButton();
        // The editor's text keeps the keyboard.
        KeepFocusAway(*button);
        button->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Press(); });
    }
    return *button;
}

wxButton* GridCellButton::MakeListButton() {
    const auto colour = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);
    return new wxBitmapButton(grid_.GetGridWindow(), wxID_ANY, DownArrow(grid_.GetCharHeight(), colour), {},
                              {}, wxBU_EXACTFIT);
}

wxButton* GridCellButton::MakeDialogButton() {
    const wxUniChar kEllipsis(0x2026);
    return new wxButton(grid_.GetGridWindow(), wxID_ANY, kEllipsis, {}, {}, wxBU_EXACTFIT);
}

bool GridCellButton::IsShown() const {
    return (list_ != nullptr && list_->IsShown()) || (dialog_ != nullptr && dialog_->IsShown());
}

bool GridCellButton::IsAt(const wxPoint& mouse) const {
    const auto isOver = [&](const wxButton* button) {
        return button != nullptr && button->IsShown() && button->GetScreenRect().Contains(mouse);
    };
    return isOver(list_) || isOver(dialog_);
}

void GridCellButton::Hide() {
    HideButton(list_);
    HideButton(dialog_);
}

void GridCellButton::Press() {
    if (HasList()) {
        DropDown();
    } else {
        context_.gate.Act([this] { editor_.PressButton(); });
    }
}

void GridCellButton::DropDown() {
    wxMenu menu;
    for (const auto& item : editor_.List().Items()) {
        const auto label = WithMnemonic(context_.codePage, item.empty() ? " " : item, '\0');
        const int id = menu.Append(wxID_ANY, label)->GetId();
        menu.Bind(
            wxEVT_MENU,
            [this, item](wxCommandEvent&) { context_.gate.Act([&] { editor_.ChooseItem(item); }); }, id);
    }
    grid_.GetGridWindow()->PopupMenu(&menu, grid_.PlaceOf(selection_.Current()).GetBottomLeft());
}

bool GridCellButton::PickByLetter(wxUniChar letter) {
    if (!HasList() || letter == 0) {
        return false;
    }
    // A character that the code page lacks begins no item.
    if (const auto typed = TakeEdit(context_.codePage, "", wxString(letter))) {
        context_.gate.Act([&] { editor_.ChooseNext(typed->text, UpperCase()); });
    }
    return true;
}

void GridCellButton::CorrectText() {
    editor_.CorrectText(UpperCase());
}

CellList::UpperCase GridCellButton::UpperCase() const {
    return [this](std::string_view text) { return context_.codePage.UCase(text); };
}

} // namespace zy
