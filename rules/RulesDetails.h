#pragma once

#include <array>
#include <string_view>

#include "rules/RulesControls.h"
#include "rules/RunRule.h"

namespace zy {

/// The properties that the detail form edits, in the order in which they are stored.
inline constexpr std::array kEditedProperties{&RunRule::Code,        &RunRule::Min,  &RunRule::Max,
                                              &RunRule::Description, &RunRule::Zone, &RunRule::Cond};

/// The rule as the detail form shows it. Where no condition or zone is selected, `held` keeps its own.
RunRule RuleInForm(const RulesControls& controls, const RunRule& held);

/// The code at the front of an item of the zone list: what stands before " - ". Zone codes hold dashes
/// themselves.
std::string_view ZoneOfItem(std::string_view item);
/// The relation at the front of an item of the condition list: what stands before the first "-".
std::string_view ConditionOfItem(std::string_view item);

} // namespace zy
