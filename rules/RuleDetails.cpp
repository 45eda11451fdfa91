#include "rules/RuleDetails.h"

#include <utility>

#include "basics/Int16.h"

namespace zy {

RuleDetails::RuleDetails(mRules& rules, RuleDetailChecks& checks, RulesControls& controls,
                         RulesStatus& status, SettingsForm& form, SharedState& state, TraceChannel& trace,
                         const CodePage& codePage)
    : rules_(rules), checks_(checks), controls_(controls), status_(status), form_(form), state_(state),
      trace_(trace), codePage_(codePage) {
    Connect();
}

void RuleDetails::Connect() {
    ConnectChange("txtCode_Change", controls_.txtCode.change);
    ConnectChange("txtMin_Change", controls_.txtMin.change);
    ConnectChange("txtMax_Change", controls_.txtMax.change);
    ConnectChange("txtDescription_Change", controls_.txtDescription.change);
    ConnectChange("cboCondition_Click", controls_.cboCondition.click);
    ConnectChange("cboZone_Click", controls_.cboZone.click);
}

void RuleDetails::ConnectChange(std::string_view handler, Event<>& event) {
    event.Connect([this, handler] { DetailChanged(handler); });
}

void RuleDetails::DetailChanged(std::string_view handler) {
    trace_.DebugTrace(kMainForm, handler, "Start");
    if (!rules_.gbLoadingRule) {
        form_.ChangeFlag = true;
        status_.ShowCount();
    }
}

void RuleDetails::EditRule(std::string_view index) {
    trace_.DebugTrace(kRulesModule, "EditRule", "Start");
    if (rules_.giCurRule != -1 && rules_.gbRulesChanged && StoreShownRule()) {
        state_.gbChanged = true;
    }
    const int rule = ToInt16(index);
    rules_.gbLoadingRule = true;
    rules_.giCurRule = rule;
    Fill(rules_.gaRules(rule));
    rules_.gbLoadingRule = false;
    status_.ShowCount();
}

void RuleDetails::Fill(const RunRule& rule) {
    controls_.txtCode.SetText(rule.Code);
    controls_.txtMin.SetText(rule.Min);
    controls_.txtMax.SetText(rule.Max);
    controls_.txtDescription.SetText(rule.Description);
    SelectCondition(rule.Cond);
    SelectZone(rule.Zone);
}

void RuleDetails::SelectCondition(const std::string& condition) {
    const auto& conditions = controls_.cboCondition.Items();
    for (std::size_t item = 0; item < conditions.size(); ++item) {
        if (condition == ConditionOfItem(conditions[item])) {
            controls_.cboCondition.SetListIndex(static_cast<int>(item));
        }
    }
}

void RuleDetails::SelectZone(const std::string& zone) {
    const auto wanted = codePage_.UCase(zone);
    const auto& zones = controls_.cboZone.Items();
    for (std::size_t item = 0; item < zones.size(); ++item) {
        if (codePage_.UCase(zones[item]).find(wanted) != std::string::npos) {
            controls_.cboZone.SetListIndex(static_cast<int>(item));
            break;
        }
    }
}

void RuleDetails::ClearRule() {
    trace_.DebugTrace(kRulesModule, "ClearRule", "Start");
    rules_.gbLoadingRule = true;
    rules_.giCurRule = -1;
    for (TextBox* box :
         {&controls_.txtCode, &controls_.txtMin, &controls_.txtMax, &controls_.txtDescription}) {
        box->SetText("");
    }
    controls_.cboCondition.SetListIndex(-1);
    controls_.cboZone.SetListIndex(-1);
    controls_.EnableForARule(false);
    rules_.gbLoadingRule = false;
    status_.ShowCount();
}

void RuleDetails::Save_Rules_Edit(int index) {
    RunRule& rule = rules_.gaRules(index);
    trace_.DebugTrace(kRulesModule, "Save_Rules_Edit", "Start item: " + rule.Code);
    rules_.gbNewRule = false;
    RunRule edited = RuleInForm(controls_, rule);
    if (edited != rule) {
        rule = std::move(edited);
        state_.gbChanged = true;
    }
    controls_.lstRulesList.RefreshItem(index);
}

bool RuleDetails::StoreShownRule() {
    if (rules_.giCurRule == -1) {
        return true;
    }
    const bool valid = checks_.Validate_Rule();
    if (valid) {
        Save_Rules_Edit(rules_.giCurRule);
    }
    return valid;
}

} // namespace zy
