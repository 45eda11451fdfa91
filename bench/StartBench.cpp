#include <cstdlib>
#include <iostream>

#include "BigRules.h"
#include "CalmDesktop.h"
#include "Median.h"
#include "Row.h"
#include "WindowProgram.h"
#include "support/TemporaryFolder.h"

// start_bench: from the start of the program to the first moment when, its window painted, it has nothing
// left to do; and the memory that it holds then. Beside it an empty window of the same toolkit, in turn.

namespace zy::bench {
namespace {

using test::TemporaryFolder;

constexpr int kFewRules = 10;
constexpr int kRounds = 15;

/// What was seen of a program that was started over and over.
struct Starts {
    std::vector<double> seconds;
    std::vector<double> processorSeconds;
    double residentBytes = 0;
};

void Start(Screen& screen, const std::vector<std::string>& command, Starts& starts) {
    WindowProgram program(screen, command);
    starts.seconds.push_back(program.SecondsToIdle());
    starts.processorSeconds.push_back(program.ProcessorSeconds());
    starts.residentBytes = program.ResidentBytes();
}

struct Comparison {
    Starts ours;
    Starts empty;
};

/// Starts the editor over a folder and the empty window in turn. The first round is for the machine to get
/// them into memory and is not counted.
Comparison Compare(Screen& screen, const TemporaryFolder& folder) {
    ::setenv("ZYSETUP_SYSTEM_DIR", folder.Path().c_str(), 1);
    Comparison comparison;
    for (int round = 0; round <= kRounds; ++round) {
        if (round == 1) {
            comparison = {};
        }
        Start(screen, {ZY_GLOBAL, "@RULES"}, comparison.ours);
        Start(screen, {ZY_EMPTY_WINDOW}, comparison.empty);
    }
    return comparison;
}

void PrintTimes(const std::string& work, const Comparison& comparison, double goal) {
    const auto print = [&](const std::string& what, std::vector<double> Starts::*times,
                           std::optional<double> limit) {
        const auto& ours = comparison.ours.*times;
        const auto& empty = comparison.empty.*times;
        PrintRow(work + what, Milliseconds(Median(ours)), Milliseconds(Median(empty)),
                 MedianRatio(ours, empty), limit);
    };
    print(" : empty window", &Starts::seconds, goal);
    print(", processor time : empty window", &Starts::processorSeconds, std::nullopt);
}

void PrintMemory(const std::string& work, const Comparison& comparison, std::size_t dataSize) {
    const double more = comparison.ours.residentBytes - comparison.empty.residentBytes;
    PrintRow(work + " : empty window, + times the data", Mebibytes(comparison.ours.residentBytes),
             Mebibytes(comparison.empty.residentBytes), more / static_cast<double>(dataSize), 3);
}

void Run() {
    const CalmDesktop calm;
    Screen screen;
    const TemporaryFolder few;
    few.Put("ZYRules.sys", RulesFileOf(kFewRules));
    PrintTimes("start with 10 rules", Compare(screen, few), 1.15);

    const TemporaryFolder many;
    const auto bytes = RulesFileOf(kManyRules);
    many.Put("ZYRules.sys", bytes);
    const auto comparison = Compare(screen, many);
    PrintTimes("start with 32,767 rules", comparison, 1.7);
    PrintMemory("memory with 32,767 rules", comparison, bytes.size());
}

} // namespace
} // namespace zy::bench

int main() {
    try {
        zy::bench::Run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "start_bench: " << error.what() << '\n';
        return 1;
    }
}
