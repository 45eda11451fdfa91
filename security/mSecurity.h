#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "basics/Bool16.h"
#include "controls/Event.h"
#include "controls/Grid.h"
#include "security/UserChecks.h"
#include "security/UserRecord.h"
#include "security/UsersReader.h"
#include "security/UsersWriter.h"
#include "security/frmLogin.h"
#include "shell/TraceChannel.h"

// security: the users editor. mSecurity holds the list of users, their table (UsersReader, UsersWriter) and
// the checks (UserChecks), SecurityPage is the page with its grid and handlers, frmLogin and frmDatePicker
// are its dialogs. It calls dbase and ini, the low part of the shell and what lies below that.

namespace zy {

/// The users: the list, the table that it is read from and written to, and the checks.
///
/// Between loading and saving the rows of the grid are what is edited, row r being user r - 1 of the list.
/// That is why the module knows the grid: adding and removing a user does so in both, and a check makes the
/// cell current that fails.
class mSecurity {
  public:
    mSecurity(Grid& grdSecurity, UsersReader& reader, UsersWriter& writer, UserChecks& checks,
              AdminLogin& login, TraceChannel& trace);

    /// Reads the table, or starts with one new user when there is none, and asks the administrator to log in
    /// where the table names one. True when the editor may open.
    ///
    /// A table that is damaged or cannot be read is a run-time error of the table engine. More than 32,767
    /// users are run-time error 6, a place that could mean several files 75.
    Bool16 LoadSecurityData();
    /// Copies the grid's rows into the list, which has an element for each of them.
    void Save_Security();
    /// Writes the list to a new table and puts it in place of the old one. The old table stays until the new
    /// one stands on the disk. Whatever fails is raised, and the new table's file is left behind; the next
    /// attempt then fails until it has been removed. Run-time error 75, before anything is written, when one
    /// of the files could be several.
    void Write_Security();
    /// Builds the table's index anew. Whatever fails is raised.
    void WriteDBIndex();

    /// Appends a user to the list and the grid, and makes its row current. False, and nothing is added, when
    /// a counter would not hold one more: 32,767 are the most.
    bool Add_User();
    /// Removes a row of the grid and its user. The list keeps one element, which the next user takes.
    /// Run-time error 9 when there is no such row.
    void DeleteUser(int row);
    /// Gives the list as many users as the grid has after rows came or went in it otherwise.
    void MatchRows();
    /// Checks every row and shows the first failure, whose cell becomes current.
    Bool16 Validate_Security();

    /// Whether the grid holds a user.
    bool HasUsers() const { return grdSecurity_.cells.Rows() >= 2; }
    /// The full path of the table that is loaded.
    std::string TablePath() const { return writer_.TablePath(); }
    /// The folder of the table, with its closing "\".
    std::string SecurityFolder() const { return writer_.Folder(); }

    /// A whole save of the list: Write_Security and WriteDBIndex, or without users the table and its index of
    /// a folder go to the recycle bin. Whatever fails is raised. Run-time error 75 as above.
    ///
    /// False when the save is refused before its first step, as `reported` says: somebody else is saving
    /// in the folder.
    bool WriteAll(std::string_view folderWithoutUsers);

    /// What a save would drop of the table that was loaded, or find in its way, for the status bar. A save
    /// that goes well ends it.
    const std::string& Dangers() const { return dangers_; }

    /// The Cancel button ended the login: the program is to end.
    Event<> loginCancelled;
    /// Short texts for the status bar: why a save was refused.
    Event<const std::string&> reported;
    SaveHooks saveHooks;

    /// Counted from 0; never empty once it was loaded. It is a copy of what the grid shows, which costs 160
    /// bytes a user and what does not fit into them: what is typed belongs to the list only once it is saved,
    /// and a save whose checks fail leaves the list as it was.
    std::vector<UserRecord> zySecure;
    Bool16 newSecurityFile; ///< there was no table to load

  private:
    /// Writes the table and its index, or takes them away from the folder where there are no users.
    void WriteInTurn(const std::string& folder);
    void Start(std::string_view procedure);
    void Trace(std::string_view procedure, std::string_view message);
    Bool16 LogIn(std::string_view adminPassword);

    Grid& grdSecurity_;
    UsersReader& reader_;
    UsersWriter& writer_;
    UserChecks& checks_;
    AdminLogin& login_;
    TraceChannel& trace_;
    std::string dangers_;
};

} // namespace zy
