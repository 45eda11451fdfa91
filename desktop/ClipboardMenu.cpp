#include "desktop/ClipboardMenu.h"

#include <wx/clipbrd.h>
#include <wx/frame.h>
#include <wx/textctrl.h>

#include "controls/Grid.h"
#include "controls/ListView.h"
#include "desktop/CellClipboard.h"
#include "desktop/ControlBinding.h"

namespace zy {
namespace {

bool HasText() {
    const wxClipboardLocker open;
    return !!open &&
           (wxTheClipboard->IsSupported(wxDF_UNICODETEXT) || wxTheClipboard->IsSupported(wxDF_TEXT));
}

} // namespace

ClipboardMenu::ClipboardMenu(const ViewContext& context, const Form& form, MainMenu& menu, wxFrame& frame)
    : context_(context), form_(form), menu_(menu) {
    Connect(frame);
}

void ClipboardMenu::Connect(wxFrame& frame) {
    frame.Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) {
        event.Skip();
        Show(FindPossible());
    });
    frame.Bind(wxEVT_MENU_CLOSE, [this](wxMenuEvent& event) {
        event.Skip();
        Show({});
    });
    subscriptions_.push_back(menu_.mnuCut.click.Observe([this] { Cut(); }));
    subscriptions_.push_back(menu_.mnuCopy.click.Observe([this] { Copy(); }));
    subscriptions_.push_back(menu_.mnuPaste.click.Observe([this] { Paste(); }));
    subscriptions_.push_back(menu_.mnuSelectAll.click.Observe([this] { SelectAll(); }));
}

void ClipboardMenu::Show(const Possible& possible) {
    menu_.mnuCut.SetEnabled(possible.cut);
    menu_.mnuCopy.SetEnabled(possible.copy);
    menu_.mnuPaste.SetEnabled(possible.paste);
    menu_.mnuSelectAll.SetEnabled(possible.selectAll);
}

ClipboardMenu::Possible ClipboardMenu::FindPossible() const {
    if (const auto* text = FocusedText()) {
        return {text->CanCut(), text->CanCopy(), text->CanPaste(), !text->IsEmpty()};
    }
    if (const auto* grid = Focused<Grid>()) {
        const bool hasCell = grid->selection.IsInData();
        return {hasCell, hasCell, HasText(), grid->cells.Rows() > 1};
    }
    const auto* list = Focused<ListView>();
    return {false, list != nullptr && list->Selected() != 0, false, false};
}

wxTextCtrl* ClipboardMenu::FocusedText() const {
    if (auto* text = dynamic_cast<wxTextCtrl*>(wxWindow::FindFocus())) {
        return text;
    }
    // While a menu is open, the toolkit may say that nothing has the focus.
    auto* focused = context_.controls.Find(form_.Focused());
    return focused == nullptr ? nullptr : dynamic_cast<wxTextCtrl*>(&focused->Window());
}

void ClipboardMenu::Cut() {
    if (auto* text = FocusedText()) {
        text->Cut();
    } else if (auto* grid = Focused<Grid>()) {
        CutCells(context_, *grid);
    }
}

void ClipboardMenu::Copy() {
    if (auto* text = FocusedText()) {
        text->Copy();
    } else if (auto* grid = Focused<Grid>()) {
        CopyCells(context_, grid->block.Copy());
    } else if (auto* list = Focused<ListView>()) {
        CopyCells(context_, list->Copy());
    }
}

void ClipboardMenu::Paste() {
    if (auto* text = FocusedText()) {
        text->Paste();
    } else if (auto* grid = Focused<Grid>()) {
        PasteCells(context_, *grid);
    }
}

void ClipboardMenu::SelectAll() {
    if (auto* text = FocusedText()) {
        text->SelectAll();
    } else if (auto* grid = Focused<Grid>()) {
        grid->SelectAll();
    }
}

} // namespace zy
