#include "controls/CopiedCells.h"

#include <algorithm>

#include "basics/Text.h"

namespace zy {
namespace {

constexpr auto kNone = std::string_view::npos;
constexpr char kQuote = '"';

bool EndsCell(char character) {
    return character == '\t' || character == '\n';
}

bool IsSeparator(char character) {
    return EndsCell(character) || character == '\r';
}

/// The length of a plain cell at the front, the "\r" of a line end left out.
std::size_t PlainLength(std::string_view text) {
    const auto end = std::find_if(text.begin(), text.end(), EndsCell);
    const auto length = static_cast<std::size_t>(end - text.begin());
    const bool beforeTab = end != text.end() && *end == '\t';
    return length > 0 && text[length - 1] == '\r' && !beforeTab ? length - 1 : length;
}

/// The length of a quoted cell at the front, its quotes included; 0 when there is none.
std::size_t QuotedLength(std::string_view text) {
    if (!text.starts_with(kQuote)) {
        return 0;
    }
    auto quote = text.find(kQuote, 1);
    while (quote != kNone && text.substr(quote + 1).starts_with(kQuote)) {
        quote = text.find(kQuote, quote + 2);
    }
    if (quote == kNone) {
        return 0;
    }
    const auto behind = text.substr(quote + 1);
    const bool closed = behind.empty() || EndsCell(behind.front()) || behind.starts_with(kLineEnd);
    return closed ? quote + 1 : 0;
}

void AssignUnquoted(std::string& cell, std::string_view quoted) {
    cell.clear();
    for (std::size_t at = 1; at + 1 < quoted.size(); ++at) {
        if (quoted[at] == kQuote) {
            ++at; // of two quotes the second one is taken
        }
        cell += quoted[at];
    }
}

void PutOnOneLine(std::string& cell) {
    for (auto at = cell.find(kLineEnd); at != kNone; at = cell.find(kLineEnd, at)) {
        cell.erase(at, 1);
    }
    std::replace_if(cell.begin(), cell.end(), IsSeparator, ' ');
}

} // namespace

void AppendCopied(std::string& text, std::string_view cell) {
    if (!cell.starts_with(kQuote) && std::none_of(cell.begin(), cell.end(), IsSeparator)) {
        text += cell;
        return;
    }
    text += kQuote;
    for (const char character : cell) {
        text.append(character == kQuote ? 2U : 1U, character);
    }
    text += kQuote;
}

std::string_view CopiedCells::Take() {
    if (const auto length = QuotedLength(rest_); length != 0) {
        AssignUnquoted(cell_, rest_.substr(0, length));
        rest_.remove_prefix(length);
    } else {
        cell_ = rest_.substr(0, PlainLength(rest_));
        rest_.remove_prefix(cell_.size());
    }
    PutOnOneLine(cell_);
    TakeSeparator();
    return cell_;
}

void CopiedCells::TakeSeparator() {
    endedRow_ = !rest_.starts_with('\t');
    const auto length = rest_.starts_with(kLineEnd) ? kLineEnd.size() : 1U;
    rest_.remove_prefix(std::min<std::size_t>(length, rest_.size()));
}

} // namespace zy
