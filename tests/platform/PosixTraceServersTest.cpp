#include "platform/posix/PosixTraceServers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>

#include "platform/PatientTraceServers.h"
#include "platform/posix/SessionBus.h"
#include "support/PrivateBus.h"
#include "support/TraceViewerProcess.h"

namespace zy::test {
namespace {

using ::testing::Optional;
using namespace std::string_literals;

constexpr const char* kName = "ZYDebug.Application";

TEST(PosixTraceServersTest, FindNothingAtOnceWithoutASessionBus) {
    const TemporaryFolder folder;
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", std::nullopt);
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", folder.Path().string());
    PosixTraceServers servers(Windows1252());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(servers.GetRunning(kName));
    constexpr std::chrono::seconds kLessThanBusesAreWaitedFor{10}; // which is 25 seconds
    EXPECT_LT(std::chrono::steady_clock::now() - start, kLessThanBusesAreWaitedFor);
}

TEST(PosixTraceServersTest, StartNoBus) {
    const TemporaryFolder folder;
    folder.Put("dbus-launch", "#!/bin/sh\ntouch " + folder.Path("started") + "\n");
    std::filesystem::permissions(folder.Path("dbus-launch"), std::filesystem::perms{0755});
    const EnvironmentVariable path("PATH", folder.Path().string());
    const EnvironmentVariable display("DISPLAY", ":99");
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", folder.Path().string());
    for (const auto& value : {std::optional("autolaunch:"s), std::optional<std::string>()}) {
        const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", value);
        EXPECT_FALSE(PosixTraceServers(Windows1252()).GetRunning(kName));
    }
    EXPECT_FALSE(std::filesystem::exists(folder.Path("started")));
}

TEST(PosixTraceServersTest, StartNoViewer) {
    const TemporaryFolder folder;
    folder.Put("service", "#!/bin/sh\ntouch " + folder.Path("started") + "\n");
    std::filesystem::permissions(folder.Path("service"), std::filesystem::perms{0755});
    PrivateBus bus;
    bus.OfferService(kName, folder.Path("service"));
    bus.Start();
    EXPECT_FALSE(PosixTraceServers(Windows1252()).GetRunning(kName));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("started")));
}

TEST(PosixTraceServersTest, StartNoViewerInPlaceOfOneThatHasGone) {
    const TemporaryFolder folder;
    folder.Put("service", "#!/bin/sh\ntouch " + folder.Path("started") + "\n");
    std::filesystem::permissions(folder.Path("service"), std::filesystem::perms{0755});
    PrivateBus bus;
    bus.OfferService(kName, folder.Path("service"));
    bus.Start();
    TraceViewerProcess viewer;
    PosixTraceServers servers(Windows1252());
    const auto server = servers.GetRunning(kName);
    viewer.Stop();
    EXPECT_FALSE(server->Send("e", "m", "p", "lost"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("started")));
}

TEST(PosixTraceServersTest, KnowTheirBusOnceTheyHaveLookedForAViewer) {
    PrivateBus bus;
    bus.Start();
    PosixTraceServers servers(Windows1252());
    EXPECT_FALSE(servers.HasBus());
    EXPECT_FALSE(servers.GetRunning(kName));
    EXPECT_TRUE(servers.HasBus());
    bus.Stop();
    EXPECT_FALSE(servers.GetRunning(kName));
    EXPECT_FALSE(servers.HasBus());
}

TEST(PosixTraceServersTest, OutliveTheirBusAndFindTheNextOne) {
    PrivateBus bus;
    bus.Start();
    PosixTraceServers servers(Windows1252());
    {
        TraceViewerProcess viewer;
        EXPECT_TRUE(servers.GetRunning(kName));
        bus.Stop();
    }
    EXPECT_FALSE(servers.GetRunning(kName));
    bus.Start();
    TraceViewerProcess viewer;
    const auto server = servers.GetRunning(kName);
    ASSERT_TRUE(server);
    EXPECT_TRUE(server->Send("e", "m", "p", "back"));
    EXPECT_THAT(viewer.NextLine(), Optional("e\tm\tp\tback"s));
}

TEST(PosixTraceServersTest, CannotSendWhenTheBusHasGone) {
    PrivateBus bus;
    bus.Start();
    TraceViewerProcess viewer;
    PosixTraceServers servers(Windows1252());
    const auto server = servers.GetRunning(kName);
    ASSERT_TRUE(server);
    bus.Stop();
    EXPECT_FALSE(server->Send("e", "m", "p", "lost"));
}

TEST(PosixTraceServersTest, GiveUpOnAViewerThatDoesNotAnswer) {
    PrivateBus bus;
    bus.Start();
    ChildProcess viewer({TraceViewerProcess::ProgramPath()});
    ASSERT_TRUE(viewer.Errors().Next());
    viewer.Signal(SIGSTOP);
    PosixTraceServers viewers(Windows1252());
    PatientTraceServers patient(viewers);
    const auto server = patient.GetRunning(kName);
    ASSERT_TRUE(server);
    EXPECT_FALSE(server->Send("e", "m", "p", "while it hangs"));
    EXPECT_FALSE(server->Send("e", "m", "p", "not sent"));
    EXPECT_FALSE(patient.GetRunning(kName));
    viewer.Signal(SIGCONT);
    EXPECT_THAT(viewer.Output().Next(), Optional("e\tm\tp\twhile it hangs"s));
    EXPECT_TRUE(viewers.GetRunning(kName)->Send("e", "m", "p", "again"));
    EXPECT_THAT(viewer.Output().Next(), Optional("e\tm\tp\tagain"s));
}

TEST(ToBusTextTest, IsUtf8) {
    EXPECT_EQ(ToBusText(Windows1252(), "Gr\xF6\xDF\x65 \x80"), "Größe €");
}

TEST(ToBusTextTest, HasTheSymbolForANulInItsPlace) {
    EXPECT_EQ(ToBusText(Windows1252(), "a\0b"s), "a\u2400b");
}

TEST(ToBusTextTest, CanBeSentWhateverTheText) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    const auto text = ToBusText(Windows1252(), bytes);
    EXPECT_TRUE(g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr));
}

} // namespace
} // namespace zy::test
