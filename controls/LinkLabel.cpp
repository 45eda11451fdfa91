#include "controls/LinkLabel.h"

namespace zy {

void LinkLabel::Click() {
    if (TakeFocus()) {
        click.Raise();
    }
}

} // namespace zy
