#include "platform/posix/PosixShellLinks.h"

#include <array>
#include <string>

#include "platform/posix/GlibPointer.h"

namespace zy {
namespace {

bool OpenByCommand(std::string link) {
    std::string command = "xdg-open";
    std::array<gchar*, 3> arguments{command.data(), link.data(), nullptr};
    const auto flags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL |
                                                G_SPAWN_STDERR_TO_DEV_NULL);
    return g_spawn_async(nullptr, arguments.data(), nullptr, flags, nullptr, nullptr, nullptr, nullptr) != 0;
}

} // namespace

bool PosixShellLinks::Open(const LinkRequest& request) {
    const auto link = codePage_.ToUtf8(request.target);
    return g_app_info_launch_default_for_uri(link.c_str(), nullptr, nullptr) != 0 || OpenByCommand(link);
}

} // namespace zy
