#pragma once

#include <vector>

#include "history/RowPairs.h"
#include "history/RowTexts.h"

namespace zy {

/// A row that is not in both of two lists as it is.
struct RowDifference {
    enum class Kind { Added, Removed, Changed, Moved };

    Kind kind;
    bool isMoved = false; ///< it stands elsewhere among the rows of both lists; always so of the kind Moved
    int before = kNoRow;  ///< none of an added row
    int after = kNoRow;   ///< none of a removed one

    friend bool operator==(const RowDifference&, const RowDifference&) = default;
};

/// What makes one list of the other, which has as many columns: in the order of the rows after, a removed row
/// behind the last one before it that stayed where it was. Of the rows that can be said to have moved it is
/// as few as possible that have. Nothing for equal lists.
std::vector<RowDifference> CompareRows(const RowTexts& before, const RowTexts& after, const RowKey& key);

/// The list after with one of the differences taken back: the rows of both may have more than what was
/// compared, but their number and their pairs are the same. A row that comes back, or goes back to its place,
/// stands behind the nearest of those before it that is still there.
RowTexts RevertDifference(const RowTexts& before, const RowTexts& after, const RowPairs& pairs,
                          const RowDifference& difference);

} // namespace zy
