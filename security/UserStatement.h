#pragma once

#include <string>
#include <string_view>

#include "security/UserRecord.h"

namespace zy {

// The statements by which the users' table is written anew.

/// Makes the temporary table.
std::string CreateStatement();

/// The front of the statement that inserts a user into it, up to and with the first value's opening quote.
/// `columns` is their list with its opening parenthesis and without the closing one.
std::string InsertFront(std::string_view columns);

/// Appends the values of that statement from there on. The texts go in as they are: a single quote ends a
/// value, and the table engine may refuse the statement.
void AppendValues(std::string& statement, const UserRecord& user);

/// Makes the index on a column of the table.
std::string IndexStatement(std::string_view column);

} // namespace zy
