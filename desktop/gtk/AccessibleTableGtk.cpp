#include <wx/window.h>

#include <utility>

#include "desktop/AccessibleTable.h"
#include "desktop/CellObject.h"
#include "desktop/TableObject.h"

namespace zy {
namespace {

class TableTold : public AccessibleTable {
  public:
    TableTold(wxWindow& cells, TableContent& content)
        : content_(content), table_(MakeTableObject(cells.GetHandle(), content)),
          // Behind what the window system itself tells of the focus, so that the cell has the last word.
          focus_(
              g_signal_connect_swapped(table_.get(), "state-change::focused", G_CALLBACK(TellFocus), this)) {}
    ~TableTold() override {
        g_signal_handler_disconnect(table_.get(), focus_);
        DropContent(table_.get());
    }
    TableTold(const TableTold&) = delete;
    TableTold& operator=(const TableTold&) = delete;

    void TellCurrent() override;
    void TellText() override;
    void TellSelected() override;
    void TellRows(int before) override;

  private:
    static void TellFocus(TableTold* table) { table->TellCurrent(); }
    /// Says that a property of the current cell's object is another one.
    void TellChanged(const char* property);

    TableContent& content_;
    HeldObject table_;
    gulong focus_;
    /// Held as long as it is the current one, so that it can be asked.
    HeldObject current_;
};

void TableTold::TellCurrent() {
    const HeldObject before = std::move(current_);
    const Cell cell = content_.Current();
    if (cell.row < 1) {
        return;
    }
    current_ = MakeCellObject(table_.get(), cell);
    g_signal_emit_by_name(table_.get(), "active-descendant-changed", current_.get());
    if (HasKeyboard(table_.get())) {
        atk_object_notify_state_change(current_.get(), ATK_STATE_FOCUSED, 1);
    }
}

void TableTold::TellChanged(const char* property) {
    if (current_ != nullptr) {
        g_object_notify(reinterpret_cast<GObject*>(current_.get()), property);
    }
}

void TableTold::TellText() {
    TellChanged("accessible-name");
    // Orca takes no notice of a new name in a table, but says that a cell has become empty.
    TellChanged("accessible-description");
}

void TableTold::TellSelected() {
    g_signal_emit_by_name(table_.get(), "selection-changed");
    TellChanged("accessible-description");
}

void TableTold::TellRows(int before) {
    const int now = content_.Rows();
    constexpr int kHeader = 1;
    if (now > before) {
        g_signal_emit_by_name(table_.get(), "row-inserted", before - kHeader, now - before);
    } else if (now < before) {
        g_signal_emit_by_name(table_.get(), "row-deleted", now - kHeader, before - now);
    }
    g_signal_emit_by_name(table_.get(), "model-changed");
}

} // namespace

std::unique_ptr<AccessibleTable> MakeAccessibleTable(wxWindow& cells, TableContent& content) {
    return std::make_unique<TableTold>(cells, content);
}

} // namespace zy
