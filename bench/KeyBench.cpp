#include <X11/keysym.h>

#include <cstdlib>
#include <iostream>
#include <stdexcept>

#include "BigRules.h"
#include "CalmDesktop.h"
#include "Median.h"
#include "Row.h"
#include "RulesEditor.h"
#include "WindowProgram.h"
#include "support/TemporaryFolder.h"

// key_bench: from a key press to the last stroke of the brush that it causes, in the editor with 32,767
// rules.

namespace zy::bench {
namespace {

constexpr int kPresses = 200;
constexpr double kMedianGoal = 16;
constexpr double kWorstGoal = 33;

double MillisecondsToPaint(Screen& screen, WindowProgram& program, KeySym key) {
    screen.Forget();
    const auto start = Clock::now();
    screen.Press(key);
    return std::chrono::duration<double, std::milli>(program.LastPainted() - start).count();
}

void Measure(Screen& screen, WindowProgram& program, const std::string& work, KeySym key) {
    std::vector<double> times;
    for (int press = 0; press < kPresses; ++press) {
        times.push_back(MillisecondsToPaint(screen, program, key));
    }
    const double median = Median(times);
    const double worst = Quantile(times, 0.99);
    PrintRow(work + " to painted, median in ms", Milliseconds(median / 1000), "", median, kMedianGoal);
    PrintRow(work + " to painted, 99th percentile in ms", Milliseconds(worst / 1000), "", worst, kWorstGoal);
}

/// Presses a key with another one held down, which the program answers by painting.
void PressWith(KeySym held, KeySym key, Screen& screen, WindowProgram& program) {
    screen.PushKey(held);
    screen.Press(key);
    screen.LetGoOfKey(held);
    program.LastPainted();
}

/// The moves must have taken place: the first rule stands behind all that it was moved over.
void RequireMoved(const test::TemporaryFolder& folder) {
    RulesEditor editor(folder.InsidePath());
    const auto rules = editor.Load();
    if (rules->gaRules(kPresses + 1).Code != "001" || rules->gaRules(1).Code != "002") {
        throw std::runtime_error("the keys did not reach the list");
    }
}

void Run() {
    const test::TemporaryFolder folder;
    folder.Put("ZYRules.sys", RulesFileOf(kManyRules));
    ::setenv("ZYSETUP_SYSTEM_DIR", folder.Path().c_str(), 1);

    const CalmDesktop calm;
    Screen screen;
    WindowProgram program(screen, {ZY_GLOBAL, "@RULES"});
    program.SecondsToIdle();

    screen.PushKey(XK_Alt_L);
    Measure(screen, program, "move a rule", XK_Down);
    screen.LetGoOfKey(XK_Alt_L);
    PressWith(XK_Control_L, XK_s, screen, program);
    RequireMoved(folder);

    Measure(screen, program, "page down", XK_Next);
    PressWith(XK_Alt_L, XK_d, screen, program);
    Measure(screen, program, "type a character", XK_a);
}

} // namespace
} // namespace zy::bench

int main() {
    try {
        zy::bench::Run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "key_bench: " << error.what() << '\n';
        return 1;
    }
}
