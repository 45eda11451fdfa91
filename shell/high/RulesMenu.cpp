#include "shell/RulesMenu.h"

#include "shell/frmStandardRules.h"

namespace zy {

RulesMenu::RulesMenu(MainMenu& menu, const mRules& rules, RulesPage& page, Dialogs& dialogs,
                     TraceChannel& trace, const CodePage& codePage)
    : rules_(rules), page_(page), dialogs_(dialogs), trace_(trace), codePage_(codePage) {
    for (auto* entry : {&menu.mnuStandardRules, &menu.mnuStandardRulesOfList}) {
        entry->click.Connect([this] { mnuStandardRules_Click(); });
    }
    page.controls.lstRulesList.menuAsked.Connect([&menu] { menu.mnuListPopMenu.PopUp(); });
}

void RulesMenu::mnuStandardRules_Click() {
    trace_.DebugTrace(kMainForm, "mnuStandardRules_Click", "Start");
    frmStandardRules dialog(rules_.gaRules, codePage_);
    dialog.SetVisible(true);
    dialogs_.ShowForm(dialog);
    page_.listMode.AppendRules("Insert Standard Rules", dialog.Chosen());
}

} // namespace zy
