#pragma once

#include <string>
#include <vector>

#include "controls/Key.h"
#include "platform/Dialogs.h"
#include "rules/RuleDetails.h"
#include "rules/RulesControls.h"
#include "rules/RulesStatus.h"
#include "rules/mRules.h"
#include "shell/SettingsForm.h"
#include "shell/TraceChannel.h"
#include "shell/mZYGlobal.h"

namespace zy {

/// The list of the rules page with what works on the rule that is selected in it: Add, Delete, the arrows and
/// the keys. Item i of the list is rule i, and the one that is selected stands in the detail form.
class RulesListMode {
  public:
    RulesListMode(mRules& rules, RuleDetails& details, RulesControls& controls, RulesStatus& status,
                  SettingsForm& form, SharedState& state, TraceChannel& trace, Dialogs& dialogs);

    /// Fills the list from the rules and shows the first one; without rules the detail form is empty and
    /// disabled.
    void LoadRulesListMode();
    /// Swap a rule with its neighbour and show it there; the first does not move up, nor the last down.
    /// Run-time error 9 when there is no such rule.
    void Move_Rule_Up(int item);
    void Move_Rule_Down(int item);

    /// Appends rules, as a step of this name, and shows the first of them; nothing for none. Rules that would
    /// make the list longer than it can be leave it as it is.
    void AppendRules(const std::string& step, const std::vector<RunRule>& rules);

    /// Adds a rule and opens it; a list that is as long as it can be stays as it is.
    void cmdAddList_Click();
    /// Asks, and deletes the selected rule on Yes; nothing when none is.
    void cmdDeleteList_Click();
    void cmdUpDown_UpClick();
    void cmdUpDown_DownClick();
    void lstRulesList_ItemClick(int item);
    /// Delete deletes, Alt with Up or Down moves, as far as the button for it can be clicked.
    void lstRulesList_KeyDown(const KeyPress& press);

  private:
    void Connect();
    void SelectAndEdit(int item);
    void Swap(int item, int neighbour);
    void AddRule();
    void DeleteSelected();

    mRules& rules_;
    RuleDetails& details_;
    RulesControls& controls_;
    ListView& list_;
    RulesStatus& status_;
    SettingsForm& form_;
    SharedState& state_;
    TraceChannel& trace_;
    Dialogs& dialogs_;
};

} // namespace zy
