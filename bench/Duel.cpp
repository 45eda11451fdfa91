#include "Duel.h"

#include <sys/wait.h>
#include <time.h>

#include <array>
#include <chrono>
#include <deque>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "Median.h"
#include "Row.h"
#include "platform/posix/FileDescriptor.h"

namespace zy::bench {
namespace {

std::deque<Duel>& Duels() {
    static std::deque<Duel> duels;
    return duels;
}

void Fight(benchmark::State& state, const Duel& duel) {
    std::vector<double> ours;
    std::vector<double> theirs;
    duel.ours();
    duel.theirs();
    for ([[maybe_unused]] auto round : state) {
        ours.push_back(duel.ours());
        theirs.push_back(duel.theirs());
        state.SetIterationTime(ours.back());
    }
    state.counters["ours"] = Median(ours);
    state.counters["theirs"] = Median(theirs);
    state.counters["ratio"] = MedianRatio(ours, theirs);
}

/// Prints the duels as rows of the table.
class RowReporter final : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const auto& run : runs) {
            const auto& duel = Duels()[static_cast<std::size_t>(run.family_index)];
            PrintRow(duel.work + " : " + duel.peer, Milliseconds(run.counters.at("ours")),
                     Milliseconds(run.counters.at("theirs")), run.counters.at("ratio"), duel.goal);
        }
    }
};

/// Measures in a process of its own, and takes the figure over.
double SecondsInChild(const Seconds& work) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe");
    }
    const FileDescriptor reader(ends[0]);
    const FileDescriptor writer(ends[1]);
    double seconds = 0;
    const pid_t child = ::fork();
    if (child == 0) {
        seconds = work();
        ::_exit(::write(writer.Number(), &seconds, sizeof(seconds)) == sizeof(seconds) ? 0 : 1);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || status != 0 ||
        ::read(reader.Number(), &seconds, sizeof(seconds)) != sizeof(seconds)) {
        throw std::runtime_error("a measurement in a process of its own failed");
    }
    return seconds;
}

} // namespace

void Add(Duel duel) {
    const Duel& added = Duels().emplace_back(std::move(duel));
    benchmark::RegisterBenchmark((added.work + " : " + added.peer).c_str(), Fight, added)
        ->Iterations(added.rounds)
        ->UseManualTime();
}

int RunDuels(int argumentCount, char** arguments) {
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments)) {
        return 1;
    }
    RowReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}

double ThreadSeconds() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double WallSeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

Seconds InFreshProcess(const Seconds& work) {
    return [work] { return SecondsInChild(work); };
}

Peer InFreshProcess(const Peer& peer) {
    return {.name = peer.name, .work = InFreshProcess(peer.work)};
}

} // namespace zy::bench
