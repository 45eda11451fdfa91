#include "platform/PatientTraceServers.h"

#include <gtest/gtest.h>

#include "platform/memory/MemoryTraceServers.h"

namespace zy::test {
namespace {

constexpr auto kName = "ZYDebug.Application";
constexpr std::chrono::milliseconds kMoment{1};

/// A viewer whose answers take time, on a clock that goes on by that alone.
class SlowTraceServers final : public TraceServers {
  public:
    std::unique_ptr<TraceServer> GetRunning(std::string_view name) override {
        now += untilFound;
        auto server = viewer.GetRunning(name);
        return server ? std::make_unique<Server>(*this, std::move(server)) : nullptr;
    }

    MemoryTraceServers viewer;
    std::chrono::steady_clock::time_point now = std::chrono::steady_clock::now();
    std::chrono::milliseconds untilFound{0};
    std::chrono::milliseconds untilTaken{0};

  private:
    class Server final : public TraceServer {
      public:
        Server(SlowTraceServers& servers, std::unique_ptr<TraceServer> server)
            : servers_(servers), server_(std::move(server)) {}

        bool Send(std::string_view executable, std::string_view module, std::string_view procedure,
                  std::string_view message) override {
            servers_.now += servers_.untilTaken;
            return server_->Send(executable, module, procedure, message);
        }

      private:
        SlowTraceServers& servers_;
        std::unique_ptr<TraceServer> server_;
    };
};

class PatientTraceServersTest : public ::testing::Test {
  protected:
    PatientTraceServersTest() { slow.viewer.SetRunning(true); }

    bool Send() {
        const auto server = servers.GetRunning(kName);
        return server && server->Send("e", "m", "p", "x");
    }
    std::size_t Records() const { return slow.viewer.Records().size(); }

    SlowTraceServers slow;
    PatientTraceServers servers{slow, [this] { return slow.now; }};
};

TEST_F(PatientTraceServersTest, HandRecordsToAViewerThatAnswersInTime) {
    slow.untilFound = slow.untilTaken = kTracePatience - kMoment;
    EXPECT_TRUE(Send());
    EXPECT_TRUE(Send());
    EXPECT_EQ(slow.viewer.Records().front(), (TraceRecord{"e", "m", "p", "x"}));
    EXPECT_EQ(Records(), 2U);
}

TEST_F(PatientTraceServersTest, FindNothingWhereNoneRunsAndLookAgain) {
    slow.viewer.SetRunning(false);
    EXPECT_FALSE(servers.GetRunning(kName));
    slow.viewer.SetRunning(true);
    EXPECT_TRUE(servers.GetRunning(kName));
}

TEST_F(PatientTraceServersTest, TellThatAViewerCouldNotTakeARecord) {
    slow.viewer.SetSendFails(true);
    EXPECT_FALSE(Send());
    EXPECT_EQ(slow.viewer.LookUps(), 1U);
}

TEST_F(PatientTraceServersTest, ReleaseAViewerWithTheirServer) {
    const auto server = servers.GetRunning(kName);
    EXPECT_EQ(slow.viewer.Unreleased(), 1U);
    EXPECT_TRUE(Send());
    EXPECT_EQ(slow.viewer.Unreleased(), 1U);
}

TEST_F(PatientTraceServersTest, AskNothingForAMinuteAfterARecordThatTookTooLong) {
    const auto server = servers.GetRunning(kName);
    slow.untilTaken = kTracePatience;
    server->Send("e", "m", "p", "x");
    EXPECT_FALSE(server->Send("e", "m", "p", "x"));
    EXPECT_FALSE(servers.GetRunning(kName));
    slow.now += kTraceRest - kMoment;
    EXPECT_FALSE(Send());
    EXPECT_EQ(slow.viewer.LookUps(), 1U);
    EXPECT_EQ(Records(), 1U);
    slow.now += kMoment;
    EXPECT_TRUE(Send());
    EXPECT_EQ(Records(), 2U);
}

TEST_F(PatientTraceServersTest, AskNothingForAMinuteAfterALookUpThatTookTooLong) {
    slow.viewer.SetRunning(false);
    slow.untilFound = kTracePatience;
    EXPECT_FALSE(servers.GetRunning(kName));
    slow.viewer.SetRunning(true);
    slow.untilFound = std::chrono::milliseconds(0);
    slow.now += kTraceRest - kMoment;
    EXPECT_FALSE(Send());
    EXPECT_EQ(slow.viewer.LookUps(), 1U);
    slow.now += kMoment;
    EXPECT_TRUE(Send());
}

} // namespace
} // namespace zy::test
