#include <fstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Peers.h"
#include "SaveDuels.h"
#include "UnitsEditor.h"
#include "Workplace.h"
#include "basics/Int16.h"
#include "units/UnitsFileText.h"

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
        {.work = "load " + many.Records(), .goal = 0.35, .rounds = 41, .ours = InFreshProcess(many.Load())}));
}

/// Checking takes a time that grows as the list does.
void AddCheck(UnitsPlace& many, UnitsPlace& tenth) {
    const auto check = [](UnitsPlace& place) {
        return Working([units = place.Loaded()] { return units->page.units.ValidateUnits(); });
    };
    Add(Against({"check " + tenth.Records(), check(tenth)},
                {.work = "check " + many.Records(), .goal = 10.5, .rounds = 101, .ours = check(many)}));
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

/// What somebody did to a loaded list is taken back.
template <typename Deed>
Seconds UndoOf(UnitsPlace& many, Deed deed) {
    return InFreshProcess([&many, deed] {
        const auto units = many.Loaded();
        auto& grid = units->page.controls.grdUnits;
        const std::string before(UnitsFileText(grid.cells).Get());
        deed(grid);
        const auto seconds = Working([&] { units->page.Steps().Undo(); })();
        if (UnitsFileText(grid.cells).Get() != before) {
            throw std::runtime_error("the units are not as they were");
        }
        return seconds;
    });
}

/// Both are far below what a person notices: taking back never takes longer than reading the list.
void AddUndo(UnitsPlace& many) {
    const auto peer = InFreshProcess(LoopOverLines(many.File()));
    Add(Against(peer, {.work = "undo of a paste over " + many.Records(),
                       .goal = 1,
                       .rounds = 21,
                       .ours = UndoOf(many, [block = Cells(kMaxItems)](Grid& grid) {
                           grid.Pick(1, 0);
                           grid.Paste(block);
                       })}));
    Add(Against(peer, {.work = "undo of an edit among " + many.Records(),
                       .goal = 0.1,
                       .rounds = 21,
                       .ours = UndoOf(many, [](Grid& grid) {
                           grid.Pick(kMaxItems / 2, 1);
                           grid.TypeOver("x");
                           grid.editor.Commit();
                       })}));
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
    AddUndo(many);
    return RunDuels(argumentCount, arguments);
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    return zy::bench::Run(argumentCount, arguments);
}
