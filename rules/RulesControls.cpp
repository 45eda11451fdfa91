#include "rules/RulesControls.h"

#include <utility>

#include "rules/RunRule.h"

namespace zy {
namespace {

constexpr int kNarrow = 900;

std::vector<ListView::Column> ListColumns() {
    return {{"Rule ID", 1050}, {"Min", kNarrow},  {"Max", kNarrow},
            {"Cond", kNarrow}, {"Zone", kNarrow}, {"Description", 4000}};
}

// "Less than" has its two blanks on purpose.
std::vector<std::string> Conditions() {
    return {"> - Greater Than", ">= - Greater than or Equal to", "< -  Less than",
            "<= - Less than or Equal to", "= - Equal to"};
}

// The spelling of the two warning limits and the double blanks of the last two lines are meant.
std::vector<std::string> Zones() {
    return {"USL - Upper Spec. Limit (White)",
            "UCL - Upper Control Limit (Red)",
            "UWL - Upper Warnign Limit (Yellow)",
            "TARG - Target for Variable (Green)",
            "LWL - Lower Waring Limit (Yellow)",
            "LCL - Lower Control Limit (Red)",
            "LSL - Lower Spec. Limit (White)",
            "PREV - Value of Previous Data Point",
            "+4S - Average + 4 SD",
            "+3S - Average + 3 SD",
            "+15S - Average + 15 SD",
            "AVG - Average",
            "-15S - Average - 15 SD",
            "-3S  - Average - 3 SD",
            "-4S  - Average - 4 SD"};
}

// The bar at the end offers an empty relation.
constexpr std::string_view kGridConditions = ">|>=|<|<=|=|";

// Unlike the detail form's codes, two end in a blank and "Avg" is in mixed case, which is meant.
constexpr std::string_view kGridZones = "USL|UCL|UWL|TARG |LWL|LCL|LSL|PREV|+4S|+3S|+15S|Avg |-15S|-3S|-4S";

} // namespace

RulesControls::RulesControls(Frame& fraRules, ListView::Source rules)
    : fraRulesList(&fraRules, "fraRulesList", "Current Rules List"),
      lstRulesList(&fraRulesList, "lstRulesList", ListColumns(), std::move(rules)),
      cmdUpDown(&fraRulesList, "cmdUpDown"), cmdAddList(&fraRulesList, "cmdAddList", "Add", 'A'),
      cmdDeleteList(&fraRulesList, "cmdDeleteList", "Delete", 'l'),
      cmdSaveRules(&fraRulesList, "cmdSaveRules", "Save", 'S'),
      cmdHelpRules(&fraRulesList, "cmdHelpRules", "Help", 'p'),
      FraRuleDetails(&fraRules, "FraRuleDetails", "Rule Details"), txtCode(&FraRuleDetails, "txtCode"),
      txtMin(&FraRuleDetails, "txtMin"), txtMax(&FraRuleDetails, "txtMax"),
      cboCondition(&FraRuleDetails, "cboCondition", Conditions()),
      cboZone(&FraRuleDetails, "cboZone", Zones()), txtDescription(&FraRuleDetails, "txtDescription"),
      lblCode(&FraRuleDetails, "lblCode", "Rule ID:", 'R', txtCode),
      lblMin(&FraRuleDetails, "lblMin", "Minimum:", 'n', txtMin),
      lblMax(&FraRuleDetails, "lblMax", "Maximum:", 'x', txtMax),
      lblCondition(&FraRuleDetails, "lblCondition", "Condition:", 'C', cboCondition),
      lblZone(&FraRuleDetails, "lblZone", "Zone:", 'Z', cboZone),
      lblDescription(&FraRuleDetails, "lblDescription", "Description:", 'D', txtDescription),
      fraGridMode(&fraRules, "fraGridMode", "Grid Mode"), grdRules(&fraGridMode, "grdRules", kRuleColumns) {
    cmdUpDown.SetCaption("Move rule");
    grdRules.SetColumnList(kCondColumn, kGridConditions);
    grdRules.SetColumnList(kZoneColumn, kGridZones);
}

} // namespace zy
