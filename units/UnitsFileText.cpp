#include "units/UnitsFileText.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "shell/Utilities.h"
#include "units/UnitsControls.h"

namespace zy {
namespace {

/// The comma and the line end.
constexpr std::size_t kSeparators = 3;

/// Copies a text to a place and returns where it ends there.
char* Put(std::string_view text, char* at) {
    return std::copy(text.begin(), text.end(), at);
}

/// The first place of a character; the end when there is none.
const char* Find(char character, const char* begin, const char* end) {
    const auto length = static_cast<std::size_t>(end - begin);
    const void* found = length == 0 ? nullptr : std::memchr(begin, character, length);
    return found == nullptr ? end : static_cast<const char*>(found);
}

/// Where a character stands, looked for further on only when the last place found has been passed.
class Places {
  public:
    Places(char character, const char* begin, const char* end)
        : character_(character), end_(end), place_(Find(character, begin, end)) {}

    /// The first place at or behind a position, which never goes back; the end when there is none.
    const char* From(const char* position) {
        if (place_ < position) {
            place_ = Find(character_, position, end_);
        }
        return place_;
    }

  private:
    char character_;
    const char* end_;
    const char* place_;
};

/// Where the CR LF of the line that begins here stands; the end when there is none.
inline const char* FindLineEnd(const char* begin, const char* end) {
    const char* lineFeed = Find('\n', begin, end);
    while (lineFeed != end && (lineFeed == begin || lineFeed[-1] != '\r')) {
        lineFeed = Find('\n', lineFeed + 1, end);
    }
    return lineFeed == end ? end : lineFeed - 1;
}

inline std::string_view FieldBetween(const char* begin, const char* end) {
    const std::string_view field(begin, static_cast<std::size_t>(end - begin));
    // Most fields have nothing to take off.
    const bool clean = field.empty() || (field.front() != '"' && field.front() != ' ' && field.back() != ' ');
    return clean ? field : Unquote(field);
}

/// Makes room for what a text of ordinary lines holds, so that the cells need not move.
void ReserveFor(std::string_view text, std::vector<std::string_view>& cells) {
    constexpr std::size_t kOrdinaryLine = 16;
    constexpr std::size_t kMostLines = kMaxItems;
    cells.reserve(cells.size() + 2 * std::min(text.size() / kOrdinaryLine, kMostLines));
}

/// Ends the program; the place is told so that a person can repair the file.
[[noreturn]] void RaiseUnitMissing(std::string_view path, int line) {
    throw RuntimeError(9, "Subscript out of range\n\n" + std::string(path) + ", line " +
                              std::to_string(line) + ": no comma or TAB between description and unit");
}

} // namespace

void AppendUnitCells(std::string_view text, std::string_view path, std::vector<std::string_view>& cells) {
    ReserveFor(text, cells);
    const char* begin = text.data();
    const char* const textEnd = begin + text.size();
    Places tabs('\t', begin, textEnd);
    Places commas(',', begin, textEnd);
    for (int line = 1;; ++line) {
        const char* const end = FindLineEnd(begin, textEnd);
        if (end == textEnd) {
            return;
        }
        if (line > kMaxItems) {
            RaiseOverflow();
        }
        auto& separators = tabs.From(begin) < end ? tabs : commas;
        const char* const first = separators.From(begin);
        if (first >= end) {
            RaiseUnitMissing(path, line);
        }
        const char* const second = separators.From(first + 1);
        cells.push_back(FieldBetween(first + 1, second < end ? second : end));
        cells.push_back(FieldBetween(begin, first));
        begin = end + 2;
    }
}

UnitsFileText::UnitsFileText(const Grid& grid) {
    const Int16 last = grid.Rows() - 1;
    for (int row = 1; row <= last; ++row) {
        const auto cells = grid.RowTexts(row);
        size_ += cells[kUnitDescription].size() + cells[kUnit].size() + kSeparators;
    }
    text_ = std::make_unique_for_overwrite<char[]>(size_);
    char* at = text_.get();
    for (int row = 1; row <= last; ++row) {
        const auto cells = grid.RowTexts(row);
        at = Put(cells[kUnitDescription], at);
        *at++ = ',';
        at = Put(cells[kUnit], at);
        *at++ = '\r';
        *at++ = '\n';
    }
}

} // namespace zy
