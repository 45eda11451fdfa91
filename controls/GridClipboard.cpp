#include <algorithm>

#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "controls/Grid.h"

namespace zy {
namespace {

constexpr auto kNone = std::string_view::npos;

/// Takes the text up to the separator off the front.
std::string_view TakeUpTo(std::string_view& text, char separator) {
    const auto end = text.find(separator);
    const auto taken = text.substr(0, end);
    text.remove_prefix(end == kNone ? text.size() : end + 1);
    return taken;
}

std::string_view WithoutCarriageReturn(std::string_view line) {
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

} // namespace

std::string Grid::Copy() const {
    std::string text;
    const auto [top, bottom] = std::minmax({current_.row, blockEnd_.row});
    const auto [left, right] = std::minmax({current_.column, blockEnd_.column});
    for (int row = std::max(top, 1); row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            text += Text(row, column);
            text += column < right ? "\t" : "\r\n";
        }
    }
    return text;
}

void Grid::Paste(std::string_view text) {
    if (!TakeFocus() || current_.row < 1) {
        return;
    }
    CommitEdit();
    const auto lines =
        std::count(text.begin(), text.end(), '\n') + (text.ends_with('\n') || text.empty() ? 0 : 1);
    const auto needed = current_.row + lines;
    if (needed > Rows() && growsByPaste_) {
        if (needed - 1 > kMaxItems) {
            RaiseOverflow();
        }
        SetRows(static_cast<int>(needed));
    }
    for (int row = current_.row; !text.empty() && row < Rows(); ++row) {
        auto line = WithoutCarriageReturn(TakeUpTo(text, '\n'));
        bool more = true;
        for (int column = current_.column; more && column < columns_; ++column) {
            more = line.find('\t') != kNone;
            EditTo(row, column, TakeUpTo(line, '\t'));
        }
    }
}

void Grid::ClearBlock() {
    const auto [top, bottom] = std::minmax({current_.row, blockEnd_.row});
    const auto [left, right] = std::minmax({current_.column, blockEnd_.column});
    for (int row = std::max(top, 1); row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            EditTo(row, column, "");
        }
    }
}

} // namespace zy
