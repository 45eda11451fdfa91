// The trace viewer as a program, on a session bus of its own.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

#include "platform/posix/PosixTraceServers.h"
#include "support/PrivateBus.h"
#include "support/TraceViewerProcess.h"

namespace zy::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Optional;
using namespace std::string_literals;

class Zydebug : public ::testing::Test {
  protected:
    Zydebug() { bus.Start(); }

    std::unique_ptr<TraceServer> LookUp() { return servers.GetRunning("ZYDebug.Application"); }

    bool Send(std::string_view message) {
        const auto server = LookUp();
        return server && server->Send("zyGlobal", "mZYGlobal", "mMain", message);
    }

    PrivateBus bus;
    PosixTraceServers servers{Windows1252()};
};

TEST_F(Zydebug, PrintsEachRecordAsOneLine) {
    TraceViewerProcess viewer;
    EXPECT_TRUE(Send("ZYGlobal Start"));
    EXPECT_THAT(viewer.NextLine(), Optional("zyGlobal\tmZYGlobal\tmMain\tZYGlobal Start"s));
}

TEST_F(Zydebug, PrintsRecordsInTheOrderTheyCome) {
    TraceViewerProcess viewer;
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(Send(std::to_string(i)));
    }
    for (int i = 0; i < 200; ++i) {
        EXPECT_THAT(viewer.NextLine(), Optional("zyGlobal\tmZYGlobal\tmMain\t" + std::to_string(i)));
    }
}

TEST_F(Zydebug, KeepsARecordOnOneLineWhateverItHolds) {
    TraceViewerProcess viewer;
    EXPECT_TRUE(Send("a\r\n\tb\0c"s));
    EXPECT_THAT(viewer.NextLine(),
                Optional("zyGlobal\tmZYGlobal\tmMain\ta<U+000D><U+000A><U+0009>b\u2400c"s));
}

TEST_F(Zydebug, EndsOnCtrlCWithoutAnError) {
    TraceViewerProcess viewer;
    EXPECT_THAT(viewer.Stop(), Optional(0));
}

TEST_F(Zydebug, EndsOnRequestOfTheSystemWithoutAnError) {
    ChildProcess viewer({TraceViewerProcess::ProgramPath()});
    ASSERT_TRUE(viewer.Errors().Next());
    viewer.Signal(SIGTERM);
    EXPECT_THAT(viewer.Wait(), Optional(0));
}

TEST_F(Zydebug, GivesUpItsNameAtTheEnd) {
    TraceViewerProcess viewer;
    EXPECT_TRUE(LookUp());
    viewer.Stop();
    EXPECT_FALSE(LookUp());
    TraceViewerProcess next;
    EXPECT_TRUE(LookUp());
}

TEST_F(Zydebug, RefusesToRunBesideAnother) {
    TraceViewerProcess first;
    ChildProcess second({TraceViewerProcess::ProgramPath()});
    EXPECT_THAT(second.Errors().Next(), Optional("zydebug: another trace viewer is running"s));
    EXPECT_THAT(second.Wait(), Optional(1));
    EXPECT_TRUE(Send("still there"));
    EXPECT_THAT(first.NextLine(), Optional(HasSubstr("still there")));
}

TEST_F(Zydebug, EndsWithAnErrorWhenTheBusGoes) {
    ChildProcess viewer({TraceViewerProcess::ProgramPath()});
    ASSERT_TRUE(viewer.Errors().Next());
    bus.Stop();
    EXPECT_THAT(viewer.Errors().Next(), Optional("zydebug: the session bus has gone away"s));
    EXPECT_THAT(viewer.Wait(), Optional(1));
}

TEST(ZydebugAlone, SaysThatThereIsNoBus) {
    const TemporaryFolder folder;
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", std::nullopt);
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", folder.Path().string());
    ChildProcess viewer({TraceViewerProcess::ProgramPath()});
    EXPECT_THAT(viewer.Errors().Next(), Optional("zydebug: there is no session bus to listen on"s));
    EXPECT_THAT(viewer.Wait(), Optional(1));
}

TEST(ZydebugAlone, ExplainsItself) {
    ChildProcess viewer({TraceViewerProcess::ProgramPath(), "--help"});
    EXPECT_THAT(viewer.Output().Next(), Optional("Usage: zydebug"s));
    EXPECT_THAT(viewer.Wait(), Optional(0));
}

TEST(ZydebugAlone, RefusesAnArgumentThatItDoesNotKnow) {
    ChildProcess viewer({TraceViewerProcess::ProgramPath(), "--loud"});
    EXPECT_THAT(viewer.Errors().Next(), Optional("Usage: zydebug"s));
    EXPECT_THAT(viewer.Wait(), Optional(1));
}

} // namespace
} // namespace zy::test
