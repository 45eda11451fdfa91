#pragma once

#include "controls/Geometry.h"
#include "rules/RulesControls.h"

namespace zy {

// Where the controls of the rules page stand, in twips. Every control gets at least the size that its text
// needs; the list, its description column and the description box take what is left over.

/// Lays out the list frame and the detail frame inside a page of that size, and the grid frame over both.
void LayOutRuleFrames(RulesControls& controls, const Size& page);
/// The least size of the page in which every control has what it needs.
Size LeastRulesPage(const RulesControls& controls);
/// Lays out the list and the buttons beside it.
void LayOutRuleList(RulesControls& controls);
/// Lays out the detail form.
void LayOutRuleDetails(RulesControls& controls);

} // namespace zy
