#pragma once

#include "GridWindow.h"
#include "support/UsersOnDisk.h"

namespace zy::test {

/// The users editor in its real window.
class UsersWindow : public GridWindow {
  protected:
    UsersWindow() : GridWindow("@SECURITY") {}

    static Users TwoUsers() { return {User("Ann"), User("Bob")}; }
    void PutUsers(const Users& users) { PutUsersTable(world, users); }
    std::optional<Users> Table() { return UsersInTable(world); }

    SecurityControls& page() { return program->securityPage.controls; }
    Grid& grid() override { return page().grdSecurity; }
};

} // namespace zy::test
