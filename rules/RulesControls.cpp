#include "rules/RulesControls.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "basics/Text.h"
#include "rules/RunRule.h"

namespace zy {
namespace {

std::vector<ListView::Column> ListColumns() {
    std::vector<ListView::Column> columns;
    columns.reserve(kRuleFields.size());
    for (const auto& field : kRuleFields) {
        columns.push_back({std::string(field.listHeader), field.listWidth});
    }
    return columns;
}

// "Less than" keeps the two blanks that it has always had.
constexpr std::array<std::string_view, 5> kConditions{"> - Greater Than", ">= - Greater than or Equal to",
                                                      "< -  Less than", "<= - Less than or Equal to",
                                                      "= - Equal to"};

/// A chart line in the two lists that offer it.
struct Zone {
    std::string_view item;      ///< of the detail form, the code first
    std::string_view cell = {}; ///< of the grid; empty: the item's code
};

// The spelling of the two warning limits, the double blanks of the last two items, and the grid's own
// spelling of two codes are kept: the product's users know the lists so.
constexpr std::array<Zone, 15> kZones{{{"USL - Upper Spec. Limit (White)"},
                                       {"UCL - Upper Control Limit (Red)"},
                                       {"UWL - Upper Warnign Limit (Yellow)"},
                                       {"TARG - Target for Variable (Green)", "TARG "},
                                       {"LWL - Lower Waring Limit (Yellow)"},
                                       {"LCL - Lower Control Limit (Red)"},
                                       {"LSL - Lower Spec. Limit (White)"},
                                       {"PREV - Value of Previous Data Point"},
                                       {"+4S - Average + 4 SD"},
                                       {"+3S - Average + 3 SD"},
                                       {"+15S - Average + 15 SD"},
                                       {"AVG - Average", "Avg "},
                                       {"-15S - Average - 15 SD"},
                                       {"-3S  - Average - 3 SD"},
                                       {"-4S  - Average - 4 SD"}}};

std::vector<std::string> Zones() {
    std::vector<std::string> items;
    items.reserve(kZones.size());
    for (const auto& zone : kZones) {
        items.emplace_back(zone.item);
    }
    return items;
}

/// The relations, and behind the last bar an empty one.
std::string GridConditions() {
    std::string choices;
    for (const auto item : kConditions) {
        choices.append(ConditionOfItem(item)).append("|");
    }
    return choices;
}

std::string GridZones() {
    std::string choices;
    for (const auto& [item, cell] : kZones) {
        choices.append(choices.empty() ? "" : "|").append(cell.empty() ? ZoneOfItem(item) : cell);
    }
    return choices;
}

} // namespace

std::string_view ZoneOfItem(std::string_view item) {
    return Trim(item.substr(0, item.find(" - ")));
}

std::string_view ConditionOfItem(std::string_view item) {
    return Trim(item.substr(0, item.find('-')));
}

RunRule RuleInForm(const RulesControls& controls, const RunRule& held) {
    RunRule rule = held;
    rule.Code = controls.txtCode.Text();
    rule.Min = controls.txtMin.Text();
    rule.Max = controls.txtMax.Text();
    rule.Description = controls.txtDescription.Text();
    if (controls.cboZone.ListIndex() != -1) {
        rule.Zone = ZoneOfItem(controls.cboZone.Text());
    }
    if (controls.cboCondition.ListIndex() != -1) {
        rule.Cond = ConditionOfItem(controls.cboCondition.Text());
    }
    return rule;
}

RulesControls::RulesControls(Frame& fraRules, ListView::Source rules)
    : fraRulesList(&fraRules, "fraRulesList", "Current Rules List"),
      lstRulesList(&fraRulesList, "lstRulesList", ListColumns(), std::move(rules)),
      cmdUpDown(&fraRulesList, "cmdUpDown"), cmdAddList(&fraRulesList, "cmdAddList", "Add", 'A'),
      cmdDeleteList(&fraRulesList, "cmdDeleteList", "Delete", 'l'),
      cmdSaveRules(&fraRulesList, "cmdSaveRules", "Save", 'S'),
      cmdHelpRules(&fraRulesList, "cmdHelpRules", "Help", 'p'),
      FraRuleDetails(&fraRules, "FraRuleDetails", "Rule Details"), txtCode(&FraRuleDetails, "txtCode"),
      txtMin(&FraRuleDetails, "txtMin"), txtMax(&FraRuleDetails, "txtMax"),
      cboCondition(&FraRuleDetails, "cboCondition", {kConditions.begin(), kConditions.end()}),
      cboZone(&FraRuleDetails, "cboZone", Zones()), txtDescription(&FraRuleDetails, "txtDescription"),
      lblCode(&FraRuleDetails, "lblCode", "Rule ID:", 'R', txtCode),
      lblMin(&FraRuleDetails, "lblMin", "Minimum:", 'n', txtMin),
      lblMax(&FraRuleDetails, "lblMax", "Maximum:", 'x', txtMax),
      lblCondition(&FraRuleDetails, "lblCondition", "Condition:", 'C', cboCondition),
      lblZone(&FraRuleDetails, "lblZone", "Zone:", 'Z', cboZone),
      lblDescription(&FraRuleDetails, "lblDescription", "Description:", 'D', txtDescription),
      picRule(&FraRuleDetails, "picRule", "Picture of the rule"),
      fraGridMode(&fraRules, "fraGridMode", "Grid Mode"), grdRules(&fraGridMode, "grdRules", kRuleColumns) {
    cmdUpDown.SetCaption("Move rule");
    cmdHelpRules.SetCausesValidation(false); // a field that is wrong is what help is needed for
    grdRules.SetCaption("Rules");
    grdRules.columns.SetList(kCondColumn, CellList(GridConditions()));
    grdRules.columns.SetList(kZoneColumn, CellList(GridZones()));
}

void RulesControls::EnableForARule(bool enabled) {
    cmdDeleteList.SetEnabled(enabled);
    cmdUpDown.SetEnabled(enabled);
    FraRuleDetails.SetEnabled(enabled);
}

} // namespace zy
