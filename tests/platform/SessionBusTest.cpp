#include "platform/posix/SessionBus.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cstring>

#include "platform/glib/Waiting.h"
#include "platform/posix/FileDescriptor.h"
#include "support/EnvironmentVariable.h"
#include "support/PrivateBus.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

/// A socket that takes connections and never answers, as a bus does that hangs.
class SilentSocket {
  public:
    explicit SilentSocket(const std::string& path)
        : socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(socket_.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::listen(socket_.Number(), 1), 0);
    }

  private:
    FileDescriptor socket_;
};

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
