#include "platform/windows/WindowsWorld.h"

namespace zy {

World WindowsWorld::Get(const ScreenWorld& screen) {
    return WorldOf(*this, screen);
}

} // namespace zy
