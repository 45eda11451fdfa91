#include "controls/Menu.h"

#include <utility>

namespace zy {

MenuItem::MenuItem(std::string name, std::string caption)
    : name_(std::move(name)), caption_(std::move(caption)) {}

MenuItem::MenuItem(MenuItem& menu, std::string name, std::string caption)
    : MenuItem(std::move(name), std::move(caption)) {
    menu.entries_.push_back(this);
}

void MenuItem::SetEnabled(bool enabled) {
    if (enabled_ != enabled) {
        enabled_ = enabled;
        enabledChanged.Raise();
    }
}

void MenuItem::SetCaption(const std::string& caption) {
    if (caption_ != caption) {
        caption_ = caption;
        captionChanged.Raise();
    }
}

void MenuItem::Click() {
    if (enabled_) {
        click.Raise();
    }
}

} // namespace zy
