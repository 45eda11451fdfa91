#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "dbase/Recordset.h"
#include "dbase/Statement.h"
#include "dbase/TableImage.h"
#include "dbase/Workspace.h"

namespace zy::dbase {

enum class RecordsetType { Dynaset };

enum class ExecuteOptions {
    None,        ///< an INSERT whose values do not fit adds no row, without a word
    FailOnError, ///< it raises an error
};

/// A folder whose files are tables. A table goes by its file's name, found without regard to case; a name
/// without an extension means ".DBF", and one with a dot at its end the file of the name before that dot.
///
/// Destroying it without Close gives up an open transaction and drops every row that waits in memory.
class Database {
  public:
    Database(std::shared_ptr<Workspace> workspace, std::string_view folder, bool readOnly);
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database();

    /// The records of a table as they stand in its file, after a Flush; rows of an open transaction are not
    /// among them. Error 3011 when there is no such table, 3274 when the file is not one that can be read.
    std::unique_ptr<Recordset> OpenRecordset(std::string_view tableName, RecordsetType type);

    /// Carries out one statement:
    ///
    ///     CREATE TABLE name (column TEXT (width), ...)
    ///     INSERT INTO name (column, ...) VALUES ('text', ...)
    ///     CREATE INDEX name ON table (column)
    ///
    /// Names stand bare or in brackets, keywords in any case, blanks anywhere; '' in a text is one quote; a
    /// semicolon may stand at the end.
    ///
    /// CREATE TABLE makes the file at once, so that a name that is taken (3010) or a folder that cannot be
    /// written in (3027) shows here. A new table can be read and written by its owner alone; whoever puts it
    /// in place of another one sees to its permissions. CREATE INDEX writes what is pending, then the index,
    /// under its name and the extension ".NDX", with the permissions of its table; it is not kept up to date
    /// when rows are added later. Neither leaves a file behind when it fails. In a transaction both are
    /// error 3246.
    ///
    /// INSERT leaves the table as it was when it fails. Its rows wait in memory for the next Flush.
    void Execute(std::string_view sql, ExecuteOptions options = ExecuteOptions::None);

    /// Writes the committed rows that wait in memory, of every open table, and returns when they stand on the
    /// disk. OpenRecordset, CREATE INDEX and Close do the same first. Who renames or replaces a table by
    /// other means calls this before.
    ///
    /// When it fails, a table that had no records in its file may be cut short; one that had any keeps them,
    /// or its error says in which file they stand. The rows wait on for the next attempt. A table that had
    /// any is written anew beside itself, so its file's name is then spelt as in the statement.
    void Flush();

    /// Gives up an open transaction, writes what is pending, and closes the database also when that fails.
    /// Later calls of the database are error 3420.
    void Close();

  private:
    void RequireOpen() const;
    void RequireNoTransaction() const;
    void Do(const CreateTable& statement, ExecuteOptions options);
    void Do(const Insert& statement, ExecuteOptions options);
    void Do(const CreateIndex& statement, ExecuteOptions options);
    void WriteIndex(const CreateIndex& statement, const TableImage& table, std::size_t field);
    /// The path of a file of this folder. Error 3125 when the name is none.
    std::string PathOf(std::string_view name, std::string_view extension) const;

    std::shared_ptr<Workspace> workspace_;
    std::string folder_;
    bool readOnly_;
    bool open_ = true;
};

} // namespace zy::dbase
