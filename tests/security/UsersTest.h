#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "security/frmDatePicker.h"
#include "security/frmLogin.h"
#include "support/ProgramTest.h"
#include "support/RaisedError.h"
#include "support/UsersOnDisk.h"

namespace zy::test {

inline constexpr std::string_view kUsersTable = R"(C:\SYS\ZYSECURE.DBF)";
inline constexpr std::string_view kUsersTemporary = R"(C:\SYS\ZYSECURE.TMP)";
inline constexpr std::string_view kUsersIndex = R"(C:\SYS\ZYSECURE.NDX)";

/// The program in its users mode, over a disk in memory, driven as a person does it.
class UsersTest : public ProgramTest {
  protected:
    void PutTable(const Users& users, std::string_view folder = R"(C:\SYS\)") {
        PutUsersTable(world, users, folder);
    }
    std::optional<Users> TableUsers(std::string_view folder = R"(C:\SYS\)") {
        return UsersInTable(world, folder);
    }

    /// Starts the editor over a table that names no administrator.
    void StartOver(const Users& users) {
        PutTable(users);
        Start("@SECURITY");
        Traces();
    }
    /// From here on nothing is done but the steps of the editor itself: nobody looks whether another program
    /// has written to the table.
    void LeaveTableUnwatched() { program().list.reset(); }
    /// The login comes, and the person does this in it.
    void ExpectLogin(const std::function<void(frmLogin&)>& person) {
        world.dialogs.ExpectForm([person](Form& form) { person(dynamic_cast<frmLogin&>(form)); });
    }
    void ExpectCalendar(const std::function<void(frmDatePicker&)>& person) {
        world.dialogs.ExpectForm([person](Form& form) { person(dynamic_cast<frmDatePicker&>(form)); });
    }

    SecurityPage& page() { return program().securityPage; }
    SecurityControls& controls() { return page().controls; }
    Grid& grid() { return page().controls.grdSecurity; }
    MenuItem& deleteEntry() { return form().menu.mnuDeleteUser; }
    const std::string& Status() { return form().zyStatusBar.Text(); }

    /// The user rows of the grid, cells joined by "|".
    std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        for (int row = 1; row < grid().cells.Rows(); ++row) {
            std::string text(grid().cells.Text(row, 0));
            for (int column = 1; column < grid().cells.Columns(); ++column) {
                text += "|" + std::string(grid().cells.Text(row, column));
            }
            rows.push_back(text);
        }
        return rows;
    }
    /// A committed edit.
    void Edit(int row, int column, std::string_view text) {
        grid().Pick(row, column);
        grid().OpenEditor();
        grid().editor.Enter(text, text.size(), 0);
        grid().Press({Key::Enter});
    }
    void Save() { controls().cmdSaveUsers.Click(); }
    void ChooseSave() { form().menu.mnuSave.Click(); }
    void Delete(Answer answer) {
        world.dialogs.ExpectYesNo("Are you sure you wish to delete this User?", "Confirm Delete", answer,
                                  Escape::AnswersNo);
        controls().cmdDeleteUser.Click();
    }
    void ExpectCurrent(int row, int column) {
        EXPECT_EQ(grid().selection.Row(), row);
        EXPECT_EQ(grid().selection.Column(), column);
    }
    void ExpectSaveEnabled(bool enabled) { EXPECT_EQ(controls().cmdSaveUsers.Enabled(), enabled); }
    void ExpectDeleteEnabled(bool enabled) {
        EXPECT_EQ(controls().cmdDeleteUser.Enabled(), enabled);
        EXPECT_EQ(deleteEntry().Enabled(), enabled);
    }
};

} // namespace zy::test
