#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "BigRules.h"
#include "Row.h"
#include "RulesEditor.h"
#include "platform/posix/PathText.h"
#include "rules/RulesFileText.h"

// rules_work make|load|text folder: one piece of work on a rules file of 32,767 rules, in a process of its
// own, so that its memory and its instructions are those of that work alone.

namespace zy::bench {
namespace {

constexpr double kPeakGoal = 2.5;

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

void Make(const std::filesystem::path& file, int rules) {
    std::ofstream(file, std::ios::binary) << RulesFileOf(rules);
}

void Load(const std::filesystem::path& file, bool makeText) {
    RulesEditor editor(PathText(Windows1252()).PathToInside(file.parent_path().string()));
    const double before = MemoryStatus("VmRSS:");
    const auto rules = editor.Load();
    const double peak = MemoryStatus("VmHWM:") - before;
    if (makeText && RulesFileText(rules->gaRules).size() != std::filesystem::file_size(file)) {
        throw std::runtime_error("the text is not that of the file");
    }
    const auto size = static_cast<double>(std::filesystem::file_size(file));
    PrintRow("peak memory, load 32,767 rules : the file's size", Mebibytes(peak), Mebibytes(size),
             peak / size, kPeakGoal);
}

int Do(const std::vector<std::string>& arguments) {
    const auto is = [&](std::string_view work, std::size_t count) {
        return arguments.size() == count && arguments.front() == work;
    };
    const auto file = std::filesystem::path(arguments.size() > 1 ? arguments[1] : "") / "ZYRules.sys";
    if (is("make", 3)) {
        Make(file, std::stoi(arguments[2]));
    } else if (is("load", 2) || is("text", 2)) {
        Load(file, is("text", 2));
    } else {
        std::cerr << "rules_work make folder rules, or load|text folder\n";
        return 1;
    }
    return 0;
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    return zy::bench::Do({arguments + 1, arguments + argumentCount});
}
