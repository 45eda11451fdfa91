#include "rules/RuleDetails.h"

#include <algorithm>

#include "basics/Int16.h"

namespace zy {
namespace {

void SelectItem(ComboBox& box, const std::string& text) {
    const auto& items = box.Items();
    const auto found = std::find(items.begin(), items.end(), text);
    box.SetListIndex(found == items.end() ? -1 : static_cast<int>(found - items.begin()));
}

} // namespace

RuleDetails::RuleDetails(mRules& rules, RuleDetailChecks& checks, RulesControls& controls,
                         RulesStatus& status, SettingsForm& form, SharedState& state, TraceChannel& trace,
                         const CodePage& codePage)
    : rules_(rules), checks_(checks), controls_(controls), status_(status), form_(form), state_(state),
      trace_(trace),
      codePage_(codePage), fields_{&controls.txtCode,      &controls.txtMin,  &controls.txtMax,
                                   &controls.cboCondition, &controls.cboZone, &controls.txtDescription} {
    Connect();
}

void RuleDetails::Connect() {
    ConnectChange("txtCode_Change", controls_.txtCode.change, kCodeColumn);
    ConnectChange("txtMin_Change", controls_.txtMin.change, kMinColumn);
    ConnectChange("txtMax_Change", controls_.txtMax.change, kMaxColumn);
    ConnectChange("txtDescription_Change", controls_.txtDescription.change, kDescriptionColumn);
    ConnectChange("cboCondition_Click", controls_.cboCondition.click, kCondColumn);
    ConnectChange("cboZone_Click", controls_.cboZone.click, kZoneColumn);
}

void RuleDetails::ConnectChange(std::string_view handler, Event<>& event, int column) {
    event.Connect([this, handler, column] { DetailChanged(handler, column); });
}

void RuleDetails::DetailChanged(std::string_view handler, int column) {
    trace_.DebugTrace(kMainForm, handler, "Start");
    if (!rules_.gbLoadingRule) {
        form_.ChangeFlag = true;
        status_.ShowCount();
        edited.Raise(column);
        shown.Raise();
    }
}

RuleDetails::Texts RuleDetails::Shown() const {
    return {controls_.txtCode.Text(),      controls_.txtMin.Text(),  controls_.txtMax.Text(),
            controls_.cboCondition.Text(), controls_.cboZone.Text(), controls_.txtDescription.Text()};
}

void RuleDetails::ShowTexts(const Texts& texts) {
    rules_.gbLoadingRule = true;
    controls_.txtCode.SetText(texts[kCodeColumn]);
    controls_.txtMin.SetText(texts[kMinColumn]);
    controls_.txtMax.SetText(texts[kMaxColumn]);
    controls_.txtDescription.SetText(texts[kDescriptionColumn]);
    SelectItem(controls_.cboCondition, texts[kCondColumn]);
    SelectItem(controls_.cboZone, texts[kZoneColumn]);
    rules_.gbLoadingRule = false;
    shown.Raise();
}

void RuleDetails::EditRule(std::string_view index) {
    trace_.DebugTrace(kRulesModule, "EditRule", "Start");
    if (rules_.giCurRule != -1 && rules_.gbRulesChanged && StoreShownRule()) {
        state_.gbChanged = true;
    }
    const int rule = ToInt16(index);
    filling.Raise();
    rules_.gbLoadingRule = true;
    rules_.giCurRule = rule;
    Fill(rules_.gaRules(rule));
    rules_.gbLoadingRule = false;
    status_.ShowCount();
    filled.Raise();
    shown.Raise();
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
    filling.Raise();
    rules_.gbLoadingRule = true;
    rules_.giCurRule = -1;
    Empty();
    rules_.gbLoadingRule = false;
    status_.ShowCount();
    filled.Raise();
    shown.Raise();
}

void RuleDetails::Empty() {
    for (TextBox* box :
         {&controls_.txtCode, &controls_.txtMin, &controls_.txtMax, &controls_.txtDescription}) {
        box->SetText("");
    }
    controls_.cboCondition.SetListIndex(-1);
    controls_.cboZone.SetListIndex(-1);
    controls_.EnableForARule(false);
}

void RuleDetails::Save_Rules_Edit(int index) {
    const RunRule& rule = rules_.gaRules(index);
    trace_.DebugTrace(kRulesModule, "Save_Rules_Edit", "Start item: " + rule.Code);
    rules_.gbNewRule = false;
    const RunRule inForm = RuleInForm(controls_, rule);
    storing.Raise();
    if (inForm != rule) {
        rules_.gaRules.Set(index, inForm);
        state_.gbChanged = true;
    }
    stored.Raise();
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
