#include "desktop/AccessibleTable.h"

#include <wx/access.h>
#include <wx/variant.h>
#include <wx/weakref.h>
#include <wx/window.h>

#include <optional>

namespace zy {
namespace {

constexpr int kItself = wxACC_SELF;

Cell Neighbour(Cell cell, wxNavDir direction) {
    switch (direction) {
    case wxNAVDIR_UP:
        --cell.row;
        break;
    case wxNAVDIR_DOWN:
        ++cell.row;
        break;
    case wxNAVDIR_LEFT:
        --cell.column;
        break;
    case wxNAVDIR_RIGHT:
        ++cell.column;
        break;
    default:
        break;
    }
    return cell;
}

/// The table as the system's screen readers know it. They count the cells from 1 on, row by row from the
/// header on, and there is no object for a cell: screen readers take no deeper tree of a table. Since that
/// tells nothing of columns and rows, a cell is called by them.
class CellsAccessible final : public wxAccessible {
  public:
    CellsAccessible(wxWindow& cells, TableContent& content)
        : wxAccessible(&cells), cells_(cells), content_(content) {}

    /// The number of a cell; that of the table itself where there is no such cell.
    int NumberOf(const Cell& cell) const {
        const bool isCell = cell.row >= 0 && cell.row < content_.Rows() && cell.column >= 0 &&
                            cell.column < content_.Columns();
        return isCell ? cell.row * content_.Columns() + cell.column + 1 : kItself;
    }
    int NumberOfCurrent() const {
        const Cell current = content_.Current();
        return current.row < 1 ? kItself : NumberOf(current);
    }

    wxAccStatus GetChildCount(int* count) override {
        *count = content_.Rows() * content_.Columns();
        return wxACC_OK;
    }
    wxAccStatus GetChild(int /*number*/, wxAccessible** child) override {
        *child = nullptr;
        return wxACC_OK;
    }
    wxAccStatus GetName(int number, wxString* name) override {
        *name = number == kItself ? content_.Name() : NameOf(CellOf(number));
        return wxACC_OK;
    }
    wxAccStatus GetValue(int /*number*/, wxString* /*value*/) override { return wxACC_NOT_SUPPORTED; }
    wxAccStatus GetDescription(int number, wxString* description) override {
        *description = number == kItself ? wxString() : content_.Description(CellOf(number));
        return wxACC_OK;
    }
    wxAccStatus GetRole(int number, wxAccRole* role) override {
        *role = number == kItself  ? wxROLE_SYSTEM_TABLE
                : IsHeader(number) ? wxROLE_SYSTEM_COLUMNHEADER
                                   : wxROLE_SYSTEM_CELL;
        return wxACC_OK;
    }
    wxAccStatus GetState(int number, long* state) override {
        *state = number == kItself ? StateOfTable() : StateOf(CellOf(number));
        return wxACC_OK;
    }
    wxAccStatus GetLocation(wxRect& place, int number) override {
        if (number == kItself) {
            return wxACC_NOT_IMPLEMENTED; // the system knows it
        }
        place = content_.PlaceOf(CellOf(number));
        return wxACC_OK;
    }
    wxAccStatus HitTest(const wxPoint& onScreen, int* number, wxAccessible** child) override {
        *child = nullptr;
        *number = NumberOf(content_.CellAt(onScreen));
        if (*number == kItself && cells_.GetScreenRect().Contains(onScreen)) {
            *child = this;
        }
        return *number == kItself && *child == nullptr ? wxACC_FALSE : wxACC_OK;
    }
    wxAccStatus Navigate(wxNavDir direction, int from, int* number, wxAccessible** child) override {
        *child = nullptr;
        if (from == kItself && direction != wxNAVDIR_FIRSTCHILD && direction != wxNAVDIR_LASTCHILD) {
            return wxACC_NOT_IMPLEMENTED; // from window to window
        }
        *number = NumberFrom(from, direction);
        return *number == kItself ? wxACC_FALSE : wxACC_OK;
    }
    wxAccStatus GetFocus(int* number, wxAccessible** child) override {
        *number = cells_.HasFocus() ? NumberOfCurrent() : kItself;
        *child = cells_.HasFocus() && *number == kItself ? this : nullptr;
        return wxACC_OK;
    }
    wxAccStatus GetSelections(wxVariant* selections) override {
        // Of a block the current cell alone: nobody can go safely through the toolkit's list of several,
        // which begins anywhere. The cells' own states tell who belongs to the block.
        if (NumberOfCurrent() != kItself) {
            *selections = static_cast<long>(NumberOfCurrent());
        }
        return wxACC_OK;
    }
    wxAccStatus Select(int number, wxAccSelectionFlags flags) override {
        constexpr int kGoesThere = wxACC_SEL_TAKEFOCUS | wxACC_SEL_TAKESELECTION;
        if (!IsData(number) || (flags & kGoesThere) == 0) {
            return wxACC_NOT_SUPPORTED;
        }
        if ((flags & wxACC_SEL_TAKEFOCUS) != 0) {
            cells_.SetFocus();
        }
        content_.Pick(CellOf(number));
        return wxACC_OK;
    }
    wxAccStatus GetDefaultAction(int number, wxString* action) override {
        if (!IsData(number)) {
            return wxACC_NOT_SUPPORTED;
        }
        *action = content_.HasChoices(CellOf(number)) ? "Open list" : "Edit";
        return wxACC_OK;
    }
    wxAccStatus DoDefaultAction(int number) override {
        if (!IsData(number)) {
            return wxACC_NOT_SUPPORTED;
        }
        content_.Open(CellOf(number));
        return wxACC_OK;
    }

