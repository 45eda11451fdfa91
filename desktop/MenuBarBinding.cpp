#include "desktop/MenuBarBinding.h"

#include <wx/accel.h>
#include <wx/app.h>
#include <wx/frame.h>
#include <wx/menu.h>

#include <algorithm>
#include <utility>

#include "desktop/Native.h"
#include "desktop/ShownText.h"

namespace zy {

MenuBarBinding::MenuBarBinding(const ViewContext& context, wxFrame& frame,
                               const std::vector<MenuItem*>& menus, std::vector<Shortcut> shortcuts)
    : context_(context), frame_(frame), shortcuts_(std::move(shortcuts)) {
    auto* bar = new wxMenuBar;
    for (const auto* menu : menus) {
        bar->Append(MakeMenu(*menu), LabelOf(*menu));
    }
    frame_.SetMenuBar(bar);
}

MenuBarBinding::~MenuBarBinding() = default;

void MenuBarBinding::AddContextMenu(MenuItem& menu) {
    contextMenus_.emplace_back(MakeMenu(menu));
    subscriptions_.push_back(menu.popUp.Observe([this, made = contextMenus_.back().get()] {
        const auto& asked = context_.menuPlace;
        const wxPoint place = asked ? frame_.ScreenToClient(*asked) : wxDefaultPosition;
        // Behind the handler that asks for it, for what is chosen is an action of its own.
        RunBehindEvent(frame_, [this, made, place] {
            // The end of the click that asks for the menu would close it.
            wxTheApp->Yield(true);
            frame_.PopupMenu(made, place);
        });
    }));
}

wxMenu* MenuBarBinding::MakeMenu(const MenuItem& menu) {
    auto* made = new wxMenu;
    for (auto* entry : menu.Entries()) {
        AddEntry(*made, *entry);
    }
    return made;
}

void MenuBarBinding::AddEntry(wxMenu& menu, MenuItem& entry) {
    if (entry.IsSeparator()) {
        menu.AppendSeparator();
        return;
    }
    wxMenu* submenu = entry.Entries().empty() ? nullptr : MakeMenu(entry);
    auto* item = menu.Append(new wxMenuItem(&menu, wxID_ANY, LabelOf(entry), "", wxITEM_NORMAL, submenu));
    AddOtherKey(*item, entry);
    item->Enable(entry.Enabled());
    subscriptions_.push_back(
        entry.captionChanged.Observe([this, item, &entry] { item->SetItemLabel(LabelOf(entry)); }));
    subscriptions_.push_back(entry.enabledChanged.Observe([item, &entry] { item->Enable(entry.Enabled()); }));
    frame_.Bind(
        wxEVT_MENU, [this, &entry](wxCommandEvent&) { context_.gate.Act([&] { entry.Click(); }); },
        item->GetId());
}

wxString MenuBarBinding::LabelOf(const MenuItem& entry) const {
    wxString label = ToShown(context_.codePage, entry.Caption());
    if (const auto* shortcut = ShortcutOf(entry)) {
        label << "\t" << shortcut->key;
    }
    return label;
}

void MenuBarBinding::AddOtherKey(wxMenuItem& item, const MenuItem& entry) const {
    const auto* shortcut = ShortcutOf(entry);
    wxAcceleratorEntry other;
    if (shortcut != nullptr && !shortcut->otherKey.empty() && other.FromString(shortcut->otherKey)) {
        item.AddExtraAccel(other);
        item.SetItemLabel(LabelOf(entry)); // where one table holds the keys, that makes it anew
    }
}

const Shortcut* MenuBarBinding::ShortcutOf(const MenuItem& entry) const {
    const auto found = std::find_if(shortcuts_.begin(), shortcuts_.end(),
                                    [&](const Shortcut& shortcut) { return &shortcut.entry == &entry; });
    return found == shortcuts_.end() ? nullptr : &*found;
}

} // namespace zy
