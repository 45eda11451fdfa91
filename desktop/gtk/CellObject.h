#pragma once

#include "desktop/TableObject.h"

namespace zy {

/// A cell of a table, or the header of a column, as assistive technology holds it: made when it is asked for,
/// and read from the table's content whenever it is asked itself. It stands for a place in the table,
/// whatever comes to be there.
HeldObject MakeCellObject(AtkObject* table, const Cell& cell);

} // namespace zy
