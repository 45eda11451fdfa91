#include "rules/RuleSteps.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/Form.h"

namespace zy {
namespace {

constexpr int kDraftRow = 0;
/// In the draft's row, the column behind the fields.
constexpr int kDraftRule = kRuleColumns;
/// The place is the list, and none of the fields.
constexpr int kInList = -1;

/// The key of steps that edit a field.
constexpr std::string_view kEdit = "edit";

RunRule RuleOf(const RowTexts& rows, int row) {
    RunRule rule;
    for (std::size_t column = 0; column < kRuleTexts.size(); ++column) {
        rule.*kRuleTexts[column] = rows.Text(row, static_cast<int>(column));
    }
    return rule;
}

/// How the form calls a field.
std::string NameOf(const Control& field) {
    std::string name = FindLabelOf(field)->Caption();
    name.pop_back(); // the colon
    return name;
}

bool IsDraft(const RowChange& change, const RowTexts& rows) {
    return change.first == kDraftRow && rows.Rows() > 0 && !rows.Text(kDraftRow, kDraftRule).empty();
}

bool DropsDraft(const Step& step) {
    return std::any_of(step.changes.begin(), step.changes.end(), [](const RowChange& change) {
        return IsDraft(change, change.before) && !IsDraft(change, change.after);
    });
}

} // namespace

RuleSteps::RuleSteps(mRules& rules, RuleDetails& details, RulesControls& controls)
    : rules_(rules), details_(details), controls_(controls), editedColumn_(kInList) {
    ConnectList();
    ConnectDetails();
}

void RuleSteps::ConnectList() {
    auto& list = rules_.gaRules;
    list.deedBegun.Connect([this](std::string_view deed, bool repeats) {
        ToRecord().Begin(deed, repeats ? deed : std::string_view());
    });
    list.deedEnded.Connect([this] { ToRecord().End(); });
    list.changing.Connect(
        [this](int first, int removed, int added) { ToRecord().Changing(first, removed, added); });
    list.changed.Connect([this] { ToRecord().Changed(); });
}

void RuleSteps::ConnectDetails() {
    details_.filling.Connect([this] { BeginFilling(); });
    details_.filled.Connect([this] { EndFilling(); });
    details_.edited.Connect([this](int column) { NoteEdit(column); });
    details_.storing.Connect([this] {
        storing_ = true;
        ToRecord().Begin({});
    });
    details_.stored.Connect([this] { EndStoring(); });
    controls_.lstRulesList.Window().focusChanged.Connect([this] { Steps().Seal(); });
}

int RuleSteps::Columns() const {
    return static_cast<int>(kRuleTexts.size());
}

std::string_view RuleSteps::Text(int row, int column) const {
    const auto index = static_cast<std::size_t>(column);
    if (row != kDraftRow) {
        return rules_.gaRules(row).*kRuleTexts.at(index);
    }
    if (!HasDraft() || column > kDraftRule) {
        return {};
    }
    return column == kDraftRule ? form_.rule : form_.texts.at(index);
}

RuleSteps::Form RuleSteps::ShownForm() const {
    return {rules_.giCurRule == -1 ? "" : std::to_string(rules_.giCurRule), details_.Shown()};
}

void RuleSteps::BeginFilling() {
    dropping_ = HasDraft();
    if (dropping_) {
        droppedCode_ = filled_.texts[kCodeColumn];
        ToRecord().Changing(kDraftRow, 1, 1);
    }
}

void RuleSteps::EndFilling() {
    form_ = filled_ = ShownForm();
    if (std::exchange(dropping_, false)) {
        ToRecord().Changed();
    }
}

void RuleSteps::NoteEdit(int column) {
    editedColumn_ = column;
    editing_ = true;
    ToRecord().Begin("Edit " + zy::NameOf(details_.Field(column)), kEdit);
    ToRecord().Changing(kDraftRow, 1, 1);
    form_ = ShownForm();
    ToRecord().Changed();
    ToRecord().End();
    editing_ = false;
}

/// The draft is the rule's own texts now.
void RuleSteps::EndStoring() {
    ToRecord().Changing(kDraftRow, 1, 1);
    form_ = filled_ = ShownForm();
    ToRecord().Changed();
    ToRecord().End();
    storing_ = false;
}

StepPlace RuleSteps::Here() const {
    if (editing_) {
        return {rules_.giCurRule, editedColumn_};
    }
    int column = kRuleColumns - 1;
    while (column != kInList && !details_.Field(column).HasFocus()) {
        --column;
    }
    return {rules_.giCurRule, column};
}

void RuleSteps::Describe(Step& step) const {
    if (step.name.empty()) {
        step.name = NameOf(step.changes.front());
    }
    if (IsDraft(step.changes.front(), step.changes.front().before) && step.key.empty()) {
        step.before.column = editedColumn_;
    }
}

std::string RuleSteps::NameOf(const RowChange& change) const {
    if (change.first == kDraftRow) {
        return "Discard Changes of " + droppedCode_;
    }
    if (change.before.Rows() < change.after.Rows()) {
        return "Add Rule";
    }
    return change.before.Rows() > change.after.Rows()
               ? "Delete Rule " + std::string(change.before.Text(0, kCodeColumn))
               : "Edit Rules";
}

void RuleSteps::Take(Step step) {
    if (storing_) {
        step.name = "Edit Rules";
        Steps().RecordWithLast(std::move(step));
    } else {
        Describe(step);
        const auto& first = step.changes.front();
        const bool tells = step.key != kEdit && DropsDraft(step) && first.before.Rows() <= first.after.Rows();
        Steps().Record(std::move(step));
        if (tells) {
            dropped.Raise(droppedCode_);
        }
    }
    changed.Raise();
}

void RuleSteps::ReplaceRows(int first, int count, const RowTexts& rows) {
    int row = 0;
    if (first == kDraftRow && count > 0) {
        ReplaceDraft(rows);
        row = 1;
    }
    std::vector<RunRule> others;
    for (int other = row; other < rows.Rows(); ++other) {
        others.push_back(RuleOf(rows, other));
    }
    if (count > row || !others.empty()) {
        rules_.ReplaceRules(first + row, count - row, others);
        listChanged_ = true;
    }
}

void RuleSteps::AddTyping(RowTexts& copy) const {
    const auto rule = RuleInForm(controls_, rules_.gaRules(std::stoi(form_.rule)));
    for (const auto property : kRuleTexts) {
        copy.Add(rule.*property);
    }
}

void RuleSteps::MoveTyping(Step& step, int row) const {
    RowChange move{kDraftRow, CopyOf(*this, kDraftRow, 1), RowTexts(Columns())};
    for (int column = 0; column < Columns(); ++column) {
        const auto text =
            column == kDraftRule ? std::to_string(row + 1) : std::string(Text(kDraftRow, column));
        move.after.Add(row == kNoRow ? std::string() : text);
    }
    step.changes.push_back(std::move(move));
}

void RuleSteps::ReplaceDraft(const RowTexts& rows) {
    Form draft{std::string(rows.Text(kDraftRow, kDraftRule)), {}};
    for (int column = 0; column < kRuleColumns; ++column) {
        draft.texts.at(static_cast<std::size_t>(column)) = rows.Text(kDraftRow, column);
    }
    draft_ = std::move(draft);
}

void RuleSteps::Show(const StepPlace& place) {
    const auto draft = std::exchange(draft_, std::nullopt);
    if (!draft && !listChanged_ && HasDraft()) {
        GiveFocus(place.column); // showing the rule anew would drop what is typed
        return;
    }
    const bool isDraft = draft && !draft->rule.empty();
    ShowList();
    ShowRule(isDraft ? std::stoi(draft->rule)
                     : std::clamp(place.row, 1, std::max(1, rules_.gaRules.UBound())));
    if (isDraft) {
        details_.ShowTexts(draft->texts);
        form_ = ShownForm();
    }
    GiveFocus(place.column);
}

void RuleSteps::ShowList() {
    if (std::exchange(listChanged_, false)) {
        controls_.lstRulesList.Refill(rules_.gaRules.UBound());
        controls_.EnableForARule(rules_.gaRules.UBound() > 0);
    }
}

void RuleSteps::ShowRule(int rule) {
    if (rules_.gaRules.UBound() == 0) {
        details_.ClearRule();
        return;
    }
    controls_.lstRulesList.Select(rule);
    controls_.lstRulesList.Reveal();
    details_.EditRule(std::to_string(rule));
}

void RuleSteps::GiveFocus(int column) {
    Control& field = column == kInList ? controls_.lstRulesList : details_.Field(column);
    field.SetFocus();
    if (auto* box = dynamic_cast<TextBox*>(&field)) {
        box->Select(box->Text().size(), 0);
    }
}

} // namespace zy
