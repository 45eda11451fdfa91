#pragma once

#include "controls/CommandButton.h"
#include "controls/Grid.h"

namespace zy {

/// The columns of the users grid. Their order differs from that of the table's columns, which is meant.
enum UsersColumn { kUserName, kPassword, kStatus, kExpiryDate, kIdentification, kUsersColumns };

/// The controls of the users page, in tab order.
struct SecurityControls {
    explicit SecurityControls(Frame& fraSecurity);

    Grid grdSecurity;
    CommandButton cmdAddUser;
    CommandButton cmdDeleteUser;
    CommandButton cmdSaveUsers;
    CommandButton cmdHelpSecurity;
};

} // namespace zy
