#include "dbase/Database.h"

#include <algorithm>
#include <utility>

#include "basics/RuntimeError.h"
#include "dbase/Errors.h"
#include "dbase/FileBytes.h"
#include "dbase/IndexBuilder.h"
#include "dbase/SqlParser.h"

namespace zy::dbase {
namespace {

/// The name of a table or index becomes that of a file in the folder.
bool IsFileName(std::string_view name) {
    const auto isRefused = [](char c) {
        return static_cast<unsigned char>(c) < ' ' ||
               std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
    };
    return name.find_first_not_of(" .") != std::string_view::npos &&
           std::none_of(name.begin(), name.end(), isRefused);
}

/// The values of a row, one for each column of the table; the columns that the statement does not name are
/// empty.
std::vector<std::string_view> RowOf(const Insert& statement, const TableImage& table) {
    std::vector<std::string_view> row(table.Fields().size());
    std::vector<bool> given(row.size());
    for (std::size_t i = 0; i < statement.columns.size(); ++i) {
        const auto name = statement.columns[i];
        const auto field = table.FindField(name);
        if (!field) {
            Raise(kUnknownField,
                  {"The INSERT INTO statement contains the following unknown field name: '", name, "'."});
        }
        if (given[*field]) {
            Raise(kDuplicateDestination, {"Duplicate output destination '", name, "'."});
        }
        if (!table.Fields()[*field].IsText()) {
            Raise(kNotSupported, {"Field '", name, "' is not text: only text can be written."});
        }
        given[*field] = true;
        row[*field] = statement.values[i];
    }
    return row;
}

TableImage ReadTable(FileSystem& files, std::string_view path) {
    return TableImage(ReadFile(files, path), files.DisplayPath(path));
}

} // namespace

Database::Database(std::shared_ptr<Workspace> workspace, std::string_view folder, bool readOnly)
    : workspace_(std::move(workspace)), folder_(folder), readOnly_(readOnly) {
    if (!folder_.ends_with('\\')) {
        folder_ += '\\';
    }
}

Database::~Database() {
    if (open_) {
        workspace_->GiveUpTransaction();
        workspace_->DiscardAll();
    }
}

std::unique_ptr<Recordset> Database::OpenRecordset(std::string_view tableName,
                                                   [[maybe_unused]] RecordsetType type) {
    RequireOpen();
    const auto path = PathOf(tableName, ".DBF");
    workspace_->Flush();
    return std::make_unique<Recordset>(ReadTable(workspace_->Files(), path));
}

void Database::Execute(std::string_view sql, ExecuteOptions options) {
    RequireOpen();
    const auto statement = ParseStatement(sql);
    if (readOnly_) {
        Raise(kReadOnly, {"Can't update: the database was opened for reading only."});
    }
    std::visit([&](const auto& one) { Do(one, options); }, statement);
}

void Database::Flush() {
    RequireOpen();
    workspace_->Flush();
}

void Database::Close() {
    RequireOpen();
    open_ = false;
    workspace_->GiveUpTransaction();
    try {
        workspace_->Flush();
    } catch (const RuntimeError&) {
        workspace_->DiscardAll();
        throw;
    }
}

void Database::RequireOpen() const {
    if (!open_) {
        Raise(kClosed, {"The database is closed."});
    }
}

void Database::RequireNoTransaction() const {
    if (workspace_->InTransaction()) {
        Raise(kInTransaction, {"CREATE is not supported within a transaction."});
    }
}

void Database::Do(const CreateTable& statement, ExecuteOptions) {
    RequireNoTransaction();
    const auto path = PathOf(statement.table, ".DBF");
    auto& files = workspace_->Files();
    TableImage table(NewTableHeader(statement.columns), path);
    const auto error = WriteNewFile(files, path, table.FileBytes(0, workspace_->Today()));
    if (error == FileError::Exists) {
        Raise(kTableExists, {"Table '", statement.table, "' already exists: the file '",
                             files.DisplayPath(path), "' stands in the way."});
    }
    if (error != FileError::None) {
        RaiseWriteError(files.DisplayPath(path), error);
    }
    workspace_->Discard(path);
}

void Database::Do(const Insert& statement, ExecuteOptions options) {
    if (statement.columns.size() != statement.values.size()) {
        Raise(kCountsDiffer, {"Number of query values and destination fields aren't the same: ",
                              std::to_string(statement.values.size()), " values, ",
                              std::to_string(statement.columns.size()), " fields."});
    }
    auto& table = workspace_->Open(PathOf(statement.table, ".DBF"));
    const auto row = RowOf(statement, table.Image());
    try {
        table.Append(row, workspace_->InTransaction());
    } catch (const RuntimeError&) {
        if (options == ExecuteOptions::FailOnError) {
            throw;
        }
    }
}

void Database::Do(const CreateIndex& statement, ExecuteOptions) {
    RequireNoTransaction();
    if (statement.columns.size() != 1) {
        Raise(kNotSupported, {"An index of more than one field is not supported."});
    }
    const auto tablePath = PathOf(statement.table, ".DBF");
    workspace_->Flush();
    auto& files = workspace_->Files();
    const auto table = ReadTable(files, tablePath);
    const auto field = table.FindField(statement.columns.front());
    if (!field || !CanBeIndexed(table.Fields()[*field])) {
        Raise(kUnknownIndexField,
              {"Invalid field definition '", statement.columns.front(), "' in definition of index: '",
               files.DisplayPath(tablePath), "' has no text field of that name, of at most 100 characters."});
    }
    WriteIndex(statement, table, *field);
}

void Database::WriteIndex(const CreateIndex& statement, const TableImage& table, std::size_t field) {
    auto& files = workspace_->Files();
    const auto path = PathOf(statement.index, ".NDX");
    auto error = WriteNewFile(files, path, BuildIndex(table, field));
    if (error == FileError::Exists) {
        Raise(kIndexExists, {"Index '", statement.index, "' already exists: the file '",
                             files.DisplayPath(path), "' stands in the way."});
    }
    if (error == FileError::None) {
        error = files.CopyPermissions(PathOf(statement.table, ".DBF"), path);
        if (error != FileError::None) {
            static_cast<void>(files.Delete(path)); // the first error is the one that is reported
        }
    }
    if (error != FileError::None) {
        RaiseWriteError(files.DisplayPath(path), error);
    }
}

std::string Database::PathOf(std::string_view name, std::string_view extension) const {
    if (!IsFileName(name)) {
        Raise(kBadName, {"'", name, "' isn't a valid name for a table or an index."});
    }
    if (name.ends_with('.')) {
        return folder_ + std::string(name.substr(0, name.size() - 1));
    }
    const bool hasExtension = name.find('.') != std::string_view::npos;
    return folder_ + std::string(name) + std::string(hasExtension ? "" : extension);
}

} // namespace zy::dbase
