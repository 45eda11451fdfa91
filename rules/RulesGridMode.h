#pragma once

#include "rules/RuleChecks.h"
#include "rules/RulesControls.h"
#include "rules/RulesStatus.h"
#include "rules/mRules.h"
#include "shell/SettingsForm.h"
#include "shell/TraceChannel.h"
#include "shell/mZYGlobal.h"

namespace zy {

/// The second view of the rules page: all rules in one grid, edited in place. Row r is rule r.
///
/// It is ready and out of reach: nothing in the program shows it.
class RulesGridMode {
  public:
    RulesGridMode(mRules& rules, RuleChecks& checks, RulesControls& controls, RulesStatus& status,
                  SettingsForm& form, SharedState& state, TraceChannel& trace);

    /// Fills the grid anew from the rules, in time linear in them. Text that is being typed is dropped, no
    /// cell is current, and no mark is set.
    void Fill();
    /// Appends the newest rule as a row and selects it.
    void AddtoGrid();
    /// Copies the cells into the rules as they stand, nothing trimmed.
    void Save_RulesGrid();
    /// Checks the grid and copies it into the rules when a cell was changed. False when a check failed.
    bool StoreIfChanged();

    /// Adds a rule and selects its row; a list that is as long as it can be stays as it is.
    void mnuAddRule_Click();
    /// Deletes the current row's rule at once: only the list's button asks first.
    void mnuDeleteRule_Click();
    /// The right button selects the current row and opens the context menu; the others do nothing.
    void grdRules_MouseDown(MouseButton button);
    /// Fits the columns to their texts.
    void grdRules_AfterEdit();

  private:
    void Connect();
    void AddRows();
    void SelectRow(int row);
    bool StoreRow(int row);
    void KeepRuleInHand(int deleted);
    void MarkChanged();
    void ShowPaste(const PasteReport& paste);

    mRules& rules_;
    RuleChecks& checks_;
    Grid& grid_;
    RulesStatus& status_;
    SettingsForm& form_;
    SharedState& state_;
    TraceChannel& trace_;
};

} // namespace zy
