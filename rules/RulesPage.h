#pragma once

#include <string>
#include <string_view>

#include "basics/Int16.h"
#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "rules/RuleChecks.h"
#include "rules/RulesControls.h"
#include "rules/RulesGridMode.h"
#include "shell/Editor.h"
#include "shell/SettingsForm.h"
#include "shell/TraceChannel.h"
#include "shell/mZYGlobal.h"

namespace zy {

class mRules;

/// The rules page: list mode with its detail form, the handlers of its controls, and the switch to grid
/// mode.
class RulesPage : public Editor {
  public:
    RulesPage(mRules& rules, RuleChecks& checks, SettingsForm& form, SharedState& state, TraceChannel& trace,
              Dialogs& dialogs, const CodePage& codePage);

    /// Shows the list and the detail form as they stand, to be filled by LoadRulesListMode; the grid is
    /// hidden.
    void ShowListMode();
    /// Shows the grid with one row per rule. Nothing in the program calls it.
    void ShowGridMode();
    /// Checks and stores what the view that is shown holds, before another one is shown: the rule in the
    /// detail form, or the grid when one of its cells was changed. False when a check failed; then nothing is
    /// stored and the switch is not to be made. Nothing in the program calls it.
    bool StoreBeforeTabSwitch();

    /// Fills the list from the rules and shows the first one; without rules the detail form is empty and
    /// disabled.
    void LoadRulesListMode();
    /// Shows a rule, given by its index as text, in the detail form.
    void EditRule(std::string_view index);
    void ClearRule();
    /// Copies the detail form into a rule.
    void Save_Rules_Edit(Int16 index);
    /// Swap a rule with its neighbour and show it there; the first does not move up, nor the last down.
    void Move_Rule_Up(Int16 item);
    void Move_Rule_Down(Int16 item);
    /// Checks the detail form in its order, shows the first failure and puts the focus on it.
    bool Validate_Rule();

    void ResizeRuleTab();
    void ResizeRuleList();
    void ResizeRuleDetails();

    void cmdAddList_Click();
    void cmdDeleteList_Click();
    void cmdSaveRules_Click();
    void cmdUpDown_UpClick();
    void cmdUpDown_DownClick();
    void lstRulesList_ItemClick(int item);
    void lstRulesList_KeyDown(const KeyPress& press);

    // Editor
    void Show() override;
    void Resize() override { ResizeRuleTab(); }
    void CommitOpenCell() override {} // the list has no cells
    Size LeastInnerSize() override;
    bool HasUnsavedChanges() const override { return form_.ChangeFlag; }
    void Save() override;
    bool SaveAtClosing() override;

    RulesControls controls;
    RulesGridMode gridMode;

  private:
    void ConnectButtons();
    void ConnectDetails();
    void ConnectChange(std::string_view handler, Event<>& event);
    void ConnectValidate(std::string_view handler, Control& control, std::function<bool()> check);
    void DetailChanged(std::string_view handler);
    void Trace(std::string_view module, std::string_view procedure, std::string_view message);

    void EnableRuleControls(bool enabled);
    void FillDetails(int index);
    void SelectAndEdit(int item);
    void Swap(Int16 item, int neighbour);
    void RefuseToAdd();
    void DeleteSelected();
    bool StoreRuleInHand();

    bool ValidateCode();
    bool ValidateMin();
    bool ValidateMax();
    bool ValidateMinMax(TextBox& focus);
    /// Compares the two counts when one is left. The other one may have been loaded as no count at all; then
    /// nothing is compared, or nobody could leave for it to mend it.
    bool ValidateBeside(const TextBox& other, TextBox& left);
    bool ValidateSelection(const ComboBox& list, Control& focus);
    bool ValidateDescription();
    bool Refuse(TextBox& box);

    bool FormDiffers() const;
    /// Shows a report in the status bar, and behind it what a person must know about an edit of the form.
    void ShowStatus(std::string_view report);
    std::string CountText();

    mRules& rules_;
    SettingsForm& form_;
    SharedState& state_;
    TraceChannel& trace_;
    Dialogs& dialogs_;
    const CodePage& codePage_;
    RuleChecks& checks_;
    std::string report_; ///< the one shown last
};

} // namespace zy
