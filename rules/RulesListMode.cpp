#include "rules/RulesListMode.h"

#include <string>

#include "shell/StatusTexts.h"

namespace zy {

RulesListMode::RulesListMode(mRules& rules, RuleDetails& details, RulesControls& controls,
                             RulesStatus& status, SettingsForm& form, SharedState& state, TraceChannel& trace,
                             Dialogs& dialogs)
    : rules_(rules), details_(details), controls_(controls), list_(controls.lstRulesList), status_(status),
      form_(form), state_(state), trace_(trace), dialogs_(dialogs) {
    Connect();
}

void RulesListMode::Connect() {
    controls_.cmdAddList.click.Connect([this] { cmdAddList_Click(); });
    controls_.cmdDeleteList.click.Connect([this] { cmdDeleteList_Click(); });
    controls_.cmdUpDown.upClick.Connect([this] { cmdUpDown_UpClick(); });
    controls_.cmdUpDown.downClick.Connect([this] { cmdUpDown_DownClick(); });
    list_.itemClick.Connect([this](int item) { lstRulesList_ItemClick(item); });
    list_.keyDown.Connect([this](const KeyPress& press) { lstRulesList_KeyDown(press); });
}

void RulesListMode::LoadRulesListMode() {
    trace_.DebugTrace(kRulesModule, "LoadRulesListMode", "Start");
    const int count = rules_.gaRules.UBound();
    list_.Refill(count);
    rules_.giCurRule = -1;
    controls_.EnableForARule(count > 0);
    if (count == 0) {
        details_.ClearRule();
    } else {
        SelectAndEdit(1);
    }
}

void RulesListMode::SelectAndEdit(int item) {
    list_.Select(item);
    details_.EditRule(std::to_string(item));
}

void RulesListMode::Move_Rule_Up(int item) {
    trace_.DebugTrace(kRulesModule, "Move_Rule_Up", "Start");
    if (item != 1) {
        Swap(item, item - 1);
    }
}

void RulesListMode::Move_Rule_Down(int item) {
    trace_.DebugTrace(kRulesModule, "Move_Rule_Down", "Start");
    if (item != rules_.gaRules.UBound()) {
        Swap(item, item + 1);
    }
}

void RulesListMode::Swap(int item, int neighbour) {
    rules_.gaRules.Together(
        "Move Rule " + rules_.gaRules(item).Code,
        [&] {
            rules_.gaRules.Swap(neighbour, item);
            form_.ChangeFlag = true;
            state_.gbChanged = true;
            LoadRulesListMode();
            SelectAndEdit(neighbour);
        },
        true);
}

void RulesListMode::cmdAddList_Click() {
    trace_.DebugTrace(kMainForm, "cmdAddList_Click", "Start");
    if (rules_.gaRules.IsFull()) {
        status_.ShowCountAnd(kListFull);
        return;
    }
    rules_.gaRules.Together("Add Rule", [this] { AddRule(); });
}

void RulesListMode::AddRule() {
    rules_.Add_New_Rule();
    form_.ChangeFlag = true;
    LoadRulesListMode();
    SelectAndEdit(list_.Count());
    SelectAllText(controls_.txtCode); // what is typed next is the rule's own name
}

void RulesListMode::AppendRules(const std::string& step, const std::vector<RunRule>& rules) {
    const int before = rules_.gaRules.UBound();
    if (rules.empty()) {
        return;
    }
    if (rules.size() > static_cast<std::size_t>(kMaxItems - before)) {
        status_.ShowCountAnd(kListFull);
        return;
    }
    rules_.gaRules.Together(step, [&] {
        rules_.ReplaceRules(before + 1, 0, rules);
        form_.ChangeFlag = true;
        LoadRulesListMode();
        SelectAndEdit(before + 1);
        list_.Reveal();
        status_.ShowCountAnd(Counted(rules.size(), "rule") + " inserted");
    });
}

void RulesListMode::cmdDeleteList_Click() {
    trace_.DebugTrace(kMainForm, "cmdDeleteList_Click", "Start");
    if (list_.Selected() == 0) {
        return;
    }
    if (dialogs_.AskYesNo("Are you Sure you want to Delete this Rule", "Confirm Delete", Escape::AnswersNo)) {
        rules_.gaRules.Together("Delete Rule " + rules_.gaRules(list_.Selected()).Code,
                                [this] { DeleteSelected(); });
    }
    // After No as well, which whoever reads the traces is used to.
    trace_.DebugTrace(kMainForm, "cmdDeleteList_Click", "Rule Deleted");
}

void RulesListMode::DeleteSelected() {
    const int item = list_.Selected();
    rules_.Delete_Rule(item);
    form_.ChangeFlag = true;
    list_.RemoveSelected();
    if (list_.Count() == 0) {
        list_.Select(0);
        details_.ClearRule();
    } else {
        SelectAndEdit(item == 1 ? 1 : item - 1);
    }
}

void RulesListMode::cmdUpDown_UpClick() {
    trace_.DebugTrace(kMainForm, "cmdUpDown_UpClick", "Start");
    if (list_.Selected() != 0) {
        Move_Rule_Up(list_.Selected());
    }
}

void RulesListMode::cmdUpDown_DownClick() {
    trace_.DebugTrace(kMainForm, "cmdUpDown_DownClick", "Start");
    if (list_.Selected() != 0) {
        Move_Rule_Down(list_.Selected());
    }
}

void RulesListMode::lstRulesList_ItemClick(int item) {
    trace_.DebugTrace(kMainForm, "lstRulesList_ItemClick", "Start");
    details_.EditRule(std::to_string(item));
}

void RulesListMode::lstRulesList_KeyDown(const KeyPress& press) {
    trace_.DebugTrace(kMainForm, "lstRulesList_KeyDown", "Start");
    const bool plain = !press.ctrl && !press.alt && !press.shift;
    const bool altAlone = press.alt && !press.ctrl && !press.shift;
    if (plain && press.key == Key::Delete && controls_.cmdDeleteList.IsUsable()) {
        cmdDeleteList_Click();
    } else if (altAlone && press.key == Key::Up && controls_.cmdUpDown.IsUsable()) {
        cmdUpDown_UpClick();
    } else if (altAlone && press.key == Key::Down && controls_.cmdUpDown.IsUsable()) {
        cmdUpDown_DownClick();
    }
}

} // namespace zy
