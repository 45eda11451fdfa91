#include "rules/RulesDetails.h"

namespace zy {

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
