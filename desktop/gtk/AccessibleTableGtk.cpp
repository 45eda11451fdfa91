#include "desktop/AccessibleTable.h"

#include <glib-object.h>
#include <wx/window.h>

#include "desktop/GtkFunctions.h"
#include "desktop/Native.h"

extern "C" {
int atk_role_for_name(const char* name);
void atk_object_set_role(_AtkObject* accessible, int role);
}

namespace zy {
namespace {

/// The toolkit paints its grid, so that its cells are nothing to a screen reader: the window that has the
/// keyboard stands for the current one, and bears its text as its name.
class CurrentCellAsWindow : public AccessibleTable {
  public:
    CurrentCellAsWindow(wxWindow& cells, const TableContent& content) : cells_(cells), content_(content) {
        atk_object_set_role(gtk_widget_get_accessible(cells.GetHandle()), atk_role_for_name("table cell"));
        TellCurrent();
    }

    void TellCurrent() override { TellText(); }
    void TellText() override {
        const wxString name = NameOfCurrent();
        SetAccessibleName(cells_, name);
        auto* accessible = gtk_widget_get_accessible(cells_.GetHandle());
        // Known since version 2.46 of the library.
        constexpr const char* kAnnouncement = "announcement";
        if (cells_.HasFocus() && g_signal_lookup(kAnnouncement, G_OBJECT_TYPE(accessible)) != 0) {
            g_signal_emit_by_name(accessible, kAnnouncement, static_cast<const char*>(name.utf8_str()));
        }
    }
    void TellSelected() override {}
    void TellRows(int /*before*/) override { TellText(); }

  private:
    wxString NameOfCurrent() const {
        const Cell cell = content_.Current();
        return cell.row < 1 ? content_.Name()
                            : content_.Text({0, cell.column}) + " " + content_.Text(cell) +
                                  wxString::Format(", row %d of %d", cell.row, content_.Rows() - 1);
    }

    wxWindow& cells_;
    const TableContent& content_;
};

} // namespace

std::unique_ptr<AccessibleTable> MakeAccessibleTable(wxWindow& cells, TableContent& content) {
    return std::make_unique<CurrentCellAsWindow>(cells, content);
}

} // namespace zy
