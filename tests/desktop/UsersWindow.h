#pragma once

#include "GridWindow.h"
#include "support/UsersOnDisk.h"

class wxDialog;

namespace zy::test {

/// The users editor in its real window, with its dialogs.
class UsersWindow : public GridWindow {
  protected:
    UsersWindow() : GridWindow("@SECURITY") {}

    static Users TwoUsers() { return {User("Ann"), User("Bob")}; }
    void PutUsers(const Users& users) { PutUsersTable(world, users); }
    std::optional<Users> Table() { return UsersInTable(world); }

    // What the person does.
    /// Types over a cell and presses Enter.
    void Fill(int row, int column, const std::string& text);
    /// Clicks with the right button and waits for the menu.
    void OpenMenuAt(const wxPoint& place);
    /// Picks the entry of the open menu to which this key goes.
    void ChooseFromMenu(int key);

    // The dialogs, by the names of dialog and control.
    void WaitForDialog(const std::string& name);
    void WaitForNoDialog(const std::string& name);
    void ClickIn(const std::string& control);
    void WaitForFocusIn(const std::string& control);

    /// The middle of the header.
    wxPoint PlaceOfHeader();

    // For the window's thread.
    static wxWindow& RealNamed(const std::string& name);
    static wxDialog* RealDialog(const std::string& name);

    SecurityControls& page() { return program->securityPage.controls; }
    Grid& grid() override { return page().grdSecurity; }
};

} // namespace zy::test
