// What every look-up of trace viewers promises, whatever it stands on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "ContractWorlds.h"
#include "platform/CodePage.h"
#include "platform/memory/MemoryTraceServers.h"

namespace zy::test {
namespace {

using ::testing::Optional;

class MemoryDesktop final : public Desktop {
  public:
    TraceServers& Servers() override { return servers_; }
    void StartViewer() override { servers_.SetRunning(true); }
    void StopViewer() override { servers_.SetRunning(false); }
    std::optional<std::string> NextRecord() override {
        if (taken_ == servers_.Records().size()) {
            return std::nullopt;
        }
        const auto& record = servers_.Records()[taken_++];
        const auto line =
            record.executable + '\t' + record.module + '\t' + record.procedure + '\t' + record.message;
        return Windows1252().ToUtf8(line);
    }

  private:
    MemoryTraceServers servers_;
    std::size_t taken_ = 0;
};

struct DesktopKind {
    const char* name;
    std::unique_ptr<Desktop> (*make)();
};

void PrintTo(const DesktopKind& kind, std::ostream* out) {
    *out << kind.name;
}

class TraceServersContract : public ::testing::TestWithParam<DesktopKind> {
  protected:
    std::unique_ptr<TraceServer> LookUp() { return desktop->Servers().GetRunning("ZYDebug.Application"); }

    std::unique_ptr<Desktop> desktop = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(Desktops, TraceServersContract,
                         ::testing::Values(DesktopKind{"OverMemory",
                                                       []() -> std::unique_ptr<Desktop> {
                                                           return std::make_unique<MemoryDesktop>();
                                                       }},
                                           DesktopKind{kOverSystem, SystemDesktop}),
                         [](const auto& test) { return test.param.name; });

TEST_P(TraceServersContract, FindNothingWithoutAViewer) {
    EXPECT_FALSE(LookUp());
}

TEST_P(TraceServersContract, FindAViewerThatIsRunning) {
    desktop->StartViewer();
    EXPECT_TRUE(LookUp());
}

TEST_P(TraceServersContract, FindAViewerStartedAfterALookUpThatFoundNone) {
    ASSERT_FALSE(LookUp());
    desktop->StartViewer();
    EXPECT_TRUE(LookUp());
}

TEST_P(TraceServersContract, FindNothingByAnotherName) {
    desktop->StartViewer();
    for (const char* name : {"ZYDebug.Other", "Application", "", "no name", "ZYDebug..Application"}) {
        EXPECT_FALSE(desktop->Servers().GetRunning(name)) << name;
    }
}

TEST_P(TraceServersContract, HandOverTheFourFieldsInTheirOrder) {
    desktop->StartViewer();
    const auto server = LookUp();
    ASSERT_TRUE(server);
    EXPECT_TRUE(server->Send("zyGlobal", "mZYGlobal", "mMain", "ZYGlobal Start"));
    EXPECT_THAT(desktop->NextRecord(), Optional(std::string("zyGlobal\tmZYGlobal\tmMain\tZYGlobal Start")));
}

TEST_P(TraceServersContract, HandOverRecordsInTheirOrder) {
    desktop->StartViewer();
    for (const char* message : {"first", "second", "third"}) {
        const auto server = LookUp();
        ASSERT_TRUE(server);
        EXPECT_TRUE(server->Send("e", "m", "p", message));
    }
    for (const char* message : {"first", "second", "third"}) {
        EXPECT_THAT(desktop->NextRecord(), Optional(std::string("e\tm\tp\t") + message));
    }
}

TEST_P(TraceServersContract, HandOverEmptyFields) {
    desktop->StartViewer();
    EXPECT_TRUE(LookUp()->Send("", "", "", ""));
    EXPECT_THAT(desktop->NextRecord(), Optional(std::string("\t\t\t")));
}

TEST_P(TraceServersContract, HandOverLettersOfTheCodePage) {
    desktop->StartViewer();
    EXPECT_TRUE(LookUp()->Send("e", "m", "p", "\x80 Gr\xF6\xDF\x65"));
    EXPECT_THAT(desktop->NextRecord(), Optional(std::string("e\tm\tp\t€ Größe")));
}

TEST_P(TraceServersContract, HandOverALongMessage) {
    const std::string message(40000, 'x');
    desktop->StartViewer();
    EXPECT_TRUE(LookUp()->Send("e", "m", "p", message));
    EXPECT_EQ(desktop->NextRecord().value_or("").size(), message.size() + 6);
}

TEST_P(TraceServersContract, CannotSendToAViewerThatHasGone) {
    desktop->StartViewer();
    const auto server = LookUp();
    desktop->StopViewer();
    EXPECT_FALSE(server->Send("e", "m", "p", "lost"));
    EXPECT_FALSE(LookUp());
}

TEST_P(TraceServersContract, FindAViewerThatWentAndCameBack) {
    desktop->StartViewer();
    EXPECT_TRUE(LookUp());
    desktop->StopViewer();
    EXPECT_FALSE(LookUp());
    desktop->StartViewer();
    const auto server = LookUp();
    ASSERT_TRUE(server);
    EXPECT_TRUE(server->Send("e", "m", "p", "back"));
    EXPECT_THAT(desktop->NextRecord(), Optional(std::string("e\tm\tp\tback")));
}

} // namespace
} // namespace zy::test
