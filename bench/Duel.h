#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <optional>
#include <string>
#include <type_traits>

namespace zy::bench {

/// Work that is done anew at each call, which returns the seconds that it took.
using Seconds = std::function<double()>;

/// Somebody else's work, of about the same use.
struct Peer {
    std::string name;
    Seconds work;
};

/// Our work and a peer's, done in turn. Their ratio is taken round by
/// round, so that what slows the machine down for a while slows both.
struct Duel {
    std::string work;
    std::string peer = {};
    std::optional<double> goal; ///< the most that our time may be, as a multiple of the peer's
    int rounds;
    Seconds ours;
    Seconds theirs = {};
};

/// A duel with a peer.
inline Duel Against(const Peer& peer, Duel duel) {
    duel.peer = peer.name;
    duel.theirs = peer.work;
    return duel;
}

/// Adds a duel to those that RunDuels runs.
void Add(Duel duel);
/// Runs the duels and prints a row for each, of medians. The arguments are
/// Google Benchmark's. Returns the program's exit status.
int RunDuels(int argumentCount, char** arguments);

/// The time that this thread has been at work, and the time of the clock on the
/// wall.
double ThreadSeconds();
double WallSeconds();

/// The seconds that the work takes by a clock. What it returns is destroyed
/// when the time has been taken.
template <typename Work>
double SecondsOf(double (*clock)(), const Work& work) {
    const double start = clock();
    if constexpr (std::is_void_v<std::invoke_result_t<const Work&>>) {
        work();
        return clock() - start;
    } else {
        auto result = work();
        benchmark::DoNotOptimize(result);
        benchmark::ClobberMemory();
        return clock() - start;
    }
}

/// For work that waits for nothing: who else uses the machine does not count.
template <typename Work>
double WorkingSeconds(const Work& work) {
    return SecondsOf(ThreadSeconds, work);
}
template <typename Work>
Seconds Working(const Work& work) {
    return [work] { return WorkingSeconds(work); };
}

/// For work that waits for the disk.
template <typename Work>
Seconds Waiting(const Work& work) {
    return [work] { return SecondsOf(WallSeconds, work); };
}

/// The same work, each time in a process of its own, as a program finds itself
/// at its start: with no memory used and given back before.
Seconds InFreshProcess(const Seconds& work);
Peer InFreshProcess(const Peer& peer);

} // namespace zy::bench
