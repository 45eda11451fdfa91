#pragma once

#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "platform/SystemInfo.h"
#include "rules/RuleChecks.h"
#include "rules/RuleDetailChecks.h"
#include "rules/RuleDetails.h"
#include "rules/RulePictures.h"
#include "rules/RuleRecords.h"
#include "rules/RuleSteps.h"
#include "rules/RulesControls.h"
#include "rules/RulesGridMode.h"
#include "rules/RulesListMode.h"
#include "rules/RulesStatus.h"
#include "rules/mRules.h"
#include "shell/Editor.h"
#include "shell/SettingsForm.h"
#include "shell/TraceChannel.h"
#include "shell/mZYGlobal.h"

namespace zy {

/// The rules page: which of its two views is shown, its layout, and its saving. What happens inside it is its
/// parts': the list, the detail form with its checks, the grid, and what the status bar says.
class RulesPage : public Editor {
  public:
    RulesPage(mRules& rules, RuleChecks& ruleChecks, SettingsForm& form, SharedState& state,
              TraceChannel& trace, SystemInfo& system, Dialogs& dialogs, const CodePage& codePage);

    /// Shows the list and the detail form as they stand, to be filled by LoadRulesListMode; the grid is
    /// hidden.
    void ShowListMode();
    /// Shows the grid with one row per rule. Nothing in the program calls it.
    void ShowGridMode();
    /// Checks and stores what the view that is shown holds, before another one is shown: the rule in the
    /// detail form, or the grid when one of its cells was changed. False when a check failed; then nothing is
    /// stored and the switch is not to be made. Nothing in the program calls it.
    bool StoreBeforeTabSwitch();

    /// Writes the rules as they are held, when there is a change: neither checks the detail form nor takes it
    /// over, unlike Save.
    void cmdSaveRules_Click();

    /// Lays out the whole page in the window's inner size, then the list and the detail form in their frames.
    void ResizeRuleTab();
    void ResizeRuleList();
    void ResizeRuleDetails();

    // Editor
    void Show() override;
    void Resize() override { ResizeRuleTab(); }
    void CommitOpenCell() override {} // the list has no cells
    Size LeastInnerSize() override;
    bool HasUnsavedChanges() const override { return form_.ChangeFlag; }
    void Save() override;
    bool SaveAtClosing() override;
    EditSteps& Steps() override { return steps_; }
    const ListRecords& Records() const override { return records_; }
    SaveHooks& Hooks() override { return rules_.saveHooks; }

    RulesControls controls;
    RulesStatus status;
    RuleDetailChecks detailChecks;
    RuleDetails details;
    RulesListMode listMode;
    RulesGridMode gridMode;
    RulePictures pictures;

  private:
    /// Writes the rules; the marks go when that was not refused.
    bool Write();
    SaveEnd EndOfSave() const;
    /// Sets the mark after a step was taken back or done again, and shows what that was.
    void ShowMoved(bool isSaved, const std::string& report);

    mRules& rules_;
    SettingsForm& form_;
    TraceChannel& trace_;
    RuleSteps steps_;
    RuleRecords records_;
};

} // namespace zy
