#pragma once

#include <memory>
#include <string>

#include "dbase/DBEngine.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"
#include "shell/mZYGlobal.h"

namespace zy {

/// Where the users' table is, and its folder as a database of the table engine.
class UsersDatabase {
  public:
    /// The state names the table, from start-up on; the computer's date goes into the tables that are
    /// written.
    UsersDatabase(const SharedState& state, FileSystem& files, SystemInfo& system);

    /// The table's path as the location file gives it.
    const std::string& GivenPath() const { return state_.gsSecurityFile; }
    /// The table's full path. One that was typed into the location file may have "/" for "\".
    std::string TablePath() const;
    /// Its folder, with its closing "\"; empty when the path names none.
    std::string Folder() const;
    /// Its name for the engine: exactly that of the file, also when it has no extension.
    std::string TableName() const;
    /// The settings file that may name the table.
    std::string LocationFile() const;

    /// Opens the folder, in place of what was open before; what waited there to be written is dropped. Error
    /// 3044 of the table engine when the path names no folder. What is opened stays open until Close.
    dbase::Database& Open();
    /// The database that is open.
    dbase::Database& Get() { return *database_; }
    /// Closes the database. Whatever fails is raised; it stays open then.
    void Close();

    /// Executes an INSERT in a transaction of its own. Whatever fails is raised.
    void Insert(const std::string& statement);

  private:
    const SharedState& state_;
    FileSystem& files_;
    dbase::DBEngine engine_;
    std::unique_ptr<dbase::Database> database_;
};

} // namespace zy
