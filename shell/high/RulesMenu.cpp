#include "shell/RulesMenu.h"

#include "rules/RulesSheet.h"
#include "rules/SvgText.h"
#include "shell/WholeFile.h"
#include "shell/frmStandardRules.h"

namespace zy {

RulesMenu::RulesMenu(MainMenu& menu, const mRules& rules, RulesPage& page, const World& world,
                     TraceChannel& trace)
    : rules_(rules), page_(page), world_(world), trace_(trace) {
    for (auto* entry : {&menu.mnuStandardRules, &menu.mnuStandardRulesOfList}) {
        entry->click.Connect([this] { mnuStandardRules_Click(); });
    }
    for (auto* entry : {&menu.mnuSavePictures, &menu.mnuSavePicturesOfList}) {
        entry->click.Connect([this] { mnuSavePictures_Click(); });
    }
    page.controls.lstRulesList.menuAsked.Connect([&menu] { menu.mnuListPopMenu.PopUp(); });
}

void RulesMenu::mnuStandardRules_Click() {
    trace_.DebugTrace(kMainForm, "mnuStandardRules_Click", "Start");
    frmStandardRules dialog(rules_.gaRules, world_.codePage);
    dialog.SetVisible(true);
    world_.dialogs.ShowForm(dialog);
    page_.listMode.AppendRules("Insert Standard Rules", dialog.Chosen());
}

void RulesMenu::mnuSavePictures_Click() {
    trace_.DebugTrace(kMainForm, "mnuSavePictures_Click", "Start");
    const auto path = world_.dialogs.AskFileToWrite("Save Pictures", "Rules.svg", "svg");
    if (!path) {
        return;
    }
    const auto sheet = SheetOf(rules_.gaRules, world_.system.DecimalSeparator(), SvgLettering());
    const auto text = SvgOf(sheet.drawing, sheet.size, "Rules", world_.codePage);
    page_.status.ShowCountAnd(WriteWholeFile(world_.files, *path, text));
}

} // namespace zy
