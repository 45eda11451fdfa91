#include "rules/RuleDetailChecks.h"

#include <utility>

namespace zy {
namespace {

bool Refuse(TextBox& box) {
    SelectAllText(box);
    return false;
}

} // namespace

RuleDetailChecks::RuleDetailChecks(const mRules& rules, RuleChecks& checks, RulesControls& controls,
                                   TraceChannel& trace)
    : rules_(rules), checks_(checks), controls_(controls), trace_(trace) {
    Connect();
}

void RuleDetailChecks::Connect() {
    auto& c = controls_;
    ConnectValidate("txtCode_Validate", c.txtCode, [this] { return ValidateCode(); });
    ConnectValidate("txtMin_Validate", c.txtMin,
                    [this, &c] { return ValidateMin() && ValidateBeside(c.txtMax, c.txtMin); });
    ConnectValidate("txtMax_Validate", c.txtMax,
                    [this, &c] { return ValidateMax() && ValidateBeside(c.txtMin, c.txtMax); });
    ConnectValidate("cboCondition_Validate", c.cboCondition,
                    [this, &c] { return ValidateSelection(c.cboCondition, c.cboCondition); });
    ConnectValidate("cboZone_Validate", c.cboZone,
                    [this, &c] { return ValidateSelection(c.cboZone, c.cboZone); });
    ConnectValidate("txtDescription_Validate", c.txtDescription, [this] { return ValidateDescription(); });
}

void RuleDetailChecks::ConnectValidate(std::string_view handler, Control& control,
                                       std::function<bool()> check) {
    control.validate = [this, handler, check = std::move(check)] {
        trace_.DebugTrace(kMainForm, handler, "Start");
        return rules_.giCurRule == -1 || check();
    };
}

bool RuleDetailChecks::Validate_Rule() {
    trace_.DebugTrace(kRulesModule, "Validate_Rule", "Start");
    auto& c = controls_;
    // A missing zone moves the focus to the condition: its message, too, asks for the condition.
    return ValidateCode() && ValidateMin() && ValidateMax() && ValidateMinMax(c.txtMin) &&
           ValidateSelection(c.cboCondition, c.cboCondition) &&
           ValidateSelection(c.cboZone, c.cboCondition) && ValidateDescription();
}

bool RuleDetailChecks::ValidateCode() {
    return checks_.CheckCode(controls_.txtCode.Text(), rules_.giCurRule) || Refuse(controls_.txtCode);
}

bool RuleDetailChecks::ValidateMin() {
    return checks_.Check_Min(controls_.txtMin.Text()) || Refuse(controls_.txtMin);
}

bool RuleDetailChecks::ValidateMax() {
    return checks_.Check_Max(controls_.txtMax.Text()) || Refuse(controls_.txtMax);
}

bool RuleDetailChecks::ValidateMinMax(TextBox& focus) {
    return checks_.Verify_MinMax(controls_.txtMin.Text(), controls_.txtMax.Text()) || Refuse(focus);
}

bool RuleDetailChecks::ValidateBeside(const TextBox& other, TextBox& left) {
    return !checks_.IsCount(other.Text()) || ValidateMinMax(left);
}

bool RuleDetailChecks::ValidateDescription() {
    return checks_.CheckDescription(controls_.txtDescription.Text()) || Refuse(controls_.txtDescription);
}

bool RuleDetailChecks::ValidateSelection(const ComboBox& list, Control& focus) {
    if (list.ListIndex() != -1) {
        return true;
    }
    // One message for condition and zone, misspelt: users know it so.
    checks_.ShowRuleError("You Must select a Rule Condtion", "Rule Condition Invalid");
    focus.SetFocus();
    return false;
}

} // namespace zy
