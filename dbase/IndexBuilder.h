#pragma once

#include <string>

#include "dbase/TableImage.h"

namespace zy::dbase {

/// True for text of 1 to 100 characters.
bool CanBeIndexed(const TableField& field);

/// The key of a record: its value, filled with blanks.
std::string IndexKey(const TableImage& table, std::uint32_t record, std::size_t field);

/// The bytes of an index file over a column that can be indexed: every record of the table, with those that
/// are deleted or damaged, in the order of the keys' bytes, equal keys in that of the records.
std::string BuildIndex(const TableImage& table, std::size_t field);

} // namespace zy::dbase
