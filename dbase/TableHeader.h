#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "dbase/Statement.h"

namespace zy::dbase {

/// A column, as the header of a table describes it.
struct TableField {
    std::string name;
    char type;          ///< 'C' is text
    std::size_t offset; ///< in the record, whose first byte is its flag
    std::size_t width;

    bool IsText() const { return type == 'C'; }
};

/// What the header of a table says, checked against the file.
struct TableHeader {
    std::uint32_t records; ///< as the header counts them, whether the file holds them or not
    std::size_t size;
    std::size_t recordSize;
    std::vector<TableField> fields;

    /// Where a record stands in the file, counted from 0; of the one behind the last, where they end.
    std::size_t PlaceOf(std::size_t record) const { return size + record * recordSize; }
};

inline constexpr int kMostNewFields = 255;
inline constexpr int kWidestText = 254;

/// Takes the header of a file apart. Error 3274, with the reason, when it is not that of a dBase III table:
/// the version is not 03, the header does not fit into the file, is shorter than its descriptors or holds
/// more than NULs behind them, there is no column, no end of the descriptors, or the records are not as long
/// as the columns together. The path is for the error's text.
TableHeader ParseTableHeader(std::string_view file, std::string_view path);

/// The bytes of the header of a new table without records, its date not set. Error 3125 for a name that is
/// not 1 to 10 letters, digits and "_" with a letter first, 3191 for one that is there twice, 3190 for more
/// than kMostNewFields columns, 3292 for a width outside 1..kWidestText.
std::string NewTableHeader(std::span<const ColumnDefinition> columns);

/// Where a header holds what changes with the records.
inline constexpr std::size_t kDateAt = 1;
inline constexpr std::size_t kCountAt = 4;
inline constexpr std::size_t kLanguageAt = 29;

} // namespace zy::dbase
