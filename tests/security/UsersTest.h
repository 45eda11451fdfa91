#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dbase/DBEngine.h"
#include "security/frmDatePicker.h"
#include "security/frmLogin.h"
#include "support/ProgramTest.h"
#include "support/RaisedError.h"

namespace zy::test {

inline constexpr std::string_view kUsersTable = R"(C:\SYS\ZYSECURE.DBF)";
inline constexpr std::string_view kUsersTemporary = R"(C:\SYS\ZYSECURE.TMP)";
inline constexpr std::string_view kUsersIndex = R"(C:\SYS\ZYSECURE.NDX)";

/// The program in its users mode, over a disk in memory, driven as a person does it.
class UsersTest : public ProgramTest {
  protected:
    using Users = std::vector<UserRecord>;

    static UserRecord User(std::string_view name, std::string_view password = "secret") {
        return {.USERID = std::string(name),
                .PASSWORD = std::string(password),
                .IDENTIFIER = "id of " + std::string(name),
                .EXPDATE = "",
                .STATUS = "A"};
    }

    /// Puts a table of these users on the disk.
    void PutTable(const Users& users, std::string_view folder = R"(C:\SYS\)") {
        dbase::DBEngine engine(world.files, [this] { return world.system.Today(); });
        const auto database = engine.OpenDatabase(folder, false, false, "dBase III");
        world.files.AddFolder(folder);
        database->Execute("CREATE TABLE [ZYSECURE.DBF] (USERID TEXT (10), PASSWORD TEXT (20), "
                          "IDENTIFIER TEXT(20),EXPDATE TEXT (8), STATUS TEXT(1));");
        for (const auto& user : users) {
            database->Execute("INSERT INTO [ZYSECURE.DBF] (USERID, PASSWORD, IDENTIFIER, EXPDATE, STATUS) "
                              "VALUES ('" +
                              user.USERID + "', '" + user.PASSWORD + "', '" + user.IDENTIFIER + "', '" +
                              user.EXPDATE + "', '" + user.STATUS + "');");
        }
        database->Close();
    }
    /// The users in a table on the disk; nothing when there is no table.
    std::optional<Users> TableUsers(std::string_view folder = R"(C:\SYS\)") {
        if (!world.files.Exists(std::string(folder) + "ZYSECURE.DBF")) {
            return std::nullopt;
        }
        dbase::DBEngine engine(world.files, [this] { return world.system.Today(); });
        const auto database = engine.OpenDatabase(folder, false, false, "dBase III");
        const auto records = database->OpenRecordset("ZYSECURE.DBF", dbase::RecordsetType::Dynaset);
        Users users;
        for (; !records->Eof(); records->MoveNext()) {
            const auto value = [&](int column) {
                return std::string(records->Fields().Item(column).Value());
            };
            users.push_back({.USERID = value(0),
                             .PASSWORD = value(1),
                             .IDENTIFIER = value(2),
                             .EXPDATE = value(3),
                             .STATUS = value(4)});
        }
        return users;
    }

    /// Starts the editor over a table that names no administrator.
    void StartOver(const Users& users) {
        PutTable(users);
        Start("@SECURITY");
        Traces();
    }
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
        for (int row = 1; row < grid().Rows(); ++row) {
            std::string text(grid().Text(row, 0));
            for (int column = 1; column < grid().Columns(); ++column) {
                text += "|" + std::string(grid().Text(row, column));
            }
            rows.push_back(text);
        }
        return rows;
    }
    /// A committed edit.
    void Edit(int row, int column, std::string_view text) {
        grid().Pick(row, column);
        grid().OpenEditor();
        grid().EnterEditText(text, text.size(), 0);
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
        EXPECT_EQ(grid().Row(), row);
        EXPECT_EQ(grid().Column(), column);
    }
    void ExpectSaveEnabled(bool enabled) { EXPECT_EQ(controls().cmdSaveUsers.Enabled(), enabled); }
    void ExpectDeleteEnabled(bool enabled) {
        EXPECT_EQ(controls().cmdDeleteUser.Enabled(), enabled);
        EXPECT_EQ(deleteEntry().Enabled(), enabled);
    }
};

} // namespace zy::test
