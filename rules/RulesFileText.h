#pragma once

#include <string>

#include "rules/RuleList.h"

namespace zy {

/// The text of the rules file for a list of rules: nine lines a rule, each ended by CR LF.
std::string RulesFileText(const RuleList& rules);

} // namespace zy
