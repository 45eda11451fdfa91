#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dbase/Recordset.h"
#include "platform/CodePage.h"
#include "platform/FileSystem.h"
#include "security/UserRecord.h"
#include "security/UsersDatabase.h"

namespace zy {

/// What was read from a users' table.
struct LoadedUsers {
    std::vector<UserRecord> users{UserRecord()}; ///< one empty user when the table has none
    /// In capitals; nothing when the table names no administrator. Of several administrators the last one
    /// counts.
    std::optional<std::string> adminPassword;
    /// What the table holds that the editor does not show and its next save does not write, for the status
    /// bar; empty when there is nothing.
    std::string losses;
};

/// Takes the users from the records of a table. Without enough columns error 3265 of the table engine, which
/// names the table so; more than 32,767 users are run-time error 6.
LoadedUsers UsersOf(dbase::Recordset& records, const std::string& table, const CodePage& codePage);

/// Reads the users' table.
class UsersReader {
  public:
    UsersReader(UsersDatabase& database, FileSystem& files, const CodePage& codePage);

    /// Whether there is a table. Run-time error 75 when it is not certain which file the table or the one
    /// that names its place is.
    bool FindsTable();

    /// Reads all users, and leaves the database open. A table that is damaged or cannot be read is a run-time
    /// error of the table engine, and one with fewer columns than a user has fields is its error 3265. More
    /// than 32,767 users are run-time error 6.
    LoadedUsers Read();

  private:
    UsersDatabase& database_;
    FileSystem& files_;
    const CodePage& codePage_;
};

} // namespace zy
