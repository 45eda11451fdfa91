#pragma once

#include "controls/CommandButton.h"
#include "controls/Grid.h"
#include "security/UserRecord.h"

namespace zy {

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
