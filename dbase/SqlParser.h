#pragma once

#include <string_view>

#include "dbase/Statement.h"

namespace zy::dbase {

/// Takes a statement apart; Database::Execute says which there are. What it returns refers to the text.
///
/// A text that is none is error 3290, 3291 or 3134 for the statement it begins with (3292 inside the
/// definition of a column), else 3129. The error's text says at which character, counted from 1, what should
/// stand and what kind of thing does, never the thing itself.
Statement ParseStatement(std::string_view sql);

} // namespace zy::dbase
