#include "platform/posix/SessionBus.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/glib/Waiting.h"
#include "support/EnvironmentVariable.h"
#include "support/PrivateBus.h"
#include "support/SilentSocket.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

/// The address under these two variables, of which either may be missing.
std::string AddressBy(const std::optional<std::string>& address,
                      const std::optional<std::string>& runtimeFolder) {
    const EnvironmentVariable first("DBUS_SESSION_BUS_ADDRESS", address);
    const EnvironmentVariable second("XDG_RUNTIME_DIR", runtimeFolder);
    return SessionBusAddress();
}

TEST(SessionBusAddressTest, IsThatOfTheEnvironment) {
    EXPECT_EQ(AddressBy("unix:path=/run/a;tcp:host=b", std::nullopt), "unix:path=/run/a;tcp:host=b");
}

TEST(SessionBusAddressTest, IsTheSocketInTheRuntimeFolderOtherwise) {
    const TemporaryFolder folder;
    const SilentSocket socket(folder.Path("bus"));
    const auto expected = "unix:path=" + folder.Path("bus");
    EXPECT_EQ(AddressBy(std::nullopt, folder.Path().string()), expected);
    EXPECT_EQ(AddressBy("", folder.Path().string()), expected);
}

TEST(SessionBusAddressTest, IsEscapedWhereTheRuntimeFolderNeedsIt) {
    const TemporaryFolder folder;
    folder.AddFolder("a b");
    const SilentSocket socket(folder.Path("a b/bus"));
    EXPECT_EQ(AddressBy(std::nullopt, folder.Path("a b")), "unix:path=" + folder.Path("a%20b/bus"));
}

TEST(SessionBusAddressTest, LeavesOutWhatWouldStartABus) {
    const TemporaryFolder folder;
    const SilentSocket socket(folder.Path("bus"));
    EXPECT_EQ(AddressBy("autolaunch:;unix:path=/run/a;unixexec:path=/bin/sh", std::nullopt),
              "unix:path=/run/a");
    EXPECT_EQ(AddressBy("autolaunch:scope=x", folder.Path().string()), "unix:path=" + folder.Path("bus"));
    EXPECT_EQ(AddressBy("autolaunch:", std::nullopt), "");
}

TEST(SessionBusAddressTest, IsEmptyWhereThereIsNoBus) {
    const TemporaryFolder folder;
    EXPECT_EQ(AddressBy(std::nullopt, std::nullopt), "");
    EXPECT_EQ(AddressBy(std::nullopt, folder.Path().string()), "");
    folder.Put("bus", "no socket");
    EXPECT_EQ(AddressBy(std::nullopt, folder.Path().string()), "");
}

TEST(SessionBusAddressTest, IsEmptyWhereTheBusIsDisabled) {
    const TemporaryFolder folder;
    const SilentSocket socket(folder.Path("bus"));
    EXPECT_EQ(AddressBy("disabled:", folder.Path().string()), "");
}

TEST(ConnectToSessionBusTest, GivesUpOnABusThatDoesNotAnswer) {
    const TemporaryFolder folder;
    const SilentSocket socket(folder.Path("bus"));
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + folder.Path("bus"));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(ConnectToSessionBus());
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5 * kBusPatience);
}

TEST(ConnectToSessionBusTest, GivesUpOnAnAddressThatIsNone) {
    for (const char* value : {"nonsense", "unix:", "unix:path=/nowhere/bus", "nosuchtransport:x=y"}) {
        const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", value);
        EXPECT_FALSE(ConnectToSessionBus()) << value;
    }
}

/// What the environment says of the bus and of the bridge to the screen readers, kept as it was.
class BusSettings {
  public:
    explicit BusSettings(const std::string& address) : address_("DBUS_SESSION_BUS_ADDRESS", address) {}

    static std::string Now() {
        const auto value = [](const char* name) {
            const char* found = std::getenv(name);
            return std::string(found == nullptr ? "none" : found);
        };
        return value("DBUS_SESSION_BUS_ADDRESS") + ", " + value("NO_AT_BRIDGE");
    }

  private:
    EnvironmentVariable address_;
    EnvironmentVariable bridge_{"NO_AT_BRIDGE", std::nullopt};
};

TEST(LeaveOutSilentBusTest, LeavesABusThatHangsOut) {
    const TemporaryFolder folder;
    const SilentSocket socket(folder.Path("bus"));
    const BusSettings settings("unix:path=" + folder.Path("bus"));
    EXPECT_TRUE(LeaveOutSilentBus(std::chrono::milliseconds(100)));
    EXPECT_EQ(BusSettings::Now(), "disabled:, 1");
}

TEST(LeaveOutSilentBusTest, KeepsABusThatAnswers) {
    PrivateBus bus;
    bus.Start();
    const BusSettings settings(bus.Address());
    EXPECT_FALSE(LeaveOutSilentBus(std::chrono::seconds(30)));
    EXPECT_EQ(BusSettings::Now(), bus.Address() + ", none");
}

TEST(LeaveOutSilentBusTest, HasNothingToDoWhereThereIsNoBus) {
    for (const std::string address : {"disabled:", "unix:path=/nowhere/bus"}) {
        const BusSettings settings(address);
        EXPECT_FALSE(LeaveOutSilentBus(std::chrono::seconds(30)));
        EXPECT_EQ(BusSettings::Now(), address + ", none");
    }
}

gboolean Count(gpointer events) {
    ++*static_cast<int*>(events);
    return G_SOURCE_CONTINUE;
}

TEST(ConnectToSessionBusTest, LetsNoEventOfTheProgramHappenMeanwhile) {
    PrivateBus bus;
    bus.Start();
    int events = 0;
    const auto source = g_idle_add(Count, &events);
    EXPECT_TRUE(ConnectToSessionBus());
    EXPECT_EQ(events, 0);
    g_source_remove(source);
}

void NoteClosed(GDBusConnection* /*connection*/, gboolean /*vanished*/, GError* /*error*/, gpointer closed) {
    *static_cast<bool*>(closed) = true;
}

TEST(ConnectToSessionBusTest, TellsOfTheEndOfTheBusAmongTheProgramsEvents) {
    PrivateBus bus;
    bus.Start();
    const auto connection = ConnectToSessionBus();
    ASSERT_TRUE(connection);
    bool closed = false;
    g_signal_connect(connection.get(), "closed", G_CALLBACK(NoteClosed), &closed);
    bus.Stop();
    EXPECT_TRUE(WaitOn(nullptr, std::chrono::seconds(20), [&] { return closed; }));
}

TEST(ObjectPathOfTest, HasSlashesInPlaceOfDots) {
    EXPECT_EQ(ObjectPathOf("ZYDebug.Application"), "/ZYDebug/Application");
}

} // namespace
} // namespace zy::test
