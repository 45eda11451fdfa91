#pragma once

#include <string>

#include "dbase/Recordset.h"

namespace zy {

/// What a table holds that the editor does not show and its next save does not write; empty when there is
/// nothing.
std::string TableLosses(const dbase::Recordset& records);

} // namespace zy
