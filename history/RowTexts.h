#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// history: what was done to a list can be taken back and done again. A list is rows of texts to it (RowList);
// the Recorder makes steps of what happens to one, the History keeps them. CompareRows tells how two lists
// differ, RowMerge makes one of two that were changed apart. It knows no editor and no control, and calls the
// standard library alone.

namespace zy {

/// Copies of rows of texts, packed one behind another, so that tens of thousands of them cost little more
/// than their characters.
class RowTexts {
  public:
    RowTexts() = default;
    /// No rows, of so many columns.
    explicit RowTexts(int columns) : columns_(static_cast<std::size_t>(columns)) {}

    int Columns() const { return static_cast<int>(columns_); }
    int Rows() const { return columns_ == 0 ? 0 : static_cast<int>(ends_.size() / columns_); }
    /// The cell must exist.
    std::string_view Text(int row, int column) const;

    /// Appends the next cell; a row is whole with its last column.
    void Add(std::string_view text);
    /// Appends rows of others that have as many columns.
    void AddRows(const RowTexts& others, int first, int count);

    /// The memory that the texts take.
    std::size_t Bytes() const;

    friend bool operator==(const RowTexts&, const RowTexts&) = default;

  private:
    std::size_t columns_ = 0;
    std::string texts_;
    std::vector<std::size_t> ends_; ///< where each cell's text ends
};

/// Whether a row of one list has the texts of a row of another that has as many columns.
bool HaveSameTexts(const RowTexts& rows, int row, const RowTexts& others, int other);

} // namespace zy
