#pragma once

#include <array>
#include <string>

namespace zy {

/// One rule. Every property is a text, also the numbers, and is kept as it stands: limits are checked when a
/// rule is edited, not when it is loaded.
struct RunRule {
    std::string Code;        ///< "Rule ID", 1 to 3 characters, unique without regard to case
    std::string Min;         ///< lower count, 1 to 100
    std::string Max;         ///< upper count, 1 to 100
    std::string Cond;        ///< the relation: ">", ">=", "<", "<=" or "="
    std::string Zone;        ///< the chart line, such as "UCL" or "+3S"
    std::string Description; ///< what the chart shows when the rule is broken
    std::string Desc2;       ///< second and third piece of the description as older files hold them;
    std::string Desc3;       ///< folded into Description at loading
};

/// The columns of the list and of the grid.
enum RuleColumn {
    kCodeColumn,
    kMinColumn,
    kMaxColumn,
    kCondColumn,
    kZoneColumn,
    kDescriptionColumn,
    kRuleColumns
};

/// The properties that stand in these columns.
inline constexpr std::array<std::string RunRule::*, kRuleColumns> kColumnProperties{
    &RunRule::Code, &RunRule::Min, &RunRule::Max, &RunRule::Cond, &RunRule::Zone, &RunRule::Description};

} // namespace zy
