#pragma once

#include <string_view>

#include "history/RowTexts.h"

namespace zy {

/// A list that is edited, as rows of texts.
class RowList {
  public:
    virtual ~RowList() = default;

    virtual int Rows() const = 0;
    virtual int Columns() const = 0;
    /// Valid until the list changes. The cell must exist.
    virtual std::string_view Text(int row, int column) const = 0;
    /// Puts other rows in place of `count` rows from `first` on, which must be there.
    virtual void ReplaceRows(int first, int count, const RowTexts& rows) = 0;
};

/// Appends copies of `count` rows from `first` on, which must be there.
void AddRowsOf(const RowList& rows, int first, int count, RowTexts& copies);
RowTexts CopyOf(const RowList& rows, int first, int count);

} // namespace zy
