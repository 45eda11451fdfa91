#include "rules/RulesDetails.h"

#include "basics/Text.h"

namespace zy {

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

} // namespace zy
