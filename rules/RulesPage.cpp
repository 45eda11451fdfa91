#include "rules/RulesPage.h"

#include <algorithm>
#include <utility>

#include "rules/RulesLayout.h"
#include "rules/mRules.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

constexpr std::string_view kModule = "mRules";

std::string_view CellOf(const RunRule& rule, int column) {
    return rule.*PropertyIn(column);
}

} // namespace

RulesPage::RulesPage(mRules& rules, RuleChecks& checks, SettingsForm& form, SharedState& state,
                     TraceChannel& trace, Dialogs& dialogs, const CodePage& codePage)
    : controls(form.fraRules, [&rules](int item, int column) { return CellOf(rules.gaRules(item), column); }),
      gridMode(rules, controls, form, state, trace, checks), rules_(rules), form_(form), state_(state),
      trace_(trace), dialogs_(dialogs), codePage_(codePage), checks_(checks) {
    ConnectButtons();
    ConnectDetails();
    gridMode.countChanged.Connect([this] { ShowStatus(CountText()); });
    gridMode.addRefused.Connect([this] { RefuseToAdd(); });
    controls.grdRules.block.pasted.Connect([this](const PasteReport& paste) {
        ShowStatus(CountText());
        AddHint(form_.zyStatusBar, DescribeLeftOut(paste, controls.grdRules.cells));
    });
    rules_.reported.Connect([this](const std::string& report) {
        auto text = report;
        Join(text, "; ", rules_.LastSaveFailed() ? "change a rule and save again before closing" : "");
        ShowStatus(text);
    });
}

void RulesPage::Trace(std::string_view module, std::string_view procedure, std::string_view message) {
    trace_.DebugTrace(module, procedure, message);
}

void RulesPage::LoadRulesListMode() {
    Trace(kModule, "LoadRulesListMode", "Start");
    const int count = rules_.gaRules.UBound();
    controls.lstRulesList.Refill(count);
    rules_.giCurRule = -1;
    EnableRuleControls(count > 0);
    if (count == 0) {
        ClearRule();
    } else {
        SelectAndEdit(1);
    }
}

void RulesPage::EnableRuleControls(bool enabled) {
    controls.cmdDeleteList.SetEnabled(enabled);
    controls.cmdUpDown.SetEnabled(enabled);
    controls.FraRuleDetails.SetEnabled(enabled);
}

void RulesPage::SelectAndEdit(int item) {
    controls.lstRulesList.Select(item);
    EditRule(std::to_string(item));
}

void RulesPage::EditRule(std::string_view index) {
    Trace(kModule, "EditRule", "Start");
    if (rules_.giCurRule != -1 && rules_.gbRulesChanged && Validate_Rule()) {
        Save_Rules_Edit(rules_.giCurRule);
        state_.gbChanged = true;
    }
    const auto rule = Int16::FromText(index);
    rules_.gbLoadingRule = true;
    rules_.giCurRule = rule;
    FillDetails(rule);
    rules_.gbLoadingRule = false;
    ShowStatus(CountText());
}

void RulesPage::FillDetails(int index) {
    const RunRule& rule = rules_.gaRules(index);
    controls.txtCode.SetText(rule.Code);
    controls.txtMin.SetText(rule.Min);
    controls.txtMax.SetText(rule.Max);
    controls.txtDescription.SetText(rule.Description);
    const auto& conditions = controls.cboCondition.Items();
    for (std::size_t item = 0; item < conditions.size(); ++item) {
        if (rule.Cond == ConditionOfItem(conditions[item])) {
            controls.cboCondition.SetListIndex(static_cast<int>(item));
        }
    }
    const auto zone = codePage_.UCase(rule.Zone);
    const auto& zones = controls.cboZone.Items();
    for (std::size_t item = 0; item < zones.size(); ++item) {
        if (codePage_.UCase(zones[item]).find(zone) != std::string::npos) {
            controls.cboZone.SetListIndex(static_cast<int>(item));
            break;
        }
    }
}

void RulesPage::ClearRule() {
    Trace(kModule, "ClearRule", "Start");
    rules_.gbLoadingRule = true;
    rules_.giCurRule = -1;
    for (TextBox* box : {&controls.txtCode, &controls.txtMin, &controls.txtMax, &controls.txtDescription}) {
        box->SetText("");
    }
    controls.cboCondition.SetListIndex(-1);
    controls.cboZone.SetListIndex(-1);
    EnableRuleControls(false);
    rules_.gbLoadingRule = false;
    ShowStatus(CountText());
}

void RulesPage::Save_Rules_Edit(Int16 index) {
    RunRule& rule = rules_.gaRules(index);
    Trace(kModule, "Save_Rules_Edit", "Start item: " + rule.Code);
    rules_.gbNewRule = false;
    RunRule edited = RuleInForm(controls, rule);
    if (edited != rule) {
        rule = std::move(edited);
        state_.gbChanged = true;
    }
    controls.lstRulesList.RefreshItem(index);
}

void RulesPage::Move_Rule_Up(Int16 item) {
    Trace(kModule, "Move_Rule_Up", "Start");
    if (item != 1) {
        Swap(item, item - 1);
    }
}

void RulesPage::Move_Rule_Down(Int16 item) {
    Trace(kModule, "Move_Rule_Down", "Start");
    if (item != rules_.gaRules.UBound()) {
        Swap(item, item + 1);
    }
}

void RulesPage::Swap(Int16 item, int neighbour) {
    rules_.gaRules.Swap(neighbour, item);
    form_.ChangeFlag = true;
    state_.gbChanged = true;
    LoadRulesListMode();
    SelectAndEdit(neighbour);
}

bool RulesPage::Validate_Rule() {
    Trace(kModule, "Validate_Rule", "Start");
    // A missing zone moves the focus to the condition, which is meant.
    return ValidateCode() && ValidateMin() && ValidateMax() && ValidateMinMax(controls.txtMin) &&
           ValidateSelection(controls.cboCondition, controls.cboCondition) &&
           ValidateSelection(controls.cboZone, controls.cboCondition) && ValidateDescription();
}

void RulesPage::Show() {
    ShowListMode();
    LoadRulesListMode();
}

void RulesPage::Save() {
    auto& changeFlag = form_.ChangeFlag;
    if (rules_.giCurRule != -1 && changeFlag) {
        if (!Validate_Rule()) {
            return;
        }
        Save_Rules_Edit(rules_.giCurRule);
        changeFlag = true;
    }
    if (changeFlag) {
        changeFlag = !rules_.Write_Rules_File();
    }
}

bool RulesPage::SaveAtClosing() {
    // Unlike the other two editors this one checks nothing here: whoever closes gets the list as it is held.
    return rules_.Write_Rules_File();
}

Size RulesPage::LeastInnerSize() {
    const Size page = LeastRulesPage(controls);
    return {page.width, page.height + form_.zyStatusBar.Preferred().height};
}

void RulesPage::ResizeRuleTab() {
    const auto& inner = form_.InnerSize();
    const int height = std::max(inner.height - form_.zyStatusBar.Preferred().height, 0);
    form_.fraRules.SetBounds({0, 0, inner.width, height});
    LayOutRuleFrames(controls, {inner.width, height});
    ResizeRuleList();
    ResizeRuleDetails();
}

void RulesPage::ResizeRuleList() {
    LayOutRuleList(controls);
}

void RulesPage::ResizeRuleDetails() {
    LayOutRuleDetails(controls);
}

} // namespace zy
