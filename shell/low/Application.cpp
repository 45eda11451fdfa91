#include "shell/Application.h"

namespace zy {

Application ThisApplication() {
    return {.title = std::string(kApplicationTitle),
            .majorVersion = ZY_VERSION_MAJOR,
            .minorVersion = ZY_VERSION_MINOR,
            .revision = ZY_VERSION_PATCH};
}

std::string VersionOf(const Application& application) {
    return std::to_string(application.majorVersion) + "." + std::to_string(application.minorVersion) + "." +
           std::to_string(application.revision);
}

} // namespace zy
