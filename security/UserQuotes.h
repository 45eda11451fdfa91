#pragma once

#include <string>

#include "controls/GridCells.h"
#include "security/UserRecord.h"

namespace zy {

/// What the single quotes in a user's texts do to the statement that inserts the user.
enum class QuotesEffect {
    None,       ///< there are none
    HalfStored, ///< they stand in pairs, and one of each pair is stored
    Shifted,    ///< a value ends elsewhere than its text, and so the fields get parts of others
    NotSaved,   ///< the statement fails, and the save with it
};
QuotesEffect EffectOfQuotes(const UserRecord& user);

/// Says for the status bar what becomes of the single quotes in one user of the grid: the one of this row, or
/// else the first one that has any. Empty when none has. A row outside the grid, or the header's, has none.
std::string DescribeQuotes(const GridCells& grid, int row);

} // namespace zy
