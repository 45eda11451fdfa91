#include "platform/memory/MemoryTraceServers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kName = "ZYDebug.Application";

TEST(MemoryTraceServersTest, AreNotRunningAtFirst) {
    MemoryTraceServers servers;
    EXPECT_FALSE(servers.GetRunning(kName));
}

TEST(MemoryTraceServersTest, KeepEachRecordAsItWasSent) {
    MemoryTraceServers servers;
    servers.SetRunning(true);
    EXPECT_TRUE(servers.GetRunning(kName)->Send("zyGlobal", "mRules", "Build", std::string_view("a\0b", 3)));
    EXPECT_THAT(servers.Records(), ElementsAre(TraceRecord{.executable = "zyGlobal",
                                                           .module = "mRules",
                                                           .procedure = "Build",
                                                           .message = std::string("a\0b", 3)}));
}

TEST(MemoryTraceServersTest, FollowTheScriptAndThenTheSwitch) {
    MemoryTraceServers servers;
    servers.SetRunning(true);
    servers.ScriptLookUps({false, true, false});
    EXPECT_FALSE(servers.GetRunning(kName));
    EXPECT_TRUE(servers.GetRunning(kName));
    EXPECT_FALSE(servers.GetRunning(kName));
    EXPECT_TRUE(servers.GetRunning(kName));
}

TEST(MemoryTraceServersTest, CanSendOnAScriptedLookUpWhileTheSwitchIsOff) {
    MemoryTraceServers servers;
    servers.ScriptLookUps({true});
    EXPECT_TRUE(servers.GetRunning(kName)->Send("e", "m", "p", "sent"));
    EXPECT_EQ(servers.Records().size(), 1U);
}

TEST(MemoryTraceServersTest, CountEveryLookUp) {
    MemoryTraceServers servers;
    servers.GetRunning(kName);
    servers.GetRunning("Other.Application");
    EXPECT_EQ(servers.LookUps(), 2U);
}

TEST(MemoryTraceServersTest, LoseARecordThatTheyAreMadeToRefuse) {
    MemoryTraceServers servers;
    servers.SetRunning(true);
    servers.SetSendFails(true);
    EXPECT_FALSE(servers.GetRunning(kName)->Send("e", "m", "p", "lost"));
    EXPECT_THAT(servers.Records(), IsEmpty());
    servers.SetSendFails(false);
    EXPECT_TRUE(servers.GetRunning(kName)->Send("e", "m", "p", "sent"));
}

TEST(MemoryTraceServersTest, KnowHowManyAreStillHeld) {
    MemoryTraceServers servers;
    servers.SetRunning(true);
    auto first = servers.GetRunning(kName);
    const auto second = servers.GetRunning(kName);
    EXPECT_EQ(servers.Unreleased(), 2U);
    first.reset();
    EXPECT_EQ(servers.Unreleased(), 1U);
}

TEST(MemoryTraceServersTest, CanHaveAnotherName) {
    MemoryTraceServers servers;
    servers.SetRunning(true);
    servers.SetName("Other.Application");
    EXPECT_FALSE(servers.GetRunning(kName));
    EXPECT_TRUE(servers.GetRunning("Other.Application"));
}

TEST(MemoryTraceServersTest, ForgetOnRequest) {
    MemoryTraceServers servers;
    servers.SetRunning(true);
    servers.GetRunning(kName)->Send("e", "m", "p", "x");
    servers.Clear();
    EXPECT_EQ(servers.LookUps(), 0U);
    EXPECT_THAT(servers.Records(), IsEmpty());
}

TEST(MemoryTraceServersTest, ShowARecordInAFailedTest) {
    std::ostringstream out;
    out << TraceRecord{.executable = "e", .module = "m", .procedure = "p", .message = "x"};
    EXPECT_EQ(out.str(), "e | m | p | x");
}

} // namespace
} // namespace zy::test