  private:
    Cell CellOf(int number) const {
        return {.row = (number - 1) / content_.Columns(), .column = (number - 1) % content_.Columns()};
    }
    bool IsHeader(int number) const { return number > kItself && number <= content_.Columns(); }
    bool IsData(int number) const { return number > content_.Columns(); }

    wxString NameOf(const Cell& cell) const {
        wxString name = content_.Text({.row = 0, .column = cell.column});
        if (cell.row > 0) {
            const wxString text = content_.Text(cell);
            name += (text.empty() ? text : ' ' + text) +
                    wxString::Format(", row %d of %d", cell.row, content_.Rows() - 1);
        }
        return name;
    }
    long StateOfTable() const {
        return wxACC_STATE_SYSTEM_FOCUSABLE | (cells_.HasFocus() ? wxACC_STATE_SYSTEM_FOCUSED : 0);
    }
    long StateOf(const Cell& cell) const {
        long state = content_.IsSeen(cell) ? 0 : wxACC_STATE_SYSTEM_OFFSCREEN;
        if (cell.row == 0) {
            return state;
        }
        state |= wxACC_STATE_SYSTEM_FOCUSABLE | wxACC_STATE_SYSTEM_SELECTABLE;
        if (cell == content_.Current() && cells_.HasFocus()) {
            state |= wxACC_STATE_SYSTEM_FOCUSED;
        }
        return content_.Selected().Contains(cell) ? state | wxACC_STATE_SYSTEM_SELECTED : state;
    }
    /// That of the table itself where there is nothing in this direction.
    int NumberFrom(int from, wxNavDir direction) const {
        const int count = content_.Rows() * content_.Columns();
        switch (direction) {
        case wxNAVDIR_FIRSTCHILD:
            return from == kItself && count > 0 ? 1 : kItself;
        case wxNAVDIR_LASTCHILD:
            return from == kItself ? count : kItself;
        case wxNAVDIR_NEXT:
            return from < count ? from + 1 : kItself;
        case wxNAVDIR_PREVIOUS:
            return from - 1;
        default:
            return NumberOf(Neighbour(CellOf(from), direction));
        }
    }

    wxWindow& cells_;
    TableContent& content_;
};

/// Tells the system's listeners of the changes.
class TableOfCells final : public AccessibleTable {
  public:
    TableOfCells(wxWindow& cells, TableContent& content)
        : cells_(&cells), accessible_(new CellsAccessible(cells, content)) {
        cells.SetAccessible(accessible_);
        cells.Bind(wxEVT_SET_FOCUS, &TableOfCells::TakeFocus, this);
    }
    ~TableOfCells() override {
        if (cells_) {
            cells_->Unbind(wxEVT_SET_FOCUS, &TableOfCells::TakeFocus, this);
            cells_->SetAccessible(nullptr);
        }
    }
    TableOfCells(const TableOfCells&) = delete;
    TableOfCells& operator=(const TableOfCells&) = delete;

    void TellCurrent() override {
        if (cells_->HasFocus()) {
            TellOfCurrent(wxACC_EVENT_OBJECT_FOCUS);
        }
        TellOfCurrent(wxACC_EVENT_OBJECT_SELECTION);
    }
    void TellText() override { TellOfCurrent(wxACC_EVENT_OBJECT_NAMECHANGE); }
    void TellSelected() override {
        Tell(wxACC_EVENT_OBJECT_SELECTIONWITHIN, kItself);
        // It says how much is selected.
        TellOfCurrent(wxACC_EVENT_OBJECT_DESCRIPTIONCHANGE);
    }
    void TellRows(int /*before*/) override { Tell(wxACC_EVENT_OBJECT_REORDER, kItself); }

  private:
    void TakeFocus(wxFocusEvent& event) {
        event.Skip();
        // Behind the system's own event, which is of the window as a whole.
        cells_->CallAfter([this] {
            if (cells_->HasFocus()) {
                TellOfCurrent(wxACC_EVENT_OBJECT_FOCUS);
            }
        });
    }
    void TellOfCurrent(int event) const { Tell(event, accessible_->NumberOfCurrent()); }
    void Tell(int event, int number) const {
        wxAccessible::NotifyEvent(event, cells_, wxOBJID_CLIENT, number);
    }

    wxWeakRef<wxWindow> cells_;
    CellsAccessible* accessible_; ///< the window's own
};

} // namespace

std::unique_ptr<AccessibleTable> MakeAccessibleTable(wxWindow& cells, TableContent& content) {
    return std::make_unique<TableOfCells>(cells, content);
}

} // namespace zy
