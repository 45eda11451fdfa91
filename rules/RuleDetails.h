#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/CodePage.h"
#include "rules/RuleDetailChecks.h"
#include "rules/RulesControls.h"
#include "rules/RulesStatus.h"
#include "rules/mRules.h"
#include "shell/SettingsForm.h"
#include "shell/TraceChannel.h"
#include "shell/mZYGlobal.h"

namespace zy {

/// The detail form of the rules page: shows one rule of the list and stores what the user makes of it.
class RuleDetails {
  public:
    RuleDetails(mRules& rules, RuleDetailChecks& checks, RulesControls& controls, RulesStatus& status,
                SettingsForm& form, SharedState& state, TraceChannel& trace, const CodePage& codePage);

    /// Shows a rule, given by its index as text. Run-time error 13 for a text that is no whole number, 6 for
    /// one beyond 16 bits, 9 when no rule has that index.
    void EditRule(std::string_view index);
    /// Empties the form and disables what needs a rule.
    void ClearRule();
    /// Copies the form into a rule, unchecked, and marks a change if it is one. Run-time error 9 when no rule
    /// has that index.
    void Save_Rules_Edit(int index);
    /// Checks the form and copies it into the rule that it shows. False when a check failed: nothing is
    /// stored then. True also when it shows none.
    bool StoreShownRule();

    /// What the fields show, by the columns of RunRule's table: texts, and the items of the two lists.
    using Texts = std::array<std::string, kRuleColumns>;
    Texts Shown() const;
    /// Shows other texts and items in the fields, which is no edit of the user's. An item that is in no list
    /// is none.
    void ShowTexts(const Texts& texts);
    /// The control of a column's field.
    Control& Field(int column) { return *fields_.at(static_cast<std::size_t>(column)); }

    /// The form is about to show another rule or none, and shows it.
    Event<> filling;
    Event<> filled;
    /// The user changed the field of this column.
    Event<int> edited;
    /// The fields show something else than before, whoever made it so.
    Event<> shown;
    /// The form is about to be copied into its rule, and was.
    Event<> storing;
    Event<> stored;

  private:
    void Connect();
    void ConnectChange(std::string_view handler, Event<>& event, int column);
    void DetailChanged(std::string_view handler, int column);
    void Fill(const RunRule& rule);
    void Empty();
    void SelectCondition(const std::string& condition);
    void SelectZone(const std::string& zone);

    mRules& rules_;
    RuleDetailChecks& checks_;
    RulesControls& controls_;
    RulesStatus& status_;
    SettingsForm& form_;
    SharedState& state_;
    TraceChannel& trace_;
    const CodePage& codePage_;
    std::array<Control*, kRuleColumns> fields_; ///< by their columns
};

} // namespace zy
