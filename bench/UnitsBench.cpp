#include <fstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Peers.h"
#include "SaveDuels.h"
#include "UnitsEditor.h"
#include "Workplace.h"
#include "basics/Int16.h"

// units_bench: loading, checking, pasting and saving the units.

namespace zy::bench {
namespace {

using UnitsPlace = Workplace<UnitsEditor>;

std::vector<std::pair<std::string, std::string>> LinesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<std::pair<std::string, std::string>> lines;
    for (std::string line; std::getline(file, line);) {
        const auto comma = line.find(',');
        lines.emplace_back(line.substr(0, comma), line.substr(comma + 1));
    }
    return lines;
}

/// The simplest loop that keeps both fields of each line.
Peer LoopOverLines(const std::string& path) {
    return {"getline loop that keeps two strings", Working([path] { return LinesOf(path); })};
}

void AddLoad(UnitsPlace& many) {
    Add(Against(
        InFreshProcess(LoopOverLines(many.File())),
        {.work = "load " + many.Records(), .goal = 0.4, .rounds = 41, .ours = InFreshProcess(many.Load())}));
}

/// Checking takes a time that grows as the list does.
void AddCheck(UnitsPlace& many, UnitsPlace& tenth) {
    const auto check = [](UnitsPlace& place) {
        return Working([units = place.Loaded()] { return units->page.units.ValidateUnits(); });
    };
    Add(Against({"check " + tenth.Records(), check(tenth)},
                {.work = "check " + many.Records(), .goal = 12, .rounds = 101, .ours = check(many)}));
}

/// The block that a spreadsheet copies.
std::string Cells(int rows) {
    auto block = UnitsFileOf(rows);
    std::replace(block.begin(), block.end(), ',', '\t');
    return block;
}

void AddPaste(UnitsPlace& many, UnitsEditor& empty) {
    const auto paste = [&empty, block = Cells(kMaxItems)] {
        const auto units = empty.Load();
        auto& grid = units->page.controls.grdUnits;
        const auto seconds = Working([&] { grid.Paste(block); })();
        if (UnitsEditor::Count(*units) != kMaxItems) {
            throw std::runtime_error("not all rows were pasted");
        }
        return seconds;
    };
    Add(Against(InFreshProcess(LoopOverLines(many.File())),
                {.work = "paste " + CountOf(kMaxItems, "rows") + " into the grid's model",
                 .goal = std::nullopt,
                 .rounds = 21,
                 .ours = InFreshProcess(paste)}));
}

int Run(int argumentCount, char** arguments) {
    constexpr int kTenth = kMaxItems / 10;
    UnitsPlace many(Disk(), kMaxItems);
    UnitsPlace tenTenths(Disk(), 10 * kTenth);
    UnitsPlace tenth(Disk(), kTenth);
    UnitsPlace inMemory(MemoryDisk(), kMaxItems);
    const test::TemporaryFolder nothing;
    UnitsEditor empty(nothing.InsidePath());
    AddLoad(many);
    AddPlainSave(inMemory, 6);
    AddCheck(tenTenths, tenth);
    AddPaste(many, empty);
    return RunDuels(argumentCount, arguments);
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    return zy::bench::Run(argumentCount, arguments);
}
