#include <wx/window.h>

#include <utility>

#include "desktop/AccessibleTable.h"
#include "desktop/TableObject.h"

namespace zy {
namespace {

class TableTold : public AccessibleTable {
  public:
    TableTold(wxWindow& cells, TableContent& content)
        : content_(content), table_(MakeTableObject(cells.GetHandle(), content)),
          widget_(static_cast<GtkWidget*>(g_object_ref(cells.GetHandle()))),
          focus_(g_signal_connect_swapped(widget_.get(), "notify::has-focus", G_CALLBACK(TellFocus), this)) {}
    ~TableTold() override {
        // A widget that is destroyed before has lost its handlers.
        if (g_signal_handler_is_connected(widget_.get(), focus_) != 0) {
            g_signal_handler_disconnect(widget_.get(), focus_);
        }
        DropContent(table_.get());
    }
    TableTold(const TableTold&) = delete;
    TableTold& operator=(const TableTold&) = delete;

    void TellCurrent() override;
    void TellText() override;
    void TellSelected() override;
    void TellRows(int before) override;

  private:
    /// The keyboard has come or gone.
    static void TellFocus(TableTold* table) { table->TellCurrent(); }
    /// Says that a property of the current cell's object is another one.
    void TellChanged(const char* property);

    TableContent& content_;
    HeldObject table_;
    std::unique_ptr<GtkWidget, Unref> widget_;
    gulong focus_;
    AtkObject* current_ = nullptr; ///< the table's own
    Cell focused_;                 ///< the cell that was last said to have the focus
};

void TableTold::TellCurrent() {
    // Told twice, as when the keyboard comes and the cell is another one, a screen reader would begin anew.
    const Cell cell = HasKeyboard(table_.get()) ? content_.Current() : Cell();
    if (cell == std::exchange(focused_, cell) || cell.row < 1) {
        return;
    }
    current_ = MakeCurrentObject(table_.get(), cell);
    g_signal_emit_by_name(table_.get(), "active-descendant-changed", current_);
    atk_object_notify_state_change(current_, ATK_STATE_FOCUSED, 1);
}

void TableTold::TellChanged(const char* property) {
    if (current_ != nullptr) {
        g_object_notify(reinterpret_cast<GObject*>(current_), property);
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
