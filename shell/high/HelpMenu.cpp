#include "shell/HelpMenu.h"

#include <string>

#include "shell/Application.h"
#include "shell/Maker.h"
#include "shell/frmAbout.h"

namespace zy {

HelpMenu::HelpMenu(MainMenu& menu, TraceChannel& trace, SystemInfo& system, Dialogs& dialogs,
                   HelpSystem& help, ShellLinks& links)
    : trace_(trace), system_(system), dialogs_(dialogs), help_(help), links_(links) {
    menu.mnuContents.click.Connect([this] { mnuContents_Click(); });
    menu.mnuIndex.click.Connect([this] { mnuIndex_Click(); });
    menu.mnuWebProducts.click.Connect([this] { mnuWebProducts_Click(); });
    menu.mnuWebAcademy.click.Connect([this] { mnuWebAcademy_Click(); });
    menu.mnuWebMentorDesk.click.Connect([this] { mnuWebMentorDesk_Click(); });
    menu.mnuWebHome.click.Connect([this] { mnuWebHome_Click(); });
    menu.mnuAbout.click.Connect([this] { mnuAbout_Click(); });
}

void HelpMenu::ConnectButton(CommandButton& button) {
    button.click.Connect([this, &button] {
        Start(button.Name() + "_Click");
        ShowHelp(HelpCommand::Contents);
    });
}

void HelpMenu::Start(std::string_view procedure) {
    trace_.DebugTrace(kMainForm, procedure, "Start");
}

void HelpMenu::ShowHelp(HelpCommand command) {
    constexpr std::uintptr_t kNoData = 0; // no topic, and no keyword
    help_.Show(system_.ExecutableFolder() + "\\zysetup.hlp", command, kNoData);
}

void HelpMenu::mnuContents_Click() {
    Start("mnuContents_Click");
    ShowHelp(HelpCommand::Contents);
}

void HelpMenu::mnuIndex_Click() {
    Start("mnuIndex_Click");
    ShowHelp(HelpCommand::Key);
}

void HelpMenu::OpenPage(std::string_view path) {
    constexpr int kShowNormal = 1;
    // Where no browser starts, nothing is said: it is the desktop's to say so.
    static_cast<void>(links_.Open({.owner = LinkOwner::DesktopWindow,
                                   .verb = "Open",
                                   .target = std::string(kMakerWebSite) + std::string(path),
                                   .showCommand = kShowNormal}));
}

void HelpMenu::mnuWebProducts_Click() {
    Start("mnuWebProducts_Click");
    OpenPage("/software.htm");
}

void HelpMenu::mnuWebAcademy_Click() {
    Start("mnuWebAcademy_Click");
    OpenPage("/academy.htm");
}

void HelpMenu::mnuWebMentorDesk_Click() {
    Start("mnuWebMentorDesk_Click");
    OpenPage("/mentordesk.htm");
}

void HelpMenu::mnuWebHome_Click() {
    Start("mnuWebHome_Click");
    OpenPage("/");
}

void HelpMenu::mnuAbout_Click() {
    Start("mnuAbout_Click");
    frmAbout about(ThisApplication(), trace_, links_);
    about.Form_Load();
    about.SetVisible(true);
    dialogs_.ShowForm(about);
}

} // namespace zy
