#include "desktop/ListViewBinding.h"

#include <algorithm>
#include <string>
#include <utility>

#include "desktop/CellClipboard.h"
#include "desktop/CellKeys.h"
#include "desktop/CutTexts.h"
#include "desktop/Keys.h"
#include "desktop/ListText.h"
#include "desktop/Native.h"

namespace zy {

ListViewBinding::ListViewBinding(const ViewContext& context, const Inside& inside, ListView& model)
    : ControlBinding(context, inside, model), model_(model),
      list_(new wxDataViewCtrl(Parent(), wxID_ANY, wxDefaultPosition, wxDefaultSize, wxDV_SINGLE)),
      rows_(new ListRows(context, model)) {
    MakeColumns();
    list_->AssociateModel(rows_.get());
    SetAccessibleName(*list_, Shown(model_.Parent()->Caption()));
    list_->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { TakePick(); });
    list_->Bind(wxEVT_DATAVIEW_ITEM_CONTEXT_MENU,
                [this](wxDataViewEvent& event) { AskForMenu(event.GetPosition()); });
    list_->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent& event) {
        // The mouse has its own event.
        if (event.GetPosition() == wxDefaultPosition) {
            AskForMenu(wxDefaultPosition);
        } else {
            event.Skip();
        }
    });
    ShowCutTexts(KeyboardPart(*list_), [this](const wxPoint& onScreen) { return TipAt(onScreen); });
    KeyboardPart(*list_).Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { PressKey(event); });
    Keep(model_.refilled.Observe([this] {
        ChangeList([this] { rows_->MatchCount(); });
        rowsChanged_ = true;
    }));
    Keep(model_.itemRemoved.Observe(
        [this](int item) { ChangeList([&] { rows_->RowDeleted(static_cast<unsigned>(item - 1)); }); }));
    Keep(
        model_.itemChanged.Observe([this](int item) { rows_->RowChanged(static_cast<unsigned>(item - 1)); }));
    Keep(model_.revealAsked.Observe([this] { reveals_ = true; }));
    Keep(Gate().updateViews.Observe([this] { ShowChanges(); }));
    Attach(list_);
}

void ListViewBinding::MakeColumns() {
    for (std::size_t i = 0; i < model_.Columns().size(); ++i) {
        auto* renderer = MakeListText();
        renderer->EnableEllipsize(wxELLIPSIZE_END);
        const auto& column = model_.Columns()[i];
        const int width = Context().scale.ToPixels(column.width);
        auto* made = new wxDataViewColumn(Shown(column.header), renderer, static_cast<unsigned>(i), width,
                                          wxALIGN_LEFT, wxDATAVIEW_COL_RESIZABLE);
        list_->AppendColumn(made);
        MakeHeaderPlain(*made);
        shownWidths_.push_back(column.width);
    }
    ShowCutHeaders(*list_);
}

wxString ListViewBinding::TipAt(const wxPoint& onScreen) const {
    wxDataViewItem item;
    wxDataViewColumn* column = nullptr;
    list_->HitTest(list_->ScreenToClient(onScreen), item, column);
    if (!item.IsOk() || column == nullptr) {
        return {};
    }
    const wxString cut = CutTextIn(item, *column);
    const wxString hint = HintOf(static_cast<int>(rows_->GetRow(item)) + 1);
    return cut.empty() || hint.empty() ? cut + hint : cut + "\n" + hint;
}

wxString ListViewBinding::CutTextIn(const wxDataViewItem& item, const wxDataViewColumn& column) const {
    wxVariant value;
    rows_->GetValue(value, item, column.GetModelColumn());
    const wxString text = value.GetString().Trim(); // the file may have blanks behind it
    const wxRect seen = list_->GetItemRect(item, &column).Intersect(list_->GetClientRect());
    const int needed = list_->GetTextExtent(text).x + 2 * MarginOfListText();
    return needed > seen.width ? text : wxString();
}

wxString ListViewBinding::HintOf(int item) const {
    std::string hint;
    if (model_.hint && item <= model_.Count()) {
        Gate().Answer([&] { hint = model_.hint(item); });
    }
    return Shown(hint);
}

void ListViewBinding::ShowAppearance() {
    ControlBinding::ShowAppearance();
    ShowColumnWidths();
}

void ListViewBinding::Rescale() {
    shownWidths_.assign(shownWidths_.size(), -1);
    ControlBinding::Rescale();
}

void ListViewBinding::ShowColumnWidths() {
    for (std::size_t i = 0; i < shownWidths_.size(); ++i) {
        // A width that the user has set stays until the program sets another.
        const int width = model_.Columns()[i].width;
        if (shownWidths_[i] != width) {
            shownWidths_[i] = width;
            list_->GetColumn(static_cast<unsigned>(i))->SetWidth(Context().scale.ToPixels(width));
        }
    }
}

void ListViewBinding::TakePick() {
    if (changing_) {
        return;
    }
    Gate().ActLater([this, item = RealSelection()] {
        // Without a row, as after a click with Ctrl, there is nothing to pick; the selection is shown again.
        if (item == 0 || item > model_.Count()) {
            return true;
        }
        model_.Pick(item);
        return model_.HasFocus();
    });
}

void ListViewBinding::PressKey(wxKeyEvent& event) {
    const auto press = KeyPressOf(event);
    if (ClipboardKeyOf(event) == ClipboardKey::Copy) {
        CopyCells(Context(), model_.Copy());
    } else if (press && (press->alt || press->key == Key::Delete)) {
        Gate().Act([&] { model_.Press(*press); });
    } else {
        event.Skip();
    }
}

void ListViewBinding::AskForMenu(const wxPoint& place) {
    if (place == wxDefaultPosition) {
        const auto selected = list_->GetSelection();
        const wxPoint below = selected.IsOk() ? list_->GetItemRect(selected).GetBottomLeft() : wxPoint();
        Context().menuPlace = list_->ClientToScreen(below);
    }
    Gate().Act([this] { model_.AskForMenu(); });
    Context().menuPlace.reset();
}

void ListViewBinding::ShowChanges() {
    ShowSelection();
    if (rowsChanged_) {
        rowsChanged_ = false;
        ShowVisibleRows();
    }
}

void ListViewBinding::ShowSelection() {
    const int item = model_.Selected();
    const bool reveals = std::exchange(reveals_, false) && item != 0;
    if (RealSelection() == item && !reveals) {
        return;
    }
    ChangeList([&] {
        if (item == 0) {
            list_->UnselectAll();
        } else {
            GoToRow(*list_, item - 1);
        }
    });
}

void ListViewBinding::ChangeList(const std::function<void()>& change) {
    // The selection that follows from it, such as that of a neighbour when a row goes, is not the user's
    // choice.
    changing_ = true;
    change();
    changing_ = false;
}

void ListViewBinding::ShowVisibleRows() {
    const auto top = list_->GetTopItem();
    if (!top.IsOk()) {
        return;
    }
    const unsigned first = rows_->GetRow(top);
    const auto perPage = static_cast<unsigned>(std::max(list_->GetCountPerPage(), 0));
    const unsigned end = std::min(first + perPage + 2, rows_->GetCount());
    for (unsigned row = first; row < end; ++row) {
        rows_->RowChanged(row);
    }
}

int ListViewBinding::RealSelection() const {
    const auto selected = list_->GetSelection();
    return selected.IsOk() ? static_cast<int>(rows_->GetRow(selected)) + 1 : 0;
}

} // namespace zy
