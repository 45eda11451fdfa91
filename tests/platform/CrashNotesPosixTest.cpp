#include "platform/posix/CrashNotes.h"

#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Optional;
using ::testing::StartsWith;

/// A process that a mistake of its own ends, and whoever comes behind it.
class CrashNotes : public ::testing::TestWithParam<int> {
  protected:
    [[noreturn]] static void EndBy(int signal) {
        const rlimit none{.rlim_cur = 0, .rlim_max = 0};
        ::setrlimit(RLIMIT_CORE, &none);
        static LastSteps steps;
        steps.Note("mRules", "EditRule");
        LeaveCrashNotes("1.2.3", steps);
        std::raise(signal);
        std::abort();
    }
    std::string Note() const { return folder.Get("not/there/yet/zysetup/last-crash.txt").value_or(""); }
    std::optional<std::string> Take() const { return TakeCrashNote(Windows1252()); }

    TemporaryFolder folder;
    EnvironmentVariable state{"XDG_STATE_HOME", folder.Path("not/there/yet")};
};

TEST_P(CrashNotes, SayWhatEndedTheProgramAndWhatItDidLast) {
    EXPECT_EXIT(EndBy(GetParam()), ::testing::KilledBySignal(GetParam()), "");
    ASSERT_THAT(Take(), Optional(folder.Path("not/there/yet/zysetup/last-crash.txt")));
    const auto signal = std::to_string(GetParam());
    EXPECT_THAT(Note(), StartsWith("zyGlobal 1.2.3\nSignal " + std::string(2 - signal.size(), '0') + signal +
                                   "\nLast steps:\nmRules EditRule\nStack:\n"));
    EXPECT_THAT(Note(), HasSubstr("posix_tests("));
}

#ifdef __SANITIZE_ADDRESS__
// The checker of memory looks after the others itself, and is left to it.
INSTANTIATE_TEST_SUITE_P(BySignals, CrashNotes, ::testing::Values(SIGILL, SIGABRT));
#else
INSTANTIATE_TEST_SUITE_P(BySignals, CrashNotes, ::testing::Values(SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT));
#endif

using CrashNotesTaken = CrashNotes;

TEST_F(CrashNotesTaken, AreToldOfOnce) {
    EXPECT_EQ(Take(), std::nullopt);
    std::filesystem::create_directories(folder.Path("not/there/yet/zysetup"));
    folder.Put("not/there/yet/zysetup/crash.txt", "a note");
    EXPECT_NE(Take(), std::nullopt);
    EXPECT_EQ(Note(), "a note");
    EXPECT_EQ(Take(), std::nullopt);
    EXPECT_EQ(Note(), "a note") << "it is kept for the support";
}

TEST_F(CrashNotesTaken, GoNowhereThatALinkLeadsTo) {
    std::filesystem::create_directories(folder.Path("not/there/yet/zysetup"));
    folder.Put("another", "mine");
    std::filesystem::create_symlink(folder.Path("another"), folder.Path("not/there/yet/zysetup/crash.txt"));
    EXPECT_EXIT(EndBy(SIGILL), ::testing::KilledBySignal(SIGILL), "");
    EXPECT_THAT(folder.Get("another"), Optional(std::string("mine")));
}

} // namespace
} // namespace zy::test
