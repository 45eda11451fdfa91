#include <X11/keysym.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <thread>

#include "BigFile.h"
#include "Median.h"
#include "Row.h"
#include "WindowProgram.h"
#include "basics/Int16.h"
#include "support/TemporaryFolder.h"

// key_bench: from a key press to the last stroke of the brush that it causes, in an editor with 32,767
// records.

namespace zy::bench {
namespace {

constexpr int kPresses = 200;
/// One frame of a screen that shows sixty a second: before that nobody sees anything.
constexpr double kMedianGoal = 16.7;
constexpr double kWorstGoal = 33;
constexpr std::chrono::milliseconds kUnderlined{500};

/// A key, and one that is held down meanwhile.
struct Stroke {
    KeySym key;
    KeySym held = NoSymbol;
};

struct Place {
    int x;
    int y;
};

/// An editor whose records can be moved by Alt with an arrow.
struct Editor {
    const char* mode;
    BigFile file;
    std::optional<Place> first; ///< of the first record on the screen, where the list has not got the focus
    std::vector<Stroke> toText; ///< lead from the list to where text is typed
};

/// An editor in its window, and the user in front of it.
class EditorWindow {
  public:
    explicit EditorWindow(const Editor& editor) : editor_(editor) {
        folder_.Put(editor.file.name, editor.file.text(kMaxItems));
        ::setenv("ZYSETUP_SYSTEM_DIR", folder_.Path().c_str(), 1);
        ::setenv("XDG_STATE_HOME", folder_.Path().c_str(), 1);
        RequireCalmDesktop();
        program_.emplace(screen_, std::vector<std::string>{ZY_GLOBAL, editor.mode});
        program_->SecondsToIdle();
    }

    void Click(const Place& place) {
        screen_.Forget();
        screen_.Click(place.x, place.y);
        program_->LastPainted();
    }

    /// Presses keys one by one, each of which the program answers by painting.
    void Press(const std::vector<Stroke>& strokes) {
        for (const auto& stroke : strokes) {
            WithHeld(stroke.held, [&] { MillisecondsToPaint(stroke.key); });
        }
    }

    void Measure(const std::string& work, const Stroke& stroke) {
        std::vector<double> times;
        WithHeld(stroke.held, [&] {
            for (int press = 0; press < kPresses; ++press) {
                times.push_back(MillisecondsToPaint(stroke.key));
            }
        });
        Print(work + ", " + CountOf(kMaxItems, editor_.file.records), times);
    }

    /// The moves must have taken place: the first record stands behind all that it was moved over.
    void RequireMoved() const {
        auto wanted = editor_.file.text(kMaxItems);
        const auto endOf = [&](int records) {
            return wanted.begin() + static_cast<std::ptrdiff_t>(editor_.file.text(records).size());
        };
        std::rotate(wanted.begin(), endOf(1), endOf(kPresses + 1));
        if (folder_.Get(editor_.file.name) != wanted) {
            throw std::runtime_error("the keys did not reach the " + std::string(editor_.file.records));
        }
    }

  private:
    double MillisecondsToPaint(KeySym key) {
        screen_.Forget();
        const auto start = Clock::now();
        screen_.Press(key);
        return std::chrono::duration<double, std::milli>(program_->LastPainted() - start).count();
    }

    template <typename Action>
    void WithHeld(KeySym held, const Action& action) {
        if (held == NoSymbol) {
            action();
            return;
        }
        screen_.PushKey(held);
        // The toolkit underlines the access keys of the whole window a third of a second after Alt went down:
        // no key press waits for that.
        std::this_thread::sleep_for(kUnderlined);
        action();
        screen_.LetGoOfKey(held);
    }

    static void Print(const std::string& work, const std::vector<double>& times) {
        const double median = Median(times);
        const double worst = Quantile(times, 0.99);
        PrintRow(work + ", to painted, median in ms", Milliseconds(median / 1000), "", median, kMedianGoal);
        PrintRow(work + ", to painted, 99th percentile in ms", Milliseconds(worst / 1000), "", worst,
                 kWorstGoal);
    }

    const Editor& editor_;
    test::TemporaryFolder folder_;
    Screen screen_;
    std::optional<WindowProgram> program_;
};

void Measure(const Editor& editor) {
    EditorWindow window(editor);
    if (editor.first) {
        window.Click(*editor.first);
    }
    window.Measure("move by Alt+Down", {.key = XK_Down, .held = XK_Alt_L});
    window.Press({{.key = XK_s, .held = XK_Control_L}});
    window.RequireMoved();
    // Of a rule, its fields and its picture are painted, too.
    window.Measure("choose by Down", {.key = XK_Down});
    window.Measure("page down", {.key = XK_Next});
    window.Press(editor.toText);
    window.Measure("type a character", {.key = XK_a});
}

void Run() {
    const std::array<Editor, 2> editors{
        {{.mode = "@RULES",
          .file = kRulesFile,
          .first = std::nullopt,
          .toText = {{.key = XK_d, .held = XK_Alt_L}}},
         {.mode = "@UNITS", .file = kUnitsFile, .first = Place{465, 389}, .toText = {}}}};
    for (const auto& editor : editors) {
        Measure(editor);
    }
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
