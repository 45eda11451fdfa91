#pragma once

#include <functional>
#include <string>
#include <vector>

#include "history/RowTexts.h"

namespace zy {

/// What a row is known by in lists that differ, such as the name of a user. It must depend on the texts of
/// the row alone. Rows of one key can stand several times in a list.
using RowKey = std::function<std::string(const RowTexts&, int row)>;

inline constexpr int kNoRow = -1;

/// Which rows of two lists are the same row.
class RowPairs {
  public:
    /// No row of lists of so many rows is in a pair.
    RowPairs(int rowsBefore, int rowsAfter);

    /// The other row of the pair, or kNoRow.
    int AfterOf(int before) const { return afterOf_[static_cast<std::size_t>(before)]; }
    int BeforeOf(int after) const { return beforeOf_[static_cast<std::size_t>(after)]; }
    int RowsBefore() const { return static_cast<int>(afterOf_.size()); }
    int RowsAfter() const { return static_cast<int>(beforeOf_.size()); }

    void Pair(int before, int after);

  private:
    std::vector<int> afterOf_;
    std::vector<int> beforeOf_;
};

/// Finds the pairs of two lists of as many columns, in time that grows with the rows: first the equal rows at
/// both ends of the lists, then equal rows wherever they stand, then rows of one key. Where several could
/// pair, the first of them pairs with the first one, and so on.
RowPairs PairRows(const RowTexts& before, const RowTexts& after, const RowKey& key);

} // namespace zy
