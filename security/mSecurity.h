#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "basics/Bool16.h"
#include "controls/Event.h"
#include "dbase/DBEngine.h"
#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "platform/RecycleBin.h"
#include "platform/SystemInfo.h"
#include "security/SecurityControls.h"
#include "security/UnfinishedSave.h"
#include "security/UserRecord.h"
#include "shell/SettingsForm.h"
#include "shell/TraceChannel.h"
#include "shell/mZYGlobal.h"

// security: the users editor. mSecurity holds the list of users, reads and writes their table and has the
// checks, SecurityPage is the page with its grid and handlers, frmLogin and frmDatePicker are its dialogs. It
// calls dbase and ini, the low part of the shell and what lies below that.

namespace zy {

/// The users: the list, the table that it is read from and written to, and the checks of the grid.
class mSecurity {
  public:
    mSecurity(SecurityControls& controls, SettingsForm& form, SharedState& state, TraceChannel& trace,
              FileSystem& files, RecycleBin& recycleBin, SystemInfo& system, Dialogs& dialogs,
              const CodePage& codePage);

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
    /// Builds the table's index anew.
    void WriteDBIndex();
    /// Moves the table and its index from a folder to the recycle bin, in place of writing a table without
    /// users. Run-time error 75 as above.
    void RecycleTable(std::string_view folder);

    /// Appends a user to the list and the grid, and makes its row current. False, and nothing is added, when
    /// a counter would not hold one more: 32,767 are the most.
    bool Add_User();
    /// Removes a row of the grid and its user. The list keeps one element, which the next user takes.
    void DeleteUser(int row);
    /// Checks every row and shows the first failure, whose cell becomes current.
    Bool16 Validate_Security();

    /// The folder of the table, with its closing "\".
    std::string SecurityFolder() const;

    /// The person at the login pressed Cancel: the program is to end.
    Event<> loginCancelled;

    /// What a person has to know of the table that was loaded, before it is saved; for the status bar.
    Event<const std::string&> reported;

    std::vector<UserRecord> zySecure; ///< counted from 0; never empty once it was loaded
    Bool16 newSecurityFile;           ///< there was no table to load

  private:
    void Start(std::string_view procedure);
    void Trace(std::string_view procedure, std::string_view message);
    /// Where the table is, as the look-up gave it. A path that a person typed may have "/" for "\".
    std::string TablePath() const;
    /// The table's name for the engine: exactly that of the file, also when it has no extension.
    std::string TableName() const;
    void StartNewList();
    /// Reads the users, and the administrator's password; false when the table names no administrator.
    bool ReadTable();
    /// Says what a save would drop or find in its way.
    void Report(std::string_view losses);
    Bool16 LogIn();

    void OpenDatabase();
    std::string ColumnList();
    void CreateTemporary();
    void InsertUsers(const std::string& columns);
    void ReplaceTable(FailedSave& save);
    void WriteTable(FailedSave& save);

    SecurityControls& controls_;
    SettingsForm& form_;
    SharedState& state_;
    TraceChannel& trace_;
    FileSystem& files_;
    RecycleBin& recycleBin_;
    SystemInfo& system_;
    Dialogs& dialogs_;
    const CodePage& codePage_;
    dbase::DBEngine engine_;
    std::unique_ptr<dbase::Database> database_;
    std::string adminPassword_; ///< in capitals
};

} // namespace zy
