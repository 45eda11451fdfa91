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

constexpr std::string_view kDialog = "...";

void HideButton(wxButton* button) {
    if (button != nullptr) {
        HideOverCells(*button);
    }
}

} // namespace

bool GridCellButton::HasList() const {
    return !model_.EditList().empty() && model_.EditList() != kDialog;
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
    return model_.EditList().empty() ? 0
                                     : std::min(cell.width, std::max(Button().GetBestSize().x, cell.height));
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
        context_.gate.Act([this] { model_.PressCellButton(); });
    }
}

void GridCellButton::DropDown() {
    wxMenu menu;
    for (const auto& item : Items()) {
        const auto label = WithMnemonic(context_.codePage, item.empty() ? " " : item, '\0');
        const int id = menu.Append(wxID_ANY, label)->GetId();
        menu.Bind(
            wxEVT_MENU,
            [this, item](wxCommandEvent&) {
                context_.gate.Act([&] {
                    Enter(item);
                    model_.CommitEdit();
                });
            },
            id);
    }
    wxRect cell = grid_.CellToRect(model_.Row() - 1, model_.Column());
    grid_.GetGridWindow()->PopupMenu(&menu, grid_.CalcScrolledPosition(cell.GetBottomLeft()));
}

bool GridCellButton::PickByLetter(wxUniChar letter) {
    if (!HasList() || letter == 0) {
        return false;
    }
    auto items = Items();
    // The search goes on behind the item that stands there.
    const auto current = std::find(items.begin(), items.end(), model_.EditText());
    if (current != items.end()) {
        std::rotate(items.begin(), current + 1, items.end());
    }
    const auto typed = TakeEdit(context_.codePage, "", wxString(letter));
    const auto found = typed ? FindItem(items, typed->text) : items.end();
    if (found != items.end()) {
        context_.gate.Act([&] { Enter(*found); });
    }
    return true;
}

void GridCellButton::CorrectText() {
    const auto items = Items();
    const std::string typed = model_.EditText();
    const std::string held(model_.Text(model_.Row(), model_.Column()));
    if (HasList() && typed != held && std::find(items.begin(), items.end(), typed) == items.end()) {
        const auto found = typed.empty() ? items.end() : FindItem(items, typed);
        Enter(found == items.end() ? held : *found);
    }
}

GridCellButton::ItemList::const_iterator GridCellButton::FindItem(const ItemList& items,
                                                                  const std::string& beginning) const {
    const std::string wanted = context_.codePage.UCase(beginning);
    return std::find_if(items.begin(), items.end(), [&](const std::string& item) {
        return context_.codePage.UCase(item).starts_with(wanted);
    });
}

GridCellButton::ItemList GridCellButton::Items() const {
    ItemList items(1);
    for (const char character : model_.EditList()) {
        if (character == '|') {
            items.emplace_back();
        } else {
            items.back() += character;
        }
    }
    return items;
}

void GridCellButton::Enter(const std::string& item) {
    model_.EnterEditText("", 0, 0);
    model_.ReplaceEditSelection(item);
}

} // namespace zy
