#include "rules/RulesGridMode.h"

#include <string>
#include <utility>
#include <vector>

#include "shell/StatusTexts.h"

namespace zy {
namespace {

/// A row of the grid: what a function gives for each field, joined by TAB.
template <typename TextOf>
std::string GridRow(TextOf textOf) {
    std::string row;
    for (const auto& field : kRuleFields) {
        row.append(textOf(field)).append("\t");
    }
    row.pop_back();
    return row;
}

} // namespace

RulesGridMode::RulesGridMode(mRules& rules, RuleChecks& checks, RulesControls& controls, RulesStatus& status,
                             SettingsForm& form, SharedState& state, TraceChannel& trace)
    : rules_(rules), checks_(checks), grid_(controls.grdRules), status_(status), form_(form), state_(state),
      trace_(trace) {
    Connect();
}

void RulesGridMode::Connect() {
    form_.menu.mnuAddRule.click.Connect([this] { mnuAddRule_Click(); });
    form_.menu.mnuDeleteRule.click.Connect([this] { mnuDeleteRule_Click(); });
    grid_.mouseDown.Connect([this](MouseButton button, int, int) { grdRules_MouseDown(button); });
    grid_.editor.afterEdit.Connect([this](int, int) { grdRules_AfterEdit(); });
    grid_.cells.cellChanged.Connect([this](int, int) { rules_.gbGridChanged = true; });
    grid_.block.pasted.Connect([this](const PasteReport& paste) { ShowPaste(paste); });
}

void RulesGridMode::Fill() {
    grid_.editor.Cancel();
    grid_.cells.SetRedraw(false);
    grid_.cells.SetRows(0);
    grid_.cells.AddItem(GridRow([](const RuleField& field) { return field.gridHeader; }));
    AddRows();
    grid_.cells.SetRedraw(true);
}

/// Hands the fields over one by one, and not joined by TAB, for a file may hold a TAB within a field.
void RulesGridMode::AddRows() {
    const auto& rules = rules_.gaRules;
    std::string text;
    for (int i = 1; i <= rules.UBound(); ++i) {
        for (const auto& field : kRuleFields) {
            text += rules(i).*field.property;
        }
    }
    grid_.cells.AddRowsOf(Share(std::move(text)), [&](std::string_view all, TextParts& cells) {
        for (int i = 1; i <= rules.UBound(); ++i) {
            for (const auto& field : kRuleFields) {
                const auto length = (rules(i).*field.property).size();
                cells.Append(all.substr(0, length));
                all.remove_prefix(length);
            }
        }
    });
}

void RulesGridMode::AddtoGrid() {
    trace_.DebugTrace(kRulesModule, "AddtoGrid", "Start");
    const RunRule& newest = rules_.gaRules(rules_.gaRules.UBound());
    grid_.cells.AddItem(
        GridRow([&newest](const RuleField& field) { return std::string_view(newest.*field.property); }));
    SelectRow(grid_.cells.Rows() - 1);
}

void RulesGridMode::SelectRow(int row) {
    grid_.selection.Select(row, 0);
    grid_.selection.SelectTo(row, kDescriptionColumn);
}

void RulesGridMode::Save_RulesGrid() {
    trace_.DebugTrace(kRulesModule, "Save_RulesGrid", "Start");
    bool changed = false;
    rules_.gaRules.Together("Edit Rules", [&] {
        for (int row = 1; row < grid_.cells.Rows(); ++row) {
            changed = StoreRow(row) || changed;
        }
    });
    if (changed) {
        state_.gbChanged = true;
        form_.ChangeFlag = true; // without it no save would write what was stored
    }
}

/// True when the rule is another one now.
bool RulesGridMode::StoreRow(int row) {
    RunRule rule = rules_.gaRules(row);
    for (int column = 0; column < kRuleColumns; ++column) {
        rule.*PropertyIn(column) = grid_.cells.Text(row, column);
    }
    const bool changed = rule != rules_.gaRules(row);
    if (changed) {
        rules_.gaRules.Set(row, rule);
    }
    return changed;
}

bool RulesGridMode::StoreIfChanged() {
    grid_.editor.Commit();
    if (!rules_.gbGridChanged) {
        return true;
    }
    const bool valid = checks_.Validate_RulesGRid(grid_);
    if (valid) {
        Save_RulesGrid();
    }
    return valid;
}

void RulesGridMode::mnuAddRule_Click() {
    trace_.DebugTrace(kMainForm, "mnuAddRule_Click", "Start");
    if (rules_.gaRules.IsFull()) {
        status_.ShowCountAnd(kListFull);
        return;
    }
    rules_.Add_New_Rule();
    AddtoGrid();
    MarkChanged();
}

void RulesGridMode::mnuDeleteRule_Click() {
    trace_.DebugTrace(kMainForm, "mnuDeleteRule_Click", "Start");
    const int row = grid_.selection.Row();
    if (row < 1) {
        return;
    }
    rules_.Delete_Rule(row);
    grid_.cells.RemoveItem(row);
    KeepRuleInHand(row);
    MarkChanged();
}

/// The detail form goes on to show the rule that it shows, unless that one is gone.
void RulesGridMode::KeepRuleInHand(int deleted) {
    if (rules_.giCurRule == deleted) {
        rules_.giCurRule = -1;
    } else if (rules_.giCurRule > deleted) {
        --rules_.giCurRule;
    }
}

void RulesGridMode::MarkChanged() {
    form_.ChangeFlag = true;
    status_.ShowCount();
}

void RulesGridMode::ShowPaste(const PasteReport& paste) {
    status_.ShowCountAnd(DescribeLeftOut(paste, grid_.cells));
}

void RulesGridMode::grdRules_MouseDown(MouseButton button) {
    trace_.DebugTrace(kMainForm, "grdRules_MouseDown", "Start");
    if (button != MouseButton::Right) {
        return;
    }
    const bool hasCurrent = grid_.selection.Row() != -1;
    if (hasCurrent) {
        SelectRow(grid_.selection.Row());
    }
    form_.menu.mnuDeleteRule.SetEnabled(hasCurrent);
    form_.menu.mnuGridPopMenu.PopUp();
}

void RulesGridMode::grdRules_AfterEdit() {
    trace_.DebugTrace(kMainForm, "grdRules_AfterEdit", "Start");
    grid_.columns.Fit(0);
}

} // namespace zy
