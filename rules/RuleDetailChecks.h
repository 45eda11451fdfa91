#pragma once

#include <functional>
#include <string_view>

#include "rules/RuleChecks.h"
#include "rules/RulesControls.h"
#include "rules/mRules.h"
#include "shell/TraceChannel.h"

namespace zy {

/// The checks of the detail form. They run for each field when the focus is to leave it, and for all of them
/// before the rule is stored. The first one that fails shows its message and gives a field the focus, its
/// whole text selected for correction.
class RuleDetailChecks {
  public:
    RuleDetailChecks(const mRules& rules, RuleChecks& checks, RulesControls& controls, TraceChannel& trace);

    /// Checks all fields in the order that is fixed for them. False at the first failure.
    bool Validate_Rule();

  private:
    void Connect();
    void ConnectValidate(std::string_view handler, Control& control, std::function<bool()> check);

    bool ValidateCode();
    bool ValidateMin();
    bool ValidateMax();
    bool ValidateMinMax(TextBox& focus);
    /// Compares the two counts when one is left. The other one may have been loaded as no count at all; then
    /// nothing is compared, or nobody could leave for it to mend it.
    bool ValidateBeside(const TextBox& other, TextBox& left);
    bool ValidateSelection(const ComboBox& list, Control& focus);
    bool ValidateDescription();

    const mRules& rules_;
    RuleChecks& checks_;
    RulesControls& controls_;
    TraceChannel& trace_;
};

} // namespace zy
