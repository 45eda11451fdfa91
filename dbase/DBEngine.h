#pragma once

#include <memory>
#include <string_view>

#include "dbase/Database.h"
#include "dbase/Workspace.h"
#include "platform/FileSystem.h"

// dbase: the table engine. It owns dBase III tables, their NDX indexes and the SQL that works on them, and
// calls platform/ for the files and basics/. What goes wrong is a RuntimeError with one of the numbers of
// dbase/ErrorNumbers.h; its text names files, fields and places, but never a value of a table or of a
// statement, which may be a password.

namespace zy::dbase {

/// The database engine: where databases are opened, and the transactions that span them.
///
/// Used by one program and one thread: there are no locks against others.
class DBEngine {
  public:
    /// The file system must outlive the engine and all that it opens. The clock says what date a table is
    /// changed on.
    DBEngine(FileSystem& files, Clock today);

    /// Opens a folder as a database, in which each file is a table. `connect` names the kind of the tables:
    /// anything but "dBase III", in any case, is error 3170. Touches no file: a folder that is missing shows
    /// with the first table. Whether it is opened exclusively makes no difference; in a read-only database
    /// Execute is error 3027.
    std::unique_ptr<Database> OpenDatabase(std::string_view folder, bool exclusive, bool readOnly,
                                           std::string_view connect);

    /// From here on rows are added for the time being. They are there for good with CommitTrans, and gone
    /// when a database is closed before. Error 3246 when a transaction is open already: they do not nest.
    void BeginTrans();
    /// Error 3034 when no transaction is open. Touches no file: see Database::Flush.
    void CommitTrans();

  private:
    std::shared_ptr<Workspace> workspace_;
};

} // namespace zy::dbase
