#pragma once

#include "dbase/TableImage.h"
#include "index/IndexFile.h"

namespace zy::dbase {

/// Makes sure that an index can be used with a table: it is sound in itself, its expression is the name of a
/// text column as long as its keys, and it lists every record once, with its own key (of equal keys the
/// first alone when it is unique). Error 3274, with the reason, when it has to be built anew.
void RequireIndexOf(const TableImage& table, const IndexFile& index);

} // namespace zy::dbase
