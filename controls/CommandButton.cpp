#include "controls/CommandButton.h"

#include <utility>

namespace zy {

CommandButton::CommandButton(Container* parent, std::string name, std::string caption, char accessKey)
    : Control(parent, std::move(name), std::move(caption)), accessKey_(accessKey) {}

void CommandButton::Click() {
    if (TakeFocus()) {
        click.Raise();
    }
}

} // namespace zy
