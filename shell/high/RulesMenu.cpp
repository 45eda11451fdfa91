#include "shell/RulesMenu.h"

#include "basics/Text.h"
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
    for (auto* entry : {&menu.mnuPrint, &menu.mnuPrintOfList}) {
        entry->click.Connect([this] { mnuPrint_Click(); });
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
    const auto path = world_.dialogs.AskFileToWrite("Save Pictures", "Rules.svg", {"svg", "png"});
    if (!path) {
        return;
    }
    const auto pictures = PicturesFor(*path);
    page_.status.ShowCountAnd(pictures ? WriteWholeFile(world_.files, *path, *pictures)
                                       : "Not saved, so many rules are too many for a PNG file");
}

std::optional<std::string> RulesMenu::PicturesFor(const std::string& path) {
    const auto makeSheet = [this](const Lettering& letters) {
        return SheetOf(rules_.gaRules, world_.system.DecimalSeparator(), letters);
    };
    constexpr std::size_t kEnding = 4;
    if (path.size() >= kEnding && IsSameName(std::string_view(path).substr(path.size() - kEnding), ".png")) {
        return world_.paper.PngOf(makeSheet);
    }
    const auto sheet = makeSheet(SvgLettering());
    return SvgOf(sheet.drawing, sheet.size, "Rules", world_.codePage);
}

void RulesMenu::mnuPrint_Click() {
    trace_.DebugTrace(kMainForm, "mnuPrint_Click", "Start");
    const std::string heading = "Rules, " + world_.system.TimeText(world_.system.Now());
    const auto makePages = [this, &heading](const Size& page, const Lettering& letters) {
        return PagesOf(rules_.gaRules, world_.system.DecimalSeparator(), letters, page, heading);
    };
    switch (world_.paper.Print("Rules", makePages)) {
    case Printed::Yes:
        page_.status.ShowCountAnd("Printed");
        break;
    case Printed::Failed:
        page_.status.ShowCountAnd("Not printed, the printer or the file could not be written to");
        break;
    case Printed::Cancelled:
        break;
    }
}

} // namespace zy
