#include "units/UnitsFileText.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "shell/StatusTexts.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

/// The comma and the line end.
constexpr std::size_t kSeparators = 3;

/// Where the CR LF of the line that begins here ends; the end of the text when there is none.
inline const char* FindLineFeed(const char* begin, const char* end, Marks& lineFeeds) {
    const char* lineFeed = lineFeeds.From(begin);
    while (lineFeed != end && (lineFeed == begin || lineFeed[-1] != '\r')) {
        lineFeed = lineFeeds.From(lineFeed + 1);
    }
    return lineFeed;
}

/// Makes room for what a text of ordinary lines holds, so that the cells need not move.
void ReserveFor(std::string_view text, TextParts& cells) {
    constexpr std::size_t kOrdinaryLine = 16;
    constexpr std::size_t kMostLines = kMaxItems;
    cells.Reserve(2 * std::min(text.size() / kOrdinaryLine, kMostLines));
}

/// Ends the program; its error names the place, so that the file can be repaired.
[[noreturn]] void RaiseUnitMissing(std::string_view path, int line) {
    throw RuntimeError(kSubscriptOutOfRange, "Subscript out of range\n\n" + std::string(path) + ", line " +
                                                 std::to_string(line) +
                                                 ": no comma or TAB between description and unit");
}

/// Whether something stands there beside separators, as spreadsheets leave them behind short rows.
bool IsText(std::string_view rest) {
    return rest.find_first_not_of(",\t \"") != std::string_view::npos;
}

bool HasComma(std::string_view description, std::string_view unit) {
    return Contains(description, ',') || Contains(unit, ',');
}

/// Counts the lines that are not blank, whatever they end in.
std::size_t CountLines(std::string_view text) {
    constexpr std::string_view kLineEnds = "\r\n";
    std::size_t lines = 0;
    while (!text.empty()) {
        const auto end = std::min(text.find_first_of(kLineEnds), text.size());
        lines += Trim(text.substr(0, end)).empty() ? 0U : 1U;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string DescribeTail(const UnitsLeftOut& leftOut) {
    const auto lines = CountLines(leftOut.tail);
    if (lines == 0) {
        return {};
    }
    if (leftOut.lines == 0) {
        return "no line of the file ends in CR LF, saving drops its " + Counted(lines, "line");
    }
    return lines == 1 ? "text behind the last line end, saving drops it"
                      : "text behind the last CR LF, saving drops its " + Counted(lines, "line");
}

std::string InLines(std::string_view what, int lines, std::string_view then) {
    return lines == 0
               ? std::string()
               : std::string(what) + Counted(static_cast<std::size_t>(lines), "line") + std::string(then);
}

} // namespace

UnitsLeftOut AppendUnitCells(std::string_view text, std::string_view path, TextParts& cells) {
    UnitsLeftOut leftOut;
    ReserveFor(text, cells);
    const char* begin = text.data();
    const char* const textEnd = begin + text.size();
    Marks lineFeeds(text, '\n');
    Separators separators(text);
    for (int lines = 0;; ++lines) {
        const char* const lineFeed = FindLineFeed(begin, textEnd, lineFeeds);
        if (lineFeed == textEnd) {
            leftOut.lines = lines;
            leftOut.tail = {begin, static_cast<std::size_t>(textEnd - begin)};
            return leftOut;
        }
        if (lines == kMaxItems) {
            RaiseOverflow();
        }
        auto fields = separators.FieldsOf({begin, static_cast<std::size_t>(lineFeed - 1 - begin)});
        const auto description = fields.Next();
        if (fields.AtEnd()) {
            RaiseUnitMissing(path, lines + 1);
        }
        const auto unit = fields.Next();
        cells.Append(unit);
        cells.Append(description);
        if (!fields.AtEnd() && IsText(fields.Rest())) {
            ++leftOut.linesCut;
        }
        if (fields.Separator() == Separators::kTab && HasComma(description, unit)) {
            ++leftOut.linesWithCommas;
        }
        begin = lineFeed + 1;
    }
}

std::string Describe(const UnitsLeftOut& leftOut) {
    std::string text = DescribeTail(leftOut);
    Join(text, "; ", InLines("fields beyond the second in ", leftOut.linesCut, ", saving drops them"));
    Join(text, "; ",
         InLines("commas inside fields in ", leftOut.linesWithCommas, ", saving makes separators of them"));
    return text;
}

std::string DescribeMisreading(const GridCells& grid, int row) {
    const auto description = grid.Text(row, kUnitDescription);
    const auto unit = grid.Text(row, kUnit);
    if (!HasComma(description, unit)) {
        return {};
    }
    const std::string line = std::string(description) + ',' + std::string(unit);
    const auto fields = SplitFields(line);
    return "row " + std::to_string(row) + ": its comma makes it unit " + Quoted(fields.Text(2)) + ", " +
           Quoted(fields.Text(1)) + " at the next start";
}

UnitsFileText::UnitsFileText(const GridCells& grid) {
    const int last = ToInt16(grid.Rows() - 1);
    // Room for the header too, which costs less than leaving it out.
    text_ = std::make_unique_for_overwrite<char[]>(grid.TextsSize() +
                                                   static_cast<std::size_t>(grid.Rows()) * kSeparators);
    const auto cells = grid.Read();
    char* at = text_.get();
    for (int row = 1; row <= last; ++row) {
        at = Put(cells.Text(row, kUnitDescription), at);
        *at++ = ',';
        at = Put(cells.Text(row, kUnit), at);
        *at++ = '\r';
        *at++ = '\n';
    }
    size_ = static_cast<std::size_t>(at - text_.get());
}

} // namespace zy
