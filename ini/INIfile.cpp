#include "ini/INIfile.h"

#include <limits>
#include <string>
#include <utility>

#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "shell/Utilities.h"

namespace zy {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
/// Positions in a line are 16-bit.
constexpr std::ptrdiff_t kLongestLine = std::numeric_limits<std::int16_t>::max();

// A file is taken apart in place, each character looked at once. Every scan below ends at a CR LF at the
// latest, so the text must have one ahead.

bool IsLineEnd(const char* at) {
    return at[0] == '\r' && at[1] == '\n';
}

bool IsBreak(char c) {
    return c == '\t' || c == '\r' || c == '\n';
}

/// Moves past blanks, and past breaks that count as blanks.
char* SkipBlanks(char* at) {
    while (*at == ' ' || (IsBreak(*at) && !IsLineEnd(at))) {
        ++at;
    }
    return at;
}

char* BackOverBlanks(const char* first, char* end) {
    while (end != first && end[-1] == ' ') {
        --end;
    }
    return end;
}

/// Moves the rest of a line up to `to`, breaks made blanks. Sets `from` to the line's end and returns the end
/// of what was moved.
char* MoveRestOfLine(char*& from, char* to) {
    for (; *from > '\r' || *from < '\t' || !IsLineEnd(from); ++from) {
        *to++ = IsBreak(*from) ? ' ' : *from;
    }
    return to;
}

std::size_t Distance(const char* from, const char* to) {
    return static_cast<std::size_t>(to - from);
}

} // namespace

INIfile::INIfile(FileSystem& files, const CodePage& codePage, TraceChannel& trace)
    : files_(files), trace_(trace), codePage_(codePage) {
    for (std::size_t c = 0; c < capitals_.size(); ++c) {
        const char character = static_cast<char>(c);
        capitals_[c] = IsBreak(character) || character == '=' ? '\0' : codePage.Upper(character);
    }
}

const std::shared_ptr<zy::INIlines>& INIfile::INIlines() {
    if (!lines_) {
        lines_ = std::make_shared<zy::INIlines>();
    }
    return lines_;
}

void INIfile::LoadFile(std::string_view Filename) {
    auto& lines = *INIlines();
    lines.Clear();
    const auto opened = files_.OpenForReading(Filename);
    if (!opened.handle) {
        return;
    }
    auto& text = lines.Keep(ReadFileText(*opened.handle, static_cast<std::uint32_t>(opened.handle->Size())));
    const auto last = text.rfind(kLineEnd);
    if (last == std::string::npos) {
        return;
    }
    std::string_view group(text.data(), 0);
    for (char* line = text.data(); line <= text.data() + last;) {
        const auto parsed = ParseLine(line);
        if (!parsed.key.empty()) {
            if (parsed.key.front() == '[') {
                group = parsed.key;
            }
            lines.Add({.group = group, .section = parsed.key, .valueLength = parsed.valueLength});
        }
        line = parsed.end + kLineEnd.size();
    }
}

void INIfile::SaveFile(std::string_view Filename) {
    trace_.DebugTrace("INIFile", "SaveFile", "Start " + std::string(Filename));
    const std::string text = INIfileText(*INIlines(), format_, codePage_);
    if (FileExists(Filename)) {
        files_.Delete(Filename);
    }
    const auto created = files_.Create(Filename);
    if (!created.handle) {
        return;
    }
    created.handle->Write(text);
    created.handle->Flush();
    created.handle->Close();
}

INIfile::ParsedLine INIfile::ParseLine(char* line) const {
    char* const first = SkipBlanks(line);
    const bool isHeader = *first == '[';
    char* end = ToCapitals(first);
    while (isHeader && *end == '=') {
        end = ToCapitals(end + 1);
    }
    const bool isTaken = isHeader || *end == '=';
    char* const keyEnd = BackOverBlanks(first, end);
    char* valueEnd = keyEnd;
    if (*end == '=') {
        end = SkipBlanks(end + 1);
        valueEnd = BackOverBlanks(keyEnd, MoveRestOfLine(end, keyEnd));
    }
    if (end - line > kLongestLine) {
        RaiseOverflow();
    }
    return {.key = {first, isTaken ? Distance(first, keyEnd) : 0},
            .valueLength = Distance(keyEnd, valueEnd),
            .end = end};
}

/// Makes a key out of a text: capitals, and blanks for breaks. Stops at an "=" and at the line's end.
char* INIfile::ToCapitals(char* at) const {
    for (;; ++at) {
        const char capital = capitals_[static_cast<unsigned char>(*at)];
        if (capital != '\0') {
            *at = capital;
        } else if (*at == '=' || IsLineEnd(at)) {
            return at;
        } else if (*at != '\0') {
            *at = ' ';
        }
    }
}

} // namespace zy
