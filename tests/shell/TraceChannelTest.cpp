#include "shell/TraceChannel.h"

#include <stdexcept>

#include "support/WorldTest.h"

namespace zy {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TraceChannelTest : public test::WorldTest {
  protected:
    void Trace(const char* message) { channel.DebugTrace("mRules", "EditRule", message); }
    std::size_t LookUps() const { return world.traceServers.LookUps(); }

    TraceChannel channel{world.traceServers, "zyGlobal"};
};

TEST_F(TraceChannelTest, SendsProgramModuleProcedureAndMessageInThisOrder) {
    world.traceServers.SetRunning(true);
    Trace("Start");
    EXPECT_THAT(world.traceServers.Records(),
                ElementsAre(TraceRecord{"zyGlobal", "mRules", "EditRule", "Start"}));
}

TEST_F(TraceChannelTest, AsksForTheViewersRegisteredName) {
    world.traceServers.SetRunning(true);
    world.traceServers.SetName("ZYDebug.Application");
    Trace("Start");
    EXPECT_EQ(world.traceServers.Records().size(), 1U);
}

TEST_F(TraceChannelTest, KnowsItsLastRecordsWithoutAViewerAndWithoutTheirMessages) {
    Trace("a value");
    channel.DebugTrace("frmLogin", "cmdOK_Click", "Start");
    ASSERT_EQ(channel.Last().Count(), 2U);
    EXPECT_EQ(channel.Last()[0], "mRules EditRule");
    EXPECT_EQ(channel.Last()[1], "frmLogin cmdOK_Click");
}

TEST_F(TraceChannelTest, GivesUpForGoodWhenTheFirstLookFindsNoViewer) {
    Trace("first");
    world.traceServers.SetRunning(true);
    Trace("second");
    Trace("third");
    EXPECT_THAT(world.traceServers.Records(), IsEmpty());
    EXPECT_EQ(LookUps(), 1U);
}

TEST_F(TraceChannelTest, LooksAgainOnEveryTraceForAViewerThatWentAway) {
    world.traceServers.ScriptLookUps({true, false, false, true});
    for (const char* message : {"here", "gone", "still gone", "back"}) {
        Trace(message);
    }
    EXPECT_THAT(world.traceServers.Records(),
                ElementsAre(TraceRecord{"zyGlobal", "mRules", "EditRule", "here"},
                            TraceRecord{"zyGlobal", "mRules", "EditRule", "back"}));
    EXPECT_EQ(LookUps(), 4U);
}

TEST_F(TraceChannelTest, CountsAViewerAsReachedThoughItCouldNotTakeTheRecord) {
    world.traceServers.SetRunning(true);
    world.traceServers.SetSendFails(true);
    Trace("lost");
    world.traceServers.SetRunning(false);
    Trace("gone");
    world.traceServers.SetRunning(true);
    world.traceServers.SetSendFails(false);
    Trace("back");
    EXPECT_THAT(world.traceServers.Records(),
                ElementsAre(TraceRecord{"zyGlobal", "mRules", "EditRule", "back"}));
}

TEST_F(TraceChannelTest, ReleasesTheViewerAfterEveryTrace) {
    world.traceServers.SetRunning(true);
    Trace("one");
    Trace("two");
    EXPECT_EQ(world.traceServers.Unreleased(), 0U);
    EXPECT_EQ(LookUps(), 2U);
}

/// A look-up or a server that raises an error.
class BrokenServers : public TraceServers {
  public:
    class Server : public TraceServer {
      public:
        bool Send(std::string_view, std::string_view, std::string_view, std::string_view) override {
            throw std::runtime_error("send");
        }
    };

    std::unique_ptr<TraceServer> GetRunning(std::string_view) override {
        ++lookUps;
        if (brokenLookUp) {
            throw std::runtime_error("look-up");
        }
        return std::make_unique<Server>();
    }

    bool brokenLookUp = false;
    int lookUps = 0;
};

TEST(TraceChannel, SwallowsTheErrorOfALookUpAndCountsItAsNoViewer) {
    BrokenServers servers;
    servers.brokenLookUp = true;
    TraceChannel channel(servers, "zyGlobal");
    EXPECT_NO_THROW(channel.DebugTrace("m", "p", "t"));
    EXPECT_NO_THROW(channel.DebugTrace("m", "p", "t"));
    EXPECT_EQ(servers.lookUps, 1);
}

TEST(TraceChannel, SwallowsTheErrorOfASendAndCountsTheViewerAsReached) {
    BrokenServers servers;
    TraceChannel channel(servers, "zyGlobal");
    EXPECT_NO_THROW(channel.DebugTrace("m", "p", "t"));
    EXPECT_NO_THROW(channel.DebugTrace("m", "p", "t"));
    EXPECT_EQ(servers.lookUps, 2);
}

} // namespace
} // namespace zy
