#include "rules/RulesPage.h"

#include <algorithm>

#include "rules/RulesLayout.h"

namespace zy {
namespace {

std::string_view CellOf(const RunRule& rule, int column) {
    return rule.*PropertyIn(column);
}

} // namespace

RulesPage::RulesPage(mRules& rules, RuleChecks& ruleChecks, SettingsForm& form, SharedState& state,
                     TraceChannel& trace, SystemInfo& system, Dialogs& dialogs, const CodePage& codePage)
    : controls(form.fraRules, [&rules](int item, int column) { return CellOf(rules.gaRules(item), column); }),
      status(rules, controls, form), detailChecks(rules, ruleChecks, controls, trace),
      details(rules, detailChecks, controls, status, form, state, trace, codePage),
      listMode(rules, details, controls, status, form, state, trace, dialogs),
      gridMode(rules, ruleChecks, controls, status, form, state, trace),
      pictures(rules, details, controls, system), rules_(rules), form_(form), trace_(trace),
      steps_(rules, details, controls), records_(codePage) {
    controls.cmdSaveRules.click.Connect([this] { cmdSaveRules_Click(); });
    steps_.moved.Connect([this](bool isSaved, const std::string& report) { ShowMoved(isSaved, report); });
    steps_.dropped.Connect([this](const std::string& code) {
        status.ShowCountAnd("Changes of " + code + " dropped; Edit > Undo brings them back");
    });
}

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
    trace_.DebugTrace(kMainForm, "StoreBeforeTabSwitch", "Start");
    return controls.fraGridMode.Visible() ? gridMode.StoreIfChanged() : details.StoreShownRule();
}

void RulesPage::Show() {
    ShowListMode();
    for (auto* entry : {&form_.menu.mnuStandardRules, &form_.menu.mnuSavePictures, &form_.menu.mnuPrint}) {
        entry->SetEnabled(true);
    }
    steps_.Stop();
    listMode.LoadRulesListMode();
    steps_.Start();
}

void RulesPage::ShowMoved(bool isSaved, const std::string& report) {
    form_.ChangeFlag = !isSaved;
    if (controls.fraGridMode.Visible()) {
        gridMode.Fill();
    }
    status.ShowCountAnd(report);
}

void RulesPage::cmdSaveRules_Click() {
    trace_.DebugTrace(kMainForm, "cmdSaveRules_Click", "Start");
    if (form_.ChangeFlag && Write()) {
        form_.ChangeFlag = false;
        status.ShowAgain();
    }
}

void RulesPage::Save() {
    auto& changeFlag = form_.ChangeFlag;
    if (changeFlag && details.StoreShownRule()) {
        changeFlag = !Write();
    }
}

bool RulesPage::Write() {
    if (!steps_.MayBeSaved()) {
        return false;
    }
    steps_.BeginSave();
    const bool written = rules_.Write_Rules_File();
    const auto end = written ? EndOfSave() : SaveEnd::Refused;
    steps_.EndSave(end);
    if (written) {
        steps_.MarkSaved(end == SaveEnd::Whole);
    }
    return written;
}

/// What the form alone holds is not in the file, and stays to be saved.
SaveEnd RulesPage::EndOfSave() const {
    return rules_.LastSaveFailed() ? SaveEnd::Failed
           : steps_.HasDraft()     ? SaveEnd::ListAlone
                                   : SaveEnd::Whole;
}

bool RulesPage::SaveAtClosing() {
    // Unlike the other two editors this one checks nothing here: whoever closes gets the list as it is held.
    return Write();
}

Size RulesPage::LeastInnerSize() {
    const Size page = LeastRulesPage(controls);
    return {page.width, page.height + form_.zyStatusBar.Preferred().height};
}

void RulesPage::ResizeRuleTab() {
    const auto& inner = form_.InnerSize();
    const int height = std::max(inner.height - form_.zyStatusBar.Preferred().height, 0);
    form_.fraRules.SetBounds({0, 0, inner.width, height});
    LayOutRuleFrames(controls, {inner.width, height});
    ResizeRuleList();
    ResizeRuleDetails();
}

void RulesPage::ResizeRuleList() {
    LayOutRuleList(controls);
}

void RulesPage::ResizeRuleDetails() {
    LayOutRuleDetails(controls);
}

} // namespace zy
