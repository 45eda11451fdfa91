#include "support/PrivateBus.h"

#include <csignal>
#include <stdexcept>

namespace zy::test {

PrivateBus::PrivateBus() {
    folder_.AddFolder("dbus-1/services");
}

void PrivateBus::Start() {
    const EnvironmentVariable data("XDG_DATA_HOME", folder_.Path().string());
    daemon_.emplace(std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--nopidfile",
                                             "--address=" + Address(), "--print-address=1"});
    if (!daemon_->Output().Next()) {
        throw std::runtime_error("the session bus did not start: " +
                                 daemon_->Errors().Next().value_or("is dbus-daemon installed?"));
    }
}

void PrivateBus::Stop() {
    daemon_->Signal(SIGTERM);
    daemon_->Wait();
    daemon_.reset();
    std::filesystem::remove(folder_.Path("bus"));
}

void PrivateBus::OfferService(const std::string& name, const std::string& command) const {
    folder_.Put("dbus-1/services/" + name + ".service",
                "[D-BUS Service]\nName=" + name + "\nExec=" + command + "\n");
}

} // namespace zy::test
