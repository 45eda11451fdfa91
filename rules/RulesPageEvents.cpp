#include <utility>

#include "rules/RulesPage.h"
#include "rules/mRules.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

constexpr std::string_view kForm = "frmGlobalSettings";

} // namespace

void RulesPage::ConnectButtons() {
    controls.cmdAddList.click.Connect([this] { cmdAddList_Click(); });
    controls.cmdDeleteList.click.Connect([this] { cmdDeleteList_Click(); });
    controls.cmdSaveRules.click.Connect([this] { cmdSaveRules_Click(); });
    controls.cmdUpDown.upClick.Connect([this] { cmdUpDown_UpClick(); });
    controls.cmdUpDown.downClick.Connect([this] { cmdUpDown_DownClick(); });
    controls.lstRulesList.itemClick.Connect([this](int item) { lstRulesList_ItemClick(item); });
    controls.lstRulesList.keyDown.Connect([this](const KeyPress& press) { lstRulesList_KeyDown(press); });
}

void RulesPage::ConnectDetails() {
    ConnectChange("txtCode_Change", controls.txtCode.change);
    ConnectChange("txtMin_Change", controls.txtMin.change);
    ConnectChange("txtMax_Change", controls.txtMax.change);
    ConnectChange("txtDescription_Change", controls.txtDescription.change);
    ConnectChange("cboCondition_Click", controls.cboCondition.click);
    ConnectChange("cboZone_Click", controls.cboZone.click);

    auto& c = controls;
    ConnectValidate("txtCode_Validate", c.txtCode, [this] { return ValidateCode(); });
    ConnectValidate("txtMin_Validate", c.txtMin,
                    [this] { return ValidateMin() && ValidateBeside(controls.txtMax, controls.txtMin); });
    ConnectValidate("txtMax_Validate", c.txtMax,
                    [this] { return ValidateMax() && ValidateBeside(controls.txtMin, controls.txtMax); });
    ConnectValidate("cboCondition_Validate", c.cboCondition,
                    [this] { return ValidateSelection(controls.cboCondition, controls.cboCondition); });
    ConnectValidate("cboZone_Validate", c.cboZone,
                    [this] { return ValidateSelection(controls.cboZone, controls.cboZone); });
    ConnectValidate("txtDescription_Validate", c.txtDescription, [this] { return ValidateDescription(); });
}

void RulesPage::ConnectChange(std::string_view handler, Event<>& event) {
    event.Connect([this, handler] { DetailChanged(handler); });
}

void RulesPage::DetailChanged(std::string_view handler) {
    Trace(kForm, handler, "Start");
    if (!rules_.gbLoadingRule) {
        form_.ChangeFlag = true;
        ShowStatus(CountText());
    }
}

void RulesPage::ConnectValidate(std::string_view handler, Control& control, std::function<bool()> check) {
    control.validate = [this, handler, check = std::move(check)] {
        Trace(kForm, handler, "Start");
        return rules_.giCurRule == -1 || check();
    };
}

bool RulesPage::ValidateCode() {
    const bool valid = checks_.CheckCode(controls.txtCode.Text(), rules_.giCurRule);
    return valid || Refuse(controls.txtCode);
}

bool RulesPage::ValidateMin() {
    return checks_.Check_Min(controls.txtMin.Text()) || Refuse(controls.txtMin);
}

bool RulesPage::ValidateMax() {
    return checks_.Check_Max(controls.txtMax.Text()) || Refuse(controls.txtMax);
}

bool RulesPage::ValidateMinMax(TextBox& focus) {
    return checks_.Verify_MinMax(controls.txtMin.Text(), controls.txtMax.Text()) || Refuse(focus);
}

bool RulesPage::ValidateBeside(const TextBox& other, TextBox& left) {
    return !checks_.IsCount(other.Text()) || ValidateMinMax(left);
}

bool RulesPage::ValidateDescription() {
    return checks_.CheckDescription(controls.txtDescription.Text()) || Refuse(controls.txtDescription);
}

bool RulesPage::Refuse(TextBox& box) {
    SelectAllText(box);
    return false;
}

bool RulesPage::ValidateSelection(const ComboBox& list, Control& focus) {
    if (list.ListIndex() != -1) {
        return true;
    }
    // Condition and zone share one message, misspelt as it is: meant.
    checks_.ShowRuleError("You Must select a Rule Condtion", "Rule Condition Invalid");
    focus.SetFocus();
    return false;
}

