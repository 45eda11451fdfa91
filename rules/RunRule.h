#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

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

    friend bool operator==(const RunRule&, const RunRule&) = default;
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

/// A property of a rule as the two views show it.
struct RuleField {
    std::string RunRule::*property;
    std::string_view listHeader;
    int listWidth; ///< in twips, until the list is laid out
    std::string_view gridHeader;
};

/// The fields in the order of the columns.
inline constexpr std::array<RuleField, kRuleColumns> kRuleFields{
    {{&RunRule::Code, "Rule ID", 1050, "Code"},
     {&RunRule::Min, "Min", 900, "Min"},
     {&RunRule::Max, "Max", 900, "Max"},
     {&RunRule::Cond, "Cond", 900, "Cond."},
     {&RunRule::Zone, "Zone", 900, "Zone"},
     {&RunRule::Description, "Description", 4000, "Description"}}};

/// A rule's texts: the fields in the order of their columns, and what else it holds.
inline constexpr std::array<std::string RunRule::*, kRuleColumns + 2> kRuleTexts{
    &RunRule::Code, &RunRule::Min,         &RunRule::Max,   &RunRule::Cond,
    &RunRule::Zone, &RunRule::Description, &RunRule::Desc2, &RunRule::Desc3};

/// The property that stands in a column, counted from 0.
constexpr std::string RunRule::*PropertyIn(int column) {
    return kRuleFields.at(static_cast<std::size_t>(column)).property;
}

} // namespace zy
