#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "controls/ListView.h"
#include "history/RowComparison.h"
#include "shell/ListRecords.h"

namespace zy {

/// What differs between two states of a list, as texts for a list on the screen.
class RecordChanges {
  public:
    /// The column with the name of the record.
    static constexpr int kName = 1;

    /// The columns of that list: what kind of difference, of which record, and how it stands before and
    /// after.
    static std::vector<ListView::Column> Columns(const ListRecords& records, const std::string& before,
                                                 const std::string& after);

    RecordChanges() = default;
    /// Of rows of the list as the editor holds them.
    RecordChanges(const ListRecords& records, const RowTexts& before, const RowTexts& after);

    int Count() const { return static_cast<int>(differences_.size()); }
    const RowDifference& Difference(int item) const { return differences_[Index(item)]; }
    /// Items count from 1, as those of a list on the screen.
    std::string_view Text(int item, int column) const {
        return texts_[Index(item)].at(static_cast<std::size_t>(column));
    }
    /// Such as "2 added, 1 changed"; "no difference" when there is none.
    std::string Summary() const;

  private:
    static std::size_t Index(int item) { return static_cast<std::size_t>(item) - 1; }

    std::vector<RowDifference> differences_;
    std::vector<std::array<std::string, 4>> texts_;
};

/// The texts of a record behind one another.
std::string WholeRecord(const RowTexts& rows, int row);

/// A row of a list as it stands in several of them; kNoRow where it does not.
struct RowState {
    const RowTexts* rows;
    int row;
};

/// The texts of a record in each of several states: only those in which the states differ, behind the headers
/// of their columns, or the whole record where nothing differs. Empty for a state without the record.
std::vector<std::string> DescribeStates(const std::vector<std::string>& columns,
                                        const std::vector<RowState>& states);

/// The key of a list's records, for a comparison of rows that `Comparable` gave.
RowKey KeyOf(const ListRecords& records);

} // namespace zy
