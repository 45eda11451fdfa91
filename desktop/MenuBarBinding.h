#pragma once

#include <memory>
#include <string>
#include <vector>

#include "controls/Menu.h"
#include "desktop/ViewContext.h"

class wxFrame;
class wxMenu;
class wxMenuItem;

namespace zy {

/// A menu entry that a key chooses as well, such as "Ctrl+S". The key is shown beside the caption; another
/// one that does the same is not.
struct Shortcut {
    const MenuItem& entry;
    std::string key;
    std::string otherKey = {};
};

/// The menu bar and the context menus of a window.
class MenuBarBinding {
  public:
    MenuBarBinding(const ViewContext& context, wxFrame& frame, const std::vector<MenuItem*>& menus,
                   std::vector<Shortcut> shortcuts);
    ~MenuBarBinding();

    /// A menu that opens when its model asks for it: where the mouse is, or where a key wants it.
    void AddContextMenu(MenuItem& menu);

  private:
    wxMenu* MakeMenu(const MenuItem& menu);
    void AddEntry(wxMenu& menu, MenuItem& entry);
    wxString LabelOf(const MenuItem& entry) const;
    void AddOtherKey(wxMenuItem& item, const MenuItem& entry) const;
    const Shortcut* ShortcutOf(const MenuItem& entry) const;

    const ViewContext& context_;
    wxFrame& frame_;
    std::vector<Shortcut> shortcuts_;
    std::vector<Subscription> subscriptions_;
    std::vector<std::unique_ptr<wxMenu>> contextMenus_;
};

} // namespace zy
