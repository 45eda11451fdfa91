#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "controls/Grid.h"

namespace zy {

/// Appends the cells of a units file's text: the unit and the description of each line. They are parts of the
/// text. What stands behind the last CR LF is left out.
///
/// A line's fields are those that SplitFields gives, the first two alone; but the text is searched once for
/// each separator instead of once for each line. A line without a second field is run-time error 9, whose
/// description names `path` and the line. A line beyond the 32,767th is run-time error 6.
void AppendUnitCells(std::string_view text, std::string_view path, std::vector<std::string_view>& cells);

/// The text of the units file that holds the rows of a grid: one unit a line, its description first. It
/// stands in a buffer that is filled once and never cleared.
///
/// More than 32,767 rows are run-time error 6.
class UnitsFileText {
  public:
    explicit UnitsFileText(const Grid& grid);

    std::string_view Get() const { return {text_.get(), size_}; }

  private:
    std::unique_ptr<char[]> text_;
    std::size_t size_ = 0;
};

} // namespace zy
