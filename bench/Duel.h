#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zy::bench {

/// Our work and a peer's, done in turn, each returning the seconds it took. Their ratio is taken round by
/// round, so that what slows the machine down for a while slows both.
struct Duel {
    std::string work;
    std::string peer;
    std::optional<double> goal; ///< the most that our time may be, as a multiple of the peer's
    int rounds;
    std::function<double()> ours;
    std::function<double()> theirs;
};

/// Adds a duel to those that RunDuels runs.
void Add(Duel duel);
/// Runs the duels and prints a row for each, of medians. The arguments are Google Benchmark's. Returns the
/// program's exit status.
int RunDuels(int argumentCount, char** arguments);

/// The time that this thread has been at work, and the time of the clock on the wall.
double ThreadSeconds();
double WallSeconds();

/// The seconds that the work takes by a clock. What it returns is destroyed when the time has been taken.
template <typename Work>
double SecondsOf(double (*clock)(), const Work& work) {
    const double start = clock();
    auto result = work();
    benchmark::DoNotOptimize(result);
    benchmark::ClobberMemory();
    return clock() - start;
}

/// For work that waits for nothing: who else uses the machine does not count.
template <typename Work>
double WorkingSeconds(const Work& work) {
    return SecondsOf(ThreadSeconds, work);
}

/// For work that waits for the disk.
template <typename Work>
double WaitingSeconds(const Work& work) {
    return SecondsOf(WallSeconds, work);
}

/// The seconds of a measurement made in a process of its own, as a program finds itself at its start: with no
/// memory used and given back before.
double InFreshProcess(const std::function<double()>& measure);

} // namespace zy::bench
