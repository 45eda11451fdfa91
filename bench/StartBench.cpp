#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "BigFile.h"
#include "Median.h"
#include "Row.h"
#include "WindowProgram.h"
#include "basics/Int16.h"
#include "support/TemporaryFolder.h"

// start_bench: from the start of the program to the first moment when, its window painted, it has nothing
// left to do; and the memory that it holds then. Beside it an empty window of the same toolkit, in turn.

namespace zy::bench {
namespace {

using test::TemporaryFolder;

constexpr int kFew = 10;
constexpr int kRounds = 15;
/// Of the instructions. How long they take is another matter: it has goals of its own for each editor.
constexpr double kInstructionsGoal = 1.15;
constexpr double kInstructionsGoalWithMany = 1.5;
/// Under valgrind everything takes some fifty times as long.
constexpr std::chrono::seconds kQuietWhenCounted{3};

struct Editor {
    const char* mode;
    BigFile file;
    double goal; ///< of the time on the wall's clock, and of the processor's
    double goalWithMany;
    double memoryGoal; ///< beyond the empty window, as a multiple of the data
};

/// A list that a screen reader can read costs a little for every row; a grid's rows cost nothing.
constexpr std::array<Editor, 3> kEditors{
    {{.mode = "@RULES", .file = kRulesFile, .goal = 1.15, .goalWithMany = 1.4, .memoryGoal = 2},
     {.mode = "@UNITS", .file = kUnitsFile, .goal = 1, .goalWithMany = 1.15, .memoryGoal = 3},
     {.mode = "@SECURITY", .file = kUsersTable, .goal = 1.1, .goalWithMany = 1.3, .memoryGoal = 3}}};

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

/// Starts the editor and the empty window in turn. The first round is for the machine to get them into memory
/// and is not counted.
Comparison Compare(Screen& screen, const char* mode) {
    Comparison comparison;
    for (int round = 0; round <= kRounds; ++round) {
        if (round == 1) {
            comparison = {};
        }
        Start(screen, {ZY_GLOBAL, mode}, comparison.ours);
        Start(screen, {ZY_EMPTY_WINDOW}, comparison.empty);
    }
    return comparison;
}

void PrintTimes(const std::string& work, const Comparison& comparison, double goal) {
    const auto print = [&](const std::string& what, std::vector<double> Starts::*times) {
        const auto& ours = comparison.ours.*times;
        const auto& empty = comparison.empty.*times;
        PrintRow(work + what, Milliseconds(Median(ours)), Milliseconds(Median(empty)),
                 MedianRatio(ours, empty), goal);
    };
    print(" : empty window", &Starts::seconds);
    print(", processor time : empty window", &Starts::processorSeconds);
}

void PrintMemory(const std::string& work, const Comparison& comparison, std::size_t dataSize, double goal) {
    const double more = comparison.ours.residentBytes - comparison.empty.residentBytes;
    PrintRow(work + " : empty window, + times the data", Mebibytes(comparison.ours.residentBytes),
             Mebibytes(comparison.empty.residentBytes), more / static_cast<double>(dataSize), goal);
}

/// The instructions of a program from its start until it has nothing left to do.
double Instructions(Screen& screen, const std::vector<std::string>& command) {
    const TemporaryFolder folder;
    const auto counts = folder.Path("counts");
    std::vector<std::string> counted{"/usr/bin/valgrind", "--tool=callgrind",
                                     "--callgrind-out-file=" + counts};
    counted.insert(counted.end(), command.begin(), command.end());
    WindowProgram program(screen, counted, kQuietWhenCounted);
    program.SecondsToIdle();
    program.End();
    std::ifstream lines(counts);
    std::string word;
    while (lines >> word && word != "summary:") {
    }
    double instructions = 0;
    lines >> instructions;
    return instructions;
}

/// The most that a start may take, each as a multiple of the empty window's.
struct StartGoals {
    double time;
    double instructions;
};

/// Measures the start of an editor over a file, which stands in the system directory. Returns what was seen.
Comparison StartOver(Screen& screen, const Editor& editor, int count, const StartGoals& goals,
                     double emptyInstructions) {
    const auto work = "start with " + CountOf(count, editor.file.records);
    auto comparison = Compare(screen, editor.mode);
    PrintTimes(work, comparison, goals.time);
    const double ours = Instructions(screen, {ZY_GLOBAL, editor.mode});
    PrintRow(work + ", instructions : empty window", Millions(ours), Millions(emptyInstructions),
             ours / emptyInstructions, goals.instructions);
    return comparison;
}

void Measure(Screen& screen, const Editor& editor, double emptyInstructions) {
    const TemporaryFolder folder;
    ::setenv("ZYSETUP_SYSTEM_DIR", folder.Path().c_str(), 1);
    ::setenv("XDG_STATE_HOME", folder.Path().c_str(), 1);
    RequireCalmDesktop();
    folder.Put(editor.file.name, editor.file.text(kFew));
    StartOver(screen, editor, kFew, {.time = editor.goal, .instructions = kInstructionsGoal},
              emptyInstructions);

    const auto bytes = editor.file.text(kMaxItems);
    folder.Put(editor.file.name, bytes);
    const auto comparison = StartOver(
        screen, editor, kMaxItems, {.time = editor.goalWithMany, .instructions = kInstructionsGoalWithMany},
        emptyInstructions);
    PrintMemory("memory with " + CountOf(kMaxItems, editor.file.records), comparison, bytes.size(),
                editor.memoryGoal);
}

void Run() {
    Screen screen;
    // The first program on a display looks for the display's ways to draw in three dimensions, for a third of
    // an empty window's instructions.
    Instructions(screen, {ZY_EMPTY_WINDOW});
    const double emptyInstructions = Instructions(screen, {ZY_EMPTY_WINDOW});
    for (const auto& editor : kEditors) {
        Measure(screen, editor, emptyInstructions);
    }
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
