#pragma once

#include <optional>
#include <string>

#include "rules/RuleDetails.h"
#include "rules/RulesControls.h"
#include "rules/mRules.h"
#include "shell/EditSteps.h"

namespace zy {

/// The steps of the rules editor. Row r of what they change is rule r; row 0 is the draft: what was typed
/// into the detail form and is not stored in its rule, with the index of that rule. Without a draft its texts
/// are empty.
class RuleSteps : public EditSteps {
  public:
    /// The three must outlive the steps.
    RuleSteps(mRules& rules, RuleDetails& details, RulesControls& controls);

    /// Whether the detail form holds what is in no rule.
    bool HasDraft() const { return !form_.rule.empty() && form_ != filled_; }

    /// A draft was dropped, because another rule was picked or the list changed; with its rule's code.
    Event<const std::string&> dropped;

  private:
    /// What the detail form shows, and of which rule.
    struct Form {
        std::string rule; ///< its index; empty for none
        RuleDetails::Texts texts;

        friend bool operator==(const Form&, const Form&) = default;
    };

    // RowList
    int Rows() const override { return rules_.gaRules.UBound() + 1; }
    int Columns() const override;
    std::string_view Text(int row, int column) const override;
    void ReplaceRows(int first, int count, const RowTexts& rows) override;

    // EditSteps
    StepPlace Here() const override;
    void Describe(Step& step) const override;
    void Take(Step step) override;
    void Show(const StepPlace& place) override;
    int RowOfTyping() const override { return HasDraft() ? std::stoi(form_.rule) - 1 : kNoRow; }
    void AddTyping(RowTexts& copy) const override;
    void MoveTyping(Step& step, int row) const override;

    void ConnectList();
    void ConnectDetails();
    Form ShownForm() const;
    void BeginFilling();
    void EndFilling();
    void NoteEdit(int column);
    void EndStoring();
    void ReplaceDraft(const RowTexts& rows);
    void ShowList();
    void ShowRule(int rule);
    void GiveFocus(int column);
    std::string NameOf(const RowChange& change) const;

    mRules& rules_;
    RuleDetails& details_;
    RulesControls& controls_;
    Form form_;        ///< what the form shows
    Form filled_;      ///< what it showed before the user changed it
    int editedColumn_; ///< the field that was edited last
    bool editing_ = false;
    bool dropping_ = false;
    std::string droppedCode_; ///< of the rule whose draft was dropped last
    bool storing_ = false;
    bool listChanged_ = false;  ///< by ReplaceRows, and not shown yet
    std::optional<Form> draft_; ///< set by ReplaceRows, and not shown yet
};

} // namespace zy
