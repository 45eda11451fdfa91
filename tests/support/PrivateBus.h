#pragma once

#include <optional>
#include <string>

#include "support/ChildProcess.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

namespace zy::test {

/// A session bus of the test's own, which the environment names for as long as this lives. It can stop and
/// come back at the same address.
///
/// Services that the bus may start are looked for in "dbus-1/services" of the folder for the user's data,
/// which the bus has to itself.
class PrivateBus {
  public:
    PrivateBus();

    void Start();
    void Stop();

    /// Tells the bus, before it starts, of a program that it may start for a name.
    void OfferService(const std::string& name, const std::string& command) const;

    std::string Address() const { return "unix:path=" + folder_.Path("bus"); }

  private:
    TemporaryFolder folder_;
    EnvironmentVariable address_{"DBUS_SESSION_BUS_ADDRESS", Address()};
    std::optional<ChildProcess> daemon_;
};

} // namespace zy::test
