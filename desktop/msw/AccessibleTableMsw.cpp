#include "desktop/AccessibleTable.h"

#include <wx/variant.h>
#include <wx/window.h>

#include "desktop/AccessiblePartsMsw.h"

namespace zy {
namespace {

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

/// The table as the system's screen readers know it: its cells are counted row by row from the header on,
/// and have no objects, for screen readers take no deeper tree of a table. Since that tells nothing of
/// columns and rows, a cell is called by them.
class PartsOfTable final : public AccessibleParts {
  public:
    PartsOfTable(wxWindow& cells, TableContent& content) : AccessibleParts(cells), content_(content) {}

    int NumberOfCurrent() const override {
        const Cell current = content_.Current();
        return current.row < 1 ? kItself : NumberOf(current);
    }

    wxAccStatus GetName(int number, wxString* name) override {
        *name = number == kItself ? content_.Name() : NameOf(CellOf(number));
        return wxACC_OK;
    }
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
    wxAccStatus HitTest(const wxPoint& onScreen, int* number, wxAccessible** child) override {
        *child = nullptr;
        *number = NumberOf(content_.CellAt(onScreen));
        if (*number == kItself && Window().GetScreenRect().Contains(onScreen)) {
            *child = this;
        }
        return *number == kItself && *child == nullptr ? wxACC_FALSE : wxACC_OK;
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
            Window().SetFocus();
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
    int Count() const override { return content_.Rows() * content_.Columns(); }
    wxRect PlaceOf(int number) const override { return content_.PlaceOf(CellOf(number)); }
    /// The number of a cell; that of the table itself where there is no such cell.
    int NumberOf(const Cell& cell) const {
        const bool isCell = cell.row >= 0 && cell.row < content_.Rows() && cell.column >= 0 &&
                            cell.column < content_.Columns();
        return isCell ? cell.row * content_.Columns() + cell.column + 1 : kItself;
    }
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
        return wxACC_STATE_SYSTEM_FOCUSABLE | (HasKeyboard() ? wxACC_STATE_SYSTEM_FOCUSED : 0);
    }
    long StateOf(const Cell& cell) const {
        long state = content_.IsSeen(cell) ? 0 : wxACC_STATE_SYSTEM_OFFSCREEN;
        if (cell.row == 0) {
            return state;
        }
        state |= wxACC_STATE_SYSTEM_FOCUSABLE | wxACC_STATE_SYSTEM_SELECTABLE;
        if (cell == content_.Current() && HasKeyboard()) {
            state |= wxACC_STATE_SYSTEM_FOCUSED;
        }
        return content_.Selected().Contains(cell) ? state | wxACC_STATE_SYSTEM_SELECTED : state;
    }
    int NumberFrom(int from, wxNavDir direction) const override {
        switch (direction) {
        case wxNAVDIR_FIRSTCHILD:
            return from == kItself ? 1 : kItself;
        case wxNAVDIR_LASTCHILD:
            return from == kItself ? Count() : kItself;
        case wxNAVDIR_NEXT:
            return from + 1;
        case wxNAVDIR_PREVIOUS:
            return from - 1;
        default:
            return NumberOf(Neighbour(CellOf(from), direction));
        }
    }

    TableContent& content_;
};

/// Tells the system's listeners of the changes.
class TableOfCells final : public AccessibleTable {
  public:
    TableOfCells(wxWindow& cells, TableContent& content) : parts_(cells, new PartsOfTable(cells, content)) {}

    void TellCurrent() override {
        parts_.TellFocus();
        parts_.TellOfCurrent(wxACC_EVENT_OBJECT_SELECTION);
    }
    void TellText() override { parts_.TellOfCurrent(wxACC_EVENT_OBJECT_NAMECHANGE); }
    void TellSelected() override {
        parts_.TellOfItself(wxACC_EVENT_OBJECT_SELECTIONWITHIN);
        // It says how much is selected.
        parts_.TellOfCurrent(wxACC_EVENT_OBJECT_DESCRIPTIONCHANGE);
    }
    void TellRows(int /*before*/) override { parts_.TellOfItself(wxACC_EVENT_OBJECT_REORDER); }

  private:
    PartsTold parts_;
};

} // namespace

std::unique_ptr<AccessibleTable> MakeAccessibleTable(wxWindow& cells, TableContent& content) {
    return std::make_unique<TableOfCells>(cells, content);
}

} // namespace zy
