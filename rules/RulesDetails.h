#pragma once

#include <array>

#include "rules/RulesControls.h"
#include "rules/RunRule.h"

namespace zy {

/// The properties that the detail form edits, in the order in which they are stored.
inline constexpr std::array kEditedProperties{&RunRule::Code,        &RunRule::Min,  &RunRule::Max,
                                              &RunRule::Description, &RunRule::Zone, &RunRule::Cond};

/// The rule as the detail form shows it. Where no condition or zone is selected, `held` keeps its own.
RunRule RuleInForm(const RulesControls& controls, const RunRule& held);

} // namespace zy
