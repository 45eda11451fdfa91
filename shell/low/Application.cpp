#include "shell/Application.h"

namespace zy {

Application ThisApplication() {
    return {.title = std::string(kApplicationTitle),
            .majorVersion = ZY_VERSION_MAJOR,
            .minorVersion = ZY_VERSION_MINOR,
            .revision = ZY_VERSION_PATCH};
}

} // namespace zy
