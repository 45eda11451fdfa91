#pragma once

#include "controls/Drawing.h"
#include "controls/Geometry.h"
#include "rules/RuleList.h"

namespace zy {

/// A list of rules with their pictures, one below another, for a file or for paper.
struct RulesSheet {
    Drawing drawing;
    Size size; ///< in twips
};

/// The sheet of a list, with the locale's decimal separator. Each rule has its code and its description above
/// its picture; a description that is too long is cut.
RulesSheet SheetOf(const RuleList& rules, char decimalSeparator, const Lettering& letters);

} // namespace zy
