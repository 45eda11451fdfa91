#include "ini/INIfile.h"

#include <limits>
#include <string>
#include <utility>

#include "basics/RuntimeError.h"
#include "ini/Words.h"

namespace zy {
namespace {

constexpr std::size_t kLineEndSize = 2;
/// Positions in a line are 16-bit.
constexpr std::ptrdiff_t kLongestLine = std::numeric_limits<std::int16_t>::max();

// The text of a file is taken apart in place, each character looked at once. Every search ends at a CR LF.

constexpr unsigned char kBeyondBreaks = '\r' + 1;

bool IsLineEnd(const char* at) {
    return at[0] == '\r' && at[1] == '\n';
}

/// A CR, LF or TAB that ends no line counts as a blank.
bool IsStrayBreak(const char* at) {
    return *at == '\t' || *at == '\n' || (*at == '\r' && at[1] != '\n');
}

char* SkipBlanks(char* at) {
    while (static_cast<unsigned char>(*at) <= ' ' && (*at == ' ' || IsStrayBreak(at))) {
        ++at;
    }
    return at;
}

std::string_view TrimmedBehind(const char* begin, const char* end) {
    while (end != begin && end[-1] == ' ') {
        --end;
    }
    return {begin, static_cast<std::size_t>(end - begin)};
}

/// Makes blanks of the stray breaks up to the line's end, and returns that.
[[gnu::noinline]] char* SkipValue(char* at) {
    for (;; ++at) {
        auto low = words::MarkBelow(words::Load(at), kBeyondBreaks);
        while (low == 0) {
            at += sizeof(words::Word);
            low = words::MarkBelow(words::Load(at), kBeyondBreaks);
        }
        at += words::First(low);
        if (IsLineEnd(at)) {
            return at;
        }
        if (IsStrayBreak(at)) {
            *at = ' ';
        }
    }
}

} // namespace

INIfile::INIfile(FileSystem& files, const CodePage& codePage, TraceChannel& trace)
    : files_(files), trace_(trace), codePage_(codePage) {
    for (std::size_t c = 0; c < capitals_.size(); ++c) {
        const char character = static_cast<char>(c);
        const bool stop = character == '\t' || character == '\r' || character == '\n' || character == '=' ;
        capitals_[c] = stop ? 0 : static_cast<unsigned char>(codePage.Upper(character));
    }
}

const std::shared_ptr<zy::INIlines>& INIfile::INIlines() {
    if (!lines_) {
        lines_ = std::make_shared<zy::INIlines>();
    }
    return lines_;
}

/// Makes a key out of a text: capitals, and blanks for breaks. Stops at an "=" and at the line's end.
inline char* INIfile::ToCapitals(char* start) const {
    auto* at = reinterpret_cast<unsigned char*>(start);
    const auto* const table = capitals_.data();
    for (;; ++at) {
        for (unsigned char capital = table[*at]; capital != 0; capital = table[*at]) {
            *at++ = capital;
        }
        char* stop = reinterpret_cast<char*>(at);
        if (*at == '=' || IsLineEnd(stop)) {
            return stop;
        }
        if (*at != 0) {
            *at = ' ';
        }
    }
}

inline INIfile::ParsedLine INIfile::ParseLine(char* line) const {
    char* const first = SkipBlanks(line);
    char* end = ToCapitals(first);
    std::string_view key(first, 0);
    std::string_view value = key;
    if (*first == '[') {
        while (*end == '=') {
            end = ToCapitals(end + 1);
        }
        key = TrimmedBehind(first, end);
    } else if (*end == '=') {
        key = TrimmedBehind(first, end);
        char* const from = SkipBlanks(end + 1);
        end = SkipValue(from);
        value = TrimmedBehind(from, end);
    }
    if (end - line > kLongestLine) {
        RaiseOverflow();
    }
    return {.key = key, .value = value, .end = end};
}

void INIfile::LoadFile(std::string_view Filename) {
    auto& lines = *INIlines();
    lines.Clear();
    const auto opened = files_.OpenForReading(Filename);
    if (!opened.handle) {
        return;
    }
    const auto& text = lines.Keep(FileText(*opened.handle));
    std::string_view group(text.Begin(), 0);
    const char* const textEnd = text.End();
    for (char* line = text.Begin();;) {
        const auto parsed = ParseLine(line);
        if (parsed.end >= textEnd) {
            return;
        }
        line = parsed.end + kLineEndSize;
        if (parsed.key.empty()) {
            continue;
        }
        if (parsed.key.front() == '[') {
            group = parsed.key;
        }
        lines.Add({.group = group, .section = parsed.key, .value = parsed.value});
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

} // namespace zy
