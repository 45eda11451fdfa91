#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/RecycleBin.h"
#include "security/UnfinishedSave.h"
#include "security/UserRecord.h"
#include "security/UsersDatabase.h"
#include "shell/SaveTurn.h"

namespace zy {

/// Writes the users' table and its index, each in place of the one before, which goes to the recycle bin.
///
/// Run-time error 75, before anything is written, when it is not certain which file one of them is.
class UsersWriter {
  public:
    UsersWriter(UsersDatabase& database, FileSystem& files, RecycleBin& recycleBin);

    /// The full path of the table that is loaded.
    std::string TablePath() const { return database_.TablePath(); }
    /// The folder of the table, with its closing "\".
    std::string Folder() const { return database_.Folder(); }
    /// The right to write the table of a folder, which ends with "\", or to take it away.
    SaveTurn TakeTurn(std::string_view folder);

    /// Writes the users to a new table and puts it in place of the old one, which stays until the new one
    /// stands on the disk. Whatever fails is raised, with what is left on the disk behind its description:
    /// the new table's file may be, and the next attempt then fails until it has been removed.
    void Write(const std::vector<UserRecord>& users);
    /// Builds the table's index anew.
    void WriteIndex();
    /// Moves the table and its index from a folder to the recycle bin.
    void Recycle(std::string_view folder);

    /// What a save would find in its way, for the status bar; empty when nothing.
    std::string Obstacles();

  private:
    void WriteAndReplace(const std::vector<UserRecord>& users, FailedSave& save);
    void CreateTemporary();
    std::string ColumnList();
    void InsertUsers(const std::vector<UserRecord>& users);
    void ReplaceTable(FailedSave& save);

    UsersDatabase& database_;
    FileSystem& files_;
    RecycleBin& recycleBin_;
};

} // namespace zy