void RulesPage::cmdAddList_Click() {
    Trace(kForm, "cmdAddList_Click", "Start");
    if (rules_.gaRules.IsFull()) {
        RefuseToAdd();
        return;
    }
    rules_.Add_New_Rule();
    form_.ChangeFlag = true;
    LoadRulesListMode();
    SelectAndEdit(controls.lstRulesList.Count());
    SelectAllText(controls.txtCode); // what is typed next is the rule's own name
}

void RulesPage::RefuseToAdd() {
    ShowStatus(CountText());
    AddHint(form_.zyStatusBar, kListFull);
}

void RulesPage::cmdDeleteList_Click() {
    Trace(kForm, "cmdDeleteList_Click", "Start");
    if (controls.lstRulesList.Selected() == 0) {
        return;
    }
    if (dialogs_.AskYesNo("Are you Sure you want to Delete this Rule", "Confirm Delete", Escape::AnswersNo)) {
        DeleteSelected();
    }
    Trace(kForm, "cmdDeleteList_Click", "Rule Deleted"); // after No as well, which is meant
}

void RulesPage::DeleteSelected() {
    auto& list = controls.lstRulesList;
    const int item = list.Selected();
    rules_.Delete_Rule(item);
    form_.ChangeFlag = true;
    list.RemoveSelected();
    if (list.Count() == 0) {
        list.Select(0);
        ClearRule();
    } else {
        SelectAndEdit(item == 1 ? 1 : item - 1);
    }
}

void RulesPage::cmdSaveRules_Click() {
    Trace(kForm, "cmdSaveRules_Click", "Start");
    // Neither checks nor takes over the detail form: the rules are written as they are held. Meant.
    if (form_.ChangeFlag && rules_.Write_Rules_File()) {
        form_.ChangeFlag = false;
        ShowStatus(report_);
    }
}

void RulesPage::cmdUpDown_UpClick() {
    Trace(kForm, "cmdUpDown_UpClick", "Start");
    if (controls.lstRulesList.Selected() != 0) {
        Move_Rule_Up(controls.lstRulesList.Selected());
    }
}

void RulesPage::cmdUpDown_DownClick() {
    Trace(kForm, "cmdUpDown_DownClick", "Start");
    if (controls.lstRulesList.Selected() != 0) {
        Move_Rule_Down(controls.lstRulesList.Selected());
    }
}

void RulesPage::lstRulesList_ItemClick(int item) {
    Trace(kForm, "lstRulesList_ItemClick", "Start");
    EditRule(std::to_string(item));
}

void RulesPage::lstRulesList_KeyDown(const KeyPress& press) {
    Trace(kForm, "lstRulesList_KeyDown", "Start");
    const bool plain = !press.ctrl && !press.alt && !press.shift;
    const bool altAlone = press.alt && !press.ctrl && !press.shift;
    if (plain && press.key == Key::Delete && controls.cmdDeleteList.IsUsable()) {
        cmdDeleteList_Click();
    } else if (altAlone && press.key == Key::Up && controls.cmdUpDown.IsUsable()) {
        cmdUpDown_UpClick();
    } else if (altAlone && press.key == Key::Down && controls.cmdUpDown.IsUsable()) {
        cmdUpDown_DownClick();
    }
}

bool RulesPage::FormDiffers() const {
    if (rules_.giCurRule == -1) {
        return false;
    }
    const RunRule& held = rules_.gaRules(rules_.giCurRule);
    return RuleInForm(controls, held) != held;
}

std::string RulesPage::CountText() {
    std::string text = Counted(static_cast<std::size_t>(rules_.gaRules.UBound()), "rule");
    if (const auto skipped = rules_.SkippedLines(); skipped != 0) {
        text += "; " + Counted(skipped, "line") + " of the file not understood, saving drops them";
    }
    Join(text, "; ", rules_.Dangers());
    return text;
}

void RulesPage::ShowStatus(std::string_view report) {
    report_ = report;
    form_.zyStatusBar.SetText(report_);
    if (FormDiffers()) {
        // File > Save takes the form over only while there is a change to be saved.
        AddHint(form_.zyStatusBar, rules_.gaRules(rules_.giCurRule).Code +
                                       (form_.ChangeFlag ? " edited; File > Save stores it"
                                                         : " differs from its fields; change one, then File "
                                                           "> Save stores them"));
    }
}

} // namespace zy
