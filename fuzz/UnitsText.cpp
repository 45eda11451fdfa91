#include <optional>
#include <string>
#include <vector>

#include "Targets.h"
#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "controls/Form.h"
#include "shell/mZYGlobal.h"
#include "units/UnitsControls.h"
#include "units/UnitsFileText.h"

namespace zy::fuzz {
namespace {

using Cells = std::vector<std::string_view>;

constexpr std::string_view kLineEnd = "\r\n";

/// The unit and the description of each line, worked out in the plainest way.
struct PlainReading {
    Cells cells;
    std::size_t badLine = 0; ///< the first one without a second field, counted from 1
    std::string_view tail;
};

/// False when the line has no second field.
bool TakeLine(std::string_view line, Cells& cells) {
    const char separator = Contains(line, '\t') ? '\t' : ',';
    const auto first = line.find(separator);
    if (first == std::string_view::npos) {
        return false;
    }
    const auto rest = line.substr(first + 1);
    cells.push_back(Unquote(rest.substr(0, rest.find(separator))));
    cells.push_back(Unquote(line.substr(0, first)));
    return true;
}

PlainReading ReadPlainly(std::string_view text) {
    PlainReading reading;
    std::size_t line = 0;
    for (auto end = text.find(kLineEnd); end != std::string_view::npos; end = text.find(kLineEnd)) {
        ++line;
        if (!TakeLine(text.substr(0, end), reading.cells)) {
            reading.badLine = line;
            return reading;
        }
        text.remove_prefix(end + kLineEnd.size());
    }
    reading.tail = text;
    return reading;
}

/// Run-time error 9 must be raised, and name this line.
void RequireRefusal(std::string_view input, std::size_t line) {
    try {
        std::vector<TextPlace> places;
        TextParts cells(input, places);
        AppendUnitCells(input, "ZYUNITS.SYS", cells);
    } catch (const RuntimeError& error) {
        const auto place = "ZYUNITS.SYS, line " + std::to_string(line) + ":";
        Require(error.Number() == 9, "a line without a unit is a missing field");
        Require(error.Description().find(place) != std::string::npos, "the line is named");
        return;
    }
    Require(false, "a line without a unit is refused");
}

/// The grid's rows are written as they stand, one a line.
void RequireWritten(const Cells& cells, const GridCells& grid) {
    std::string expected;
    for (std::size_t i = 0; i != cells.size(); i += kUnitsColumns) {
        expected += std::string(cells[i + kUnitDescription]) + ',' + std::string(cells[i + kUnit]) + "\r\n";
    }
    Require(UnitsFileText(grid).Get() == expected, "every row is written as it stands");
}

} // namespace

void UnitsText(std::string_view input) {
    const auto expected = ReadPlainly(input);
    if (expected.badLine != 0) {
        RequireRefusal(input, expected.badLine);
        return;
    }
    Form form("frmUnits");
    Grid grid(&form, "grdUnits", kUnitsColumns);
    UnitsLeftOut leftOut;
    grid.cells.AddRowsOf(Share(std::string(input)), [&](std::string_view text, TextParts& cells) {
        leftOut = AppendUnitCells(text, "ZYUNITS.SYS", cells);
        Require(leftOut.tail == expected.tail, "what stands behind the last line end is left out");
    });
    Require(leftOut.lines * 2 == static_cast<int>(expected.cells.size()), "every line is counted");
    Require(Describe(leftOut).empty() || leftOut.linesCut + leftOut.linesWithCommas > 0 ||
                !leftOut.tail.empty(),
            "a file that is taken whole is not complained about");
    RequireWritten(expected.cells, grid.cells);
}

} // namespace zy::fuzz
