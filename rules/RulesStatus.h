#pragma once

#include <string>
#include <string_view>

#include "rules/RulesControls.h"
#include "rules/mRules.h"
#include "shell/SettingsForm.h"

namespace zy {

/// Lines of a rules file that are no part of a rule, for the status bar; empty when there are none.
std::string DescribeSkipped(std::size_t lines);

/// What the status bar says while the rules page is shown: the number of rules or how a save ended, and
/// behind it what becomes of an edit in the detail form.
class RulesStatus {
  public:
    /// From then on it also shows what the list reports of its saves.
    RulesStatus(mRules& rules, const RulesControls& controls, SettingsForm& form);

    /// Shows the number of rules, what of the file the next save would drop, and why it would be refused.
    void ShowCount();
    /// Shows the number of rules and a hint behind it; the number alone for an empty hint.
    void ShowCountAnd(std::string_view hint);
    /// Shows what was shown last anew, for a mark has changed that decides what is said of an edit.
    void ShowAgain();

  private:
    void Show(std::string_view text);
    void ShowSave(const std::string& report);
    std::string CountText() const;
    bool DetailsDiffer() const;

    const mRules& rules_;
    const RulesControls& controls_;
    SettingsForm& form_;
    std::string text_; ///< what was shown last, without a hint
};

} // namespace zy
