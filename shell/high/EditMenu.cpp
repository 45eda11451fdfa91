#include "shell/EditMenu.h"

#include <string>

namespace zy {
namespace {

/// A text in a menu's caption, where "&" is a sign of its own and TAB ends the text.
std::string InCaption(std::string_view text) {
    std::string shown;
    for (const char character : text) {
        shown.append(character == '&' ? 2U : 1U, character == '\t' ? ' ' : character);
    }
    return shown;
}

void ShowStep(MenuItem& entry, const std::string& verb, bool can, const std::string& name) {
    entry.SetCaption(can ? verb + " " + InCaption(name) : verb);
    entry.SetEnabled(can);
}

} // namespace

EditMenu::EditMenu(frmGlobalSettings& window, const std::vector<Editor*>& editors,
                   std::optional<ListSession>& list, TraceChannel& trace)
    : window_(window), trace_(trace), list_(list) {
    window_.menu.mnuUndo.click.Connect([this] { mnuUndo_Click(); });
    window_.menu.mnuRedo.click.Connect([this] { mnuRedo_Click(); });
    window_.menu.mnuChanges.click.Connect([this] { mnuChanges_Click(); });
    window_.menu.mnuOthers.click.Connect([this] { mnuOthers_Click(); });
    window_.menu.mnuVersions.click.Connect([this] { mnuVersions_Click(); });
    for (auto* editor : editors) {
        editor->Steps().changed.Connect([this] { Show(); });
    }
    Show();
}

void EditMenu::Trace(std::string_view procedure) {
    trace_.DebugTrace(kMainForm, procedure, "Start");
}

void EditMenu::mnuUndo_Click() {
    Trace("mnuUndo_Click");
    if (Editor* editor = window_.EditorInCharge()) {
        editor->Steps().Undo();
    }
}

void EditMenu::mnuRedo_Click() {
    Trace("mnuRedo_Click");
    if (Editor* editor = window_.EditorInCharge()) {
        editor->Steps().Redo();
    }
}

void EditMenu::ShowOfList(std::string_view procedure, void (ListSession::*show)()) {
    Trace(procedure);
    if (list_) {
        window_.EditorInCharge()->CommitOpenCell();
        (*list_.*show)();
    }
}

void EditMenu::Show() {
    Editor* editor = window_.EditorInCharge();
    const EditSteps* steps = editor == nullptr ? nullptr : &editor->Steps();
    ShowStep(window_.menu.mnuUndo, "&Undo", steps != nullptr && steps->CanUndo(),
             steps == nullptr ? "" : steps->UndoName());
    ShowStep(window_.menu.mnuRedo, "&Redo", steps != nullptr && steps->CanRedo(),
             steps == nullptr ? "" : steps->RedoName());
}

} // namespace zy
