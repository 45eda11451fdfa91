#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "BigFile.h"
#include "IniEditor.h"
#include "Row.h"
#include "RulesEditor.h"
#include "UnitsEditor.h"
#include "platform/posix/PathText.h"

// file_work rules|units|ini make|load|save folder count: one piece of work on a big file, in a process of
// its own, so that its memory and its instructions are those of that work alone.

namespace zy::bench {
namespace {

/// A line of this process's status, in bytes: "VmRSS:", the memory held now, or "VmHWM:", the most held so
/// far.
double MemoryStatus(std::string_view wanted) {
    std::ifstream status("/proc/self/status");
    std::string name;
    double kibibytes = 0;
    while (status >> name && name != wanted) {
        status.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    status >> kibibytes;
    return kibibytes * 1024;
}

/// What the program is called with.
struct Order {
    std::string step;
    std::filesystem::path folder;
    int count;
};

void Make(const BigFile& big, const Order& order) {
    std::ofstream(order.folder / big.name, std::ios::binary) << big.text(order.count);
}

template <typename Editor>
auto LoadAll(Editor& editor, int count) {
    auto loaded = editor.Load();
    if (Editor::Count(*loaded) != count) {
        throw std::runtime_error("not all " + CountOf(count, Editor::kFile.records) + " were loaded");
    }
    return loaded;
}

/// Prints the most memory that loading takes.
template <typename Editor>
void Load(Editor& editor, const Order& order, std::optional<double> goal) {
    const double before = MemoryStatus("VmRSS:");
    const auto loaded = LoadAll(editor, order.count);
    const double peak = MemoryStatus("VmHWM:") - before;
    const auto size = static_cast<double>(std::filesystem::file_size(order.folder / Editor::kFile.name));
    PrintRow("peak memory, load " + CountOf(order.count, Editor::kFile.records) + " : the file's size",
             Mebibytes(peak), Mebibytes(size), peak / size, goal);
}

template <typename Editor>
void Save(Editor& editor, int count) {
    editor.Save(*LoadAll(editor, count));
    LoadAll(editor, count); // what was saved is all there
}

template <typename Editor>
void Do(const Order& order, std::optional<double> peakGoal) {
    Editor editor(PathText(Windows1252()).PathToInside(order.folder.string()));
    if (order.step == "make") {
        Make(Editor::kFile, order);
    } else if (order.step == "load") {
        Load(editor, order, peakGoal);
    } else if (order.step == "save") {
        Save(editor, order.count);
    } else {
        throw std::runtime_error("there is no step " + order.step);
    }
}

void Do(const std::vector<std::string>& arguments) {
    constexpr double kSettingsPeak = 2.5;
    if (arguments.size() != 4) {
        throw std::runtime_error("rules|units|ini make|load|save folder count");
    }
    const Order order{.step = arguments[1],
                      .folder = std::filesystem::absolute(arguments[2]),
                      .count = std::stoi(arguments[3])};
    if (arguments[0] == "rules") {
        Do<RulesEditor>(order, kSettingsPeak);
    } else if (arguments[0] == "ini") {
        Do<IniEditor>(order, kSettingsPeak);
    } else if (arguments[0] == "units") {
        Do<UnitsEditor>(order, std::nullopt);
    } else {
        throw std::runtime_error("there are no files of " + arguments[0]);
    }
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    try {
        zy::bench::Do({arguments + 1, arguments + argumentCount});
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "file_work: " << error.what() << '\n';
        return 1;
    }
}
