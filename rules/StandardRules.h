#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"
#include "rules/RuleList.h"
#include "rules/RunRule.h"

namespace zy {

/// What a published rule compares points with. Each but the last stands for two rules, one a side.
enum class Against : char { ControlLimit, WarningLimit, Average, PointBefore, Nothing };

/// A rule as its set has it, in the order of the set.
struct StandardRule {
    std::string_view says;       ///< in the words of the field
    std::string_view code = {};  ///< of its rules, without what tells the sides apart
    std::string_view count = {}; ///< the minimum
    std::string_view of = {};    ///< the maximum
    Against against = Against::Nothing;
    std::string_view whyNot = {}; ///< why our fields cannot say it; empty where they can
};

/// Rules that were published together.
struct StandardSet {
    std::string_view name;
    std::string_view source;
    std::span<const StandardRule> rules;
};

/// The sets, in the order in which they are offered.
std::span<const StandardSet> StandardSets();

/// A rule that can be inserted, or one that cannot, which has a description alone.
struct OfferedRule {
    RunRule rule;
    std::string_view whyNot;
};

/// The rules of a set as they would be inserted into a list: the upper side of each, then the lower one.
/// Codes are made unique among them and in the list, within their three characters.
std::vector<OfferedRule> RulesOf(const StandardSet& set, const RuleList& list, const CodePage& codePage);

/// A code that is not taken: the wanted one, or else one that begins like it, or else any.
std::string FreeCode(const std::string& wanted, const std::function<bool(const std::string& code)>& isTaken);

} // namespace zy
