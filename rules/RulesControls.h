#pragma once

#include <string_view>

#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/DrawingBox.h"
#include "controls/Grid.h"
#include "controls/ListView.h"
#include "controls/TextBox.h"
#include "controls/UpDown.h"
#include "rules/RunRule.h"

namespace zy {

/// The controls of the rules page, in tab order: the list with its buttons, the detail form, and the grid
/// view that the page carries hidden.
struct RulesControls {
    RulesControls(Frame& fraRules, ListView::Source rules);

    /// Enables or disables what works on a rule: the detail form, Delete and the arrows.
    void EnableForARule(bool enabled);

    Frame fraRulesList;
    ListView lstRulesList;
    UpDown cmdUpDown;
    CommandButton cmdAddList;
    CommandButton cmdDeleteList;
    CommandButton cmdSaveRules;
    CommandButton cmdHelpRules;

    Frame FraRuleDetails;
    TextBox txtCode;
    TextBox txtMin;
    TextBox txtMax;
    ComboBox cboCondition;
    ComboBox cboZone;
    TextBox txtDescription;
    Label lblCode;
    Label lblMin;
    Label lblMax;
    Label lblCondition;
    Label lblZone;
    Label lblDescription;
    DrawingBox picRule;

    Frame fraGridMode;
    Grid grdRules;
};

/// The code at the front of an item of the zone list: what stands before " - ". Zone codes hold dashes
/// themselves.
std::string_view ZoneOfItem(std::string_view item);
/// The relation at the front of an item of the condition list: what stands before the first "-".
std::string_view ConditionOfItem(std::string_view item);

/// The rule as the detail form shows it. Where no condition or zone is selected, `held` keeps its own.
RunRule RuleInForm(const RulesControls& controls, const RunRule& held);

} // namespace zy
