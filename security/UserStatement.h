#pragma once

#include <string>

#include "security/UserRecord.h"

namespace zy {

/// Appends the values of the statement that inserts a user, from behind the first one's opening quote. The
/// texts go in as they are, single quotes too, which is meant.
void AppendValues(std::string& statement, const UserRecord& user);

/// What the single quotes in a user's texts do to that statement.
enum class QuotesEffect {
    None,       ///< there are none
    HalfStored, ///< they stand in pairs, and one of each pair is stored
    Shifted,    ///< a value ends elsewhere than its text, and so the fields get parts of others
    NotSaved,   ///< the statement fails, and the save with it
};
QuotesEffect EffectOfQuotes(const UserRecord& user);

} // namespace zy
