#include "desktop/AccessibleTable.h"

#include <wx/msw/wrapwin.h>
#include <wx/window.h>

#include <oleacc.h>

#include "desktop/AccessibleMsw.h"

namespace zy {
namespace {

/// The toolkit paints its grid, so that its cells are nothing to a screen reader: the window that has the
/// keyboard stands for the current one, and bears its text as its name.
class CurrentCellAsWindow : public AccessibleTable {
  public:
    CurrentCellAsWindow(wxWindow& cells, const TableContent& content) : cells_(cells), content_(content) {
        AnnotateRole(cells, ROLE_SYSTEM_CELL);
        TellCurrent();
    }

    void TellCurrent() override { TellText(); }
    void TellText() override { AnnotateName(cells_, NameOfCurrent()); }
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
