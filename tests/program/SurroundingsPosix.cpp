#include <stdexcept>

#include "Surroundings.h"

namespace zy::test {

struct Surroundings::Native {
    /// A session bus of its own.
    std::unique_ptr<Child> bus;
};

Surroundings::Surroundings() : native_(std::make_unique<Native>()) {
    folder_.AddFolder("system");
    environment.set = {{"ZYSETUP_SYSTEM_DIR", folder_.Path("system")},
                       {"XDG_RUNTIME_DIR", folder_.Path().string()},
                       {"XDG_DATA_HOME", folder_.Path("data")},
                       {"XDG_CONFIG_HOME", folder_.Path("config")},
                       {"XDG_STATE_HOME", folder_.Path("state")},
                       {"NO_AT_BRIDGE", "1"},
                       {"LC_ALL", "C.UTF-8"}};
    environment.unset = {"DBUS_SESSION_BUS_ADDRESS", "WAYLAND_DISPLAY"};
}

Surroundings::~Surroundings() = default;

std::filesystem::path Surroundings::Settings() const {
    return folder_.Path("system");
}

std::vector<std::string> Surroundings::FileNames() const {
    return folder_.Names("system");
}

std::string Surroundings::Registry() const {
    return folder_.Get("config/zysetup/registry.ini").value_or("");
}

void Surroundings::AdmitViewers() {
    if (native_->bus) {
        return;
    }
    native_->bus = std::make_unique<Child>(
        std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--print-address=1"}, environment,
        Output("bus.txt"));
    if (!WaitUntil([this] { return native_->bus->Output().ends_with('\n'); })) {
        throw std::runtime_error("the session bus does not start: " + native_->bus->Output());
    }
    std::string address = native_->bus->Output();
    address.pop_back();
    std::erase(environment.unset, "DBUS_SESSION_BUS_ADDRESS");
    environment.set["DBUS_SESSION_BUS_ADDRESS"] = address;
}

std::string ProgramPath() {
    return ZY_PROGRAM;
}

std::string ViewerPath() {
    return ZY_VIEWER;
}

} // namespace zy::test
