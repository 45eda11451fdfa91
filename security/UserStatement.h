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

/// What the single quotes in a user's texts do to the statement that inserts the user.
enum class QuotesEffect {
    None,       ///< there are none
    HalfStored, ///< they stand in pairs, and one of each pair is stored
    Shifted,    ///< a value ends elsewhere than its text, and so the fields get parts of others
    NotSaved,   ///< the statement fails, and the save with it
};
QuotesEffect EffectOfQuotes(const UserRecord& user);

} // namespace zy
