#include "rules/RulesPage.h"
#include "rules/mRules.h"

// The two views of the rules page, and what is stored when one is left for the other.

namespace zy {

void RulesPage::ShowListMode() {
    controls.fraGridMode.SetVisible(false);
    controls.fraRulesList.SetVisible(true);
    controls.FraRuleDetails.SetVisible(true);
}

void RulesPage::ShowGridMode() {
    controls.fraRulesList.SetVisible(false);
    controls.FraRuleDetails.SetVisible(false);
    controls.fraGridMode.SetVisible(true);
    gridMode.Fill();
    // A view that makes the frame's inside only now has just measured it.
    ResizeRuleTab();
}

bool RulesPage::StoreBeforeTabSwitch() {
    constexpr std::string_view kForm = "frmGlobalSettings";
    Trace(kForm, "StoreBeforeTabSwitch", "Start");
    return controls.fraGridMode.Visible() ? gridMode.StoreIfChanged() : StoreRuleInHand();
}

bool RulesPage::StoreRuleInHand() {
    if (rules_.giCurRule == -1) {
        return true;
    }
    const bool valid = Validate_Rule();
    if (valid) {
        Save_Rules_Edit(rules_.giCurRule);
    }
    return valid;
}

} // namespace zy
