#pragma once

#include <string>
#include <vector>

#include "controls/Event.h"

namespace zy {

/// An entry of a menu, or a menu with its entries. In a caption, "&" stands before the access key.
class MenuItem {
  public:
    /// A menu of its own: one of the menu bar, or a context menu.
    MenuItem(std::string name, std::string caption);
    /// An entry of `menu`; with entries of its own it is a submenu.
    MenuItem(MenuItem& menu, std::string name, std::string caption);
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    const std::vector<MenuItem*>& Entries() const { return entries_; }
    bool IsSeparator() const { return caption_ == kSeparator; }

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);

    /// The user chooses the entry; a disabled one does nothing.
    void Click();

    /// Opens a context menu where the mouse is, or at the control whose key asks for it.
    void PopUp() { popUp.Raise(); }

    Event<> click;
    Event<> enabledChanged;
    Event<> captionChanged;
    Event<> popUp;

    /// The caption that makes an entry a separator.
    static constexpr const char* kSeparator = "-";

  private:
    std::string name_;
    std::string caption_;
    std::vector<MenuItem*> entries_;
    bool enabled_ = true;
};

} // namespace zy
