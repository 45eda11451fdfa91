#include "shell/StatusTexts.h"

#include "platform/TimeDigits.h"

namespace zy {
namespace {

std::string CountedIfAny(int count, std::string_view noun) {
    return count == 0 ? std::string() : Counted(static_cast<std::size_t>(count), noun);
}

std::string DescribeSize(const PasteReport& paste) {
    auto text = CountedIfAny(paste.rowsLeftOut, "row");
    Join(text, " and ", CountedIfAny(paste.columnsLeftOut, "column"));
    return text.empty() ? text : text + " left out";
}

std::string DescribeRefused(const PasteReport& paste, const GridCells& grid) {
    if (paste.cellsRefused == 0) {
        return {};
    }
    const auto& [row, column] = paste.firstRefused;
    return CountedIfAny(paste.cellsRefused, "cell") +
           (paste.cellsRefused == 1 ? " refused: row " : " refused, the first: row ") + std::to_string(row) +
           ", " + std::string(grid.Text(0, column)) + " cannot be " + Quoted(paste.textRefused);
}

} // namespace

std::string Failure(std::string_view what, FileError error) {
    return std::string(what).append(": ").append(Describe(error));
}

std::string TimeText(std::chrono::local_seconds time, std::chrono::year_month_day today) {
    constexpr std::size_t kClock = 5; // without the seconds
    const auto text = PlainTime(time);
    const auto blank = text.find(' ');
    const auto clock = text.substr(blank + 1, kClock);
    const std::chrono::year_month_day date(std::chrono::floor<std::chrono::days>(time));
    return date == today ? clock : text.substr(0, blank) + ", " + clock;
}

std::string Counted(std::size_t count, std::string_view noun) {
    return std::to_string(count) + " " + std::string(noun) + (count == 1 ? "" : "s");
}

std::string Quoted(std::string_view text) {
    constexpr std::size_t kMost = 40;
    const std::string_view more = text.size() > kMost ? "..." : "";
    return "\"" + std::string(text.substr(0, kMost)).append(more) + "\"";
}

void Join(std::string& text, std::string_view separator, std::string_view part) {
    if (!text.empty() && !part.empty()) {
        text += separator;
    }
    text += part;
}

std::string DescribeLeftOut(const PasteReport& paste, const GridCells& grid) {
    if (paste.tooLong) {
        return "Not pasted: the list would get longer than it can be";
    }
    auto text = DescribeSize(paste);
    Join(text, "; ", DescribeRefused(paste, grid));
    return text;
}

void AddHint(StatusBar& bar, std::string_view hint) {
    auto text = bar.Text();
    Join(text, "   -   ", hint);
    bar.SetText(text);
}

} // namespace zy
