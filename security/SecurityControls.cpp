#include "security/SecurityControls.h"

namespace zy {

SecurityControls::SecurityControls(Frame& fraSecurity)
    : grdSecurity(&fraSecurity, "grdSecurity", kUsersColumns),
      cmdAddUser(&fraSecurity, "cmdAddUser", "Add", 'A'),
      cmdDeleteUser(&fraSecurity, "cmdDeleteUser", "Delete", 'D'),
      cmdSaveUsers(&fraSecurity, "cmdSaveUsers", "Save", 'S'),
      cmdHelpSecurity(&fraSecurity, "cmdHelpSecurity", "Help", 'p') {
    grdSecurity.SetCaption("Users");
    grdSecurity.columns.SetList(kStatus, CellList("A|I"));
    grdSecurity.cells.SetText(0, kUserName, "User Name");
    grdSecurity.cells.SetText(0, kPassword, "Password");
    grdSecurity.cells.SetText(0, kStatus, "Status");
    grdSecurity.cells.SetText(0, kExpiryDate, "Expiry Date");
    grdSecurity.cells.SetText(0, kIdentification, "User Identification");
}

} // namespace zy
