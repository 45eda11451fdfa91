#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "controls/GridCells.h"

namespace zy {

/// The columns of the units grid.
enum UnitsColumn { kUnit = 0, kUnitDescription = 1, kUnitsColumns = 2 };

/// What a units file holds that does not come back with a save of its cells.
struct UnitsLeftOut {
    int lines = 0;           ///< that were read
    int linesCut = 0;        ///< among them those with text behind their second field
    int linesWithCommas = 0; ///< and those separated by TAB with a comma in a field
    std::string_view tail;   ///< what stands behind the last CR LF
};

/// Appends the cells of a units file's text: the unit and the description of each line. They are parts of the
/// text, as `cells` is to know. What stands behind the last CR LF is left out.
///
/// A line's fields are the first two that SplitFields gives. A line without a second field is run-time error
/// 9, whose description names `path` and the line. A line beyond the 32,767th is run-time error 6.
UnitsLeftOut AppendUnitCells(std::string_view text, std::string_view path, TextParts& cells);

/// Says for the status bar what a save would drop or change; empty when nothing.
std::string Describe(const UnitsLeftOut& leftOut);

/// Says how a row with a comma in a cell will be read back once it is saved; empty for any other row.
std::string DescribeMisreading(const GridCells& grid, int row);

/// The text of the units file that holds the rows of a grid: one unit a line, its description first. It
/// stands in a buffer that is filled once and never cleared.
///
/// More than 32,767 rows are run-time error 6.
class UnitsFileText {
  public:
    explicit UnitsFileText(const GridCells& grid);

    std::string_view Get() const { return {text_.get(), size_}; }

  private:
    std::unique_ptr<char[]> text_;
    std::size_t size_ = 0;
};

} // namespace zy
