#include <array>
#include <csignal>
#include <ctime>

#include "UnitsWindow.h"

namespace zy::test {
namespace {

/// The system ends the program by a signal. What that does in the end is kept from happening here.
class EndingWindow : public UnitsWindow, public ::testing::WithParamInterface<int> {
  protected:
    EndingWindow() { PutUnits(ThreeUnits()); }

    sigset_t TheSignal() const {
        sigset_t signals;
        sigemptyset(&signals);
        sigaddset(&signals, GetParam());
        return signals;
    }
    /// Has the signal wait, where it would end the program.
    void HoldBack() const {
        const auto signals = TheSignal();
        pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    }
    /// The signal that waits in the window's thread, or -1.
    int Waiting() const {
        const auto signals = TheSignal();
        const timespec atOnce{};
        return sigtimedwait(&signals, nullptr, &atOnce);
    }
};

TEST_P(EndingWindow, ASignalEndsTheProgramBehindWhatBelongsOnTheDisk) {
    int told = 0;
    prepare = [&] {
        program->window.ending.Connect([&] {
            ++told;
            HoldBack();
        });
    };
    Play([&] {
        ASSERT_EQ(InWindow([&] { return kill(getpid(), GetParam()); }), 0);
        WaitUntil("the program is told of its end", [&] { return told > 0; });
        EXPECT_EQ(InWindow([&] { return Waiting(); }), GetParam());
    });
    EXPECT_EQ(told, 1);
}

TEST_P(EndingWindow, AWindowThatIsGoneLeavesSignalsAsTheyAre) {
    Play([] {});
    EXPECT_EQ(std::signal(GetParam(), SIG_DFL), SIG_DFL);
}

TEST_P(EndingWindow, WhoeverHasItIgnoredIsObeyed) {
    std::signal(GetParam(), SIG_IGN);
    Play([&] { EXPECT_EQ(InWindow([&] { return std::signal(GetParam(), SIG_IGN); }), SIG_IGN); });
}

std::string NameOfSignal(const ::testing::TestParamInfo<int>& number) {
    return sigabbrev_np(number.param);
}

INSTANTIATE_TEST_SUITE_P(Each, EndingWindow, ::testing::Values(SIGHUP, SIGINT, SIGTERM), NameOfSignal);

} // namespace
} // namespace zy::test
