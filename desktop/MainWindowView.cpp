#include "desktop/MainWindowView.h"

#include <wx/frame.h>

#include "desktop/Ending.h"
#include "desktop/Native.h"

namespace zy {
namespace {

std::vector<Shortcut> Shortcuts(const MainMenu& menu) {
    return {{menu.mnuSave, "Ctrl+S"},      {menu.mnuUndo, "Ctrl+Z"}, {menu.mnuRedo, "Ctrl+Y", "Ctrl+Shift+Z"},
            {menu.mnuCut, "Ctrl+X"},       {menu.mnuCopy, "Ctrl+C"}, {menu.mnuPaste, "Ctrl+V"},
            {menu.mnuSelectAll, "Ctrl+A"}, {menu.mnuContents, "F1"}};
}

} // namespace

MainWindowView::MainWindowView(Desktop& desktop, frmGlobalSettings& window)
    : desktop_(desktop), window_(window),
      appearanceChanged_(window.Form().appearanceChanged.Observe([this] { ShowOrHide(); })),
      unloaded_(window.unloaded.Observe([this] { desktop_.Close(); })),
      failing_(desktop.failing.Observe([this] { window_.ending.Raise(); })) {}

void MainWindowView::ShowOrHide() {
    if (window_.Form().Visible() && !binding_) {
        Open();
    } else if (binding_) {
        binding_->Frame().Show(window_.Form().Visible());
    }
}

void MainWindowView::Open() {
    desktop_.StartToolkit();
    LearnBorders();
    context_.emplace(ViewContext{
        .codePage = desktop_.TextCodePage(),
        .gate = desktop_.Gate(),
        .controls = controls_,
        .showRefusal = [this](std::string_view reason) { window_.Form().zyStatusBar.SetText(reason); },
        .scale = Scale(DotsPerInch()),
        .menuPlace = menuPlace_});
    binding_.emplace(*context_, window_.Form(), [this] { window_.Unload(); });
    auto& menu = window_.menu;
    menuBar_.emplace(*context_, binding_->Frame(), std::vector{&menu.mnuFile, &menu.mnuEdit, &menu.mnuHelp},
                     Shortcuts(menu));
    clipboard_.emplace(*context_, window_.Form(), menu, binding_->Frame());
    menuBar_->AddContextMenu(menu.mnuListPopMenu);
    menuBar_->AddContextMenu(menu.mnuGridPopMenu);
    menuBar_->AddContextMenu(menu.mnuSecuritypopMenu);
    desktop_.Window().Attach(binding_->Frame());
    ObserveEnding(binding_->Frame(), [this] { desktop_.Gate().Answer([this] { window_.ending.Raise(); }); });
    binding_->Frame().Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        desktop_.Gate().Answer([this] { window_.idle.Raise(); });
    });
    binding_->Frame().Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_F6 && !event.HasAnyModifiers()) {
            desktop_.Gate().Act([this] { window_.otherPart.Raise(); });
        } else {
            event.Skip();
        }
    });
    binding_->Frame().Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
        event.Skip();
        if (event.GetActive()) {
            desktop_.Gate().ActLater([this] {
                window_.activated.Raise();
                return true;
            });
        }
    });
    binding_->Open();
}

} // namespace zy
