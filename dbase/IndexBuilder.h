#pragma once

#include <string>

#include "dbase/TableImage.h"

namespace zy::dbase {

/// True for text of 1 to 100 characters.
bool CanBeIndexed(const TableField& field);

/// The bytes of an index file over a column that can be indexed: every record of the table, with those that
/// are deleted or damaged, in the order of the keys' bytes, equal keys in that of the records.
std::string BuildIndex(const TableImage& table, std::size_t field);

} // namespace zy::dbase
