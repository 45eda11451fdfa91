#include "ini/INIfile.h"

#include <cstring>
#include <string>

#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "ini/CharacterBlock.h"

namespace zy {
namespace {

constexpr char kFirstPlain = '\r' + 1;

static_assert(CharacterBlock::kSize <= FileText::kMargin);

// Each scan stops at a line's end at the latest, so one must stand ahead.

bool IsLineEnd(const char* at) {
    return std::memcmp(at, kLineEnd.data(), kLineEnd.size()) == 0;
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
    // Few texts have a blank there, so that is asked first; the character before an empty one can be read.
    while (end[-1] == ' ' && end != begin) {
        --end;
    }
    return {begin, static_cast<std::size_t>(end - begin)};
}

/// Moves on to an "=", a break or a character beyond ASCII and makes capitals of the letters on the way.
char* ScanPlainKey(char* at) {
    for (;; at += CharacterBlock::kSize) {
        const CharacterBlock block(at);
        const auto stops = block.Before(kFirstPlain) | block.BeyondAscii() | block.Equal('=');
        if (stops.Any()) {
            char* const stop = at + stops.First();
            const CharacterBlock rest(stop);
            block.AsciiCapitals().Store(at);
            rest.Store(stop);
            return stop;
        }
        block.AsciiCapitals().Store(at);
    }
}

/// Moves on to the end of a key and makes capitals of the letters on the way, and blanks of stray breaks. The
/// "=" in a header is part of it.
char* ScanKey(char* at, bool isHeader, const CodePage& codePage) {
    for (;; ++at) {
        at = ScanPlainKey(at);
        if (*at == '=' ? !isHeader : IsLineEnd(at)) {
            return at;
        }
        if (*at != '=') {
            *at = IsStrayBreak(at) ? ' ' : codePage.Upper(*at);
        }
    }
}

/// Moves on to a break.
char* SkipPlain(char* at) {
    for (;; at += CharacterBlock::kSize) {
        if (const auto breaks = CharacterBlock(at).Before(kFirstPlain); breaks.Any()) {
            return at + breaks.First();
        }
    }
}

/// Moves on to the line's end and makes blanks of stray breaks on the way.
char* ScanValue(char* at) {
    for (;; ++at) {
        at = SkipPlain(at);
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
    : files_(files), codePage_(codePage), trace_(trace) {}

const std::shared_ptr<zy::INIlines>& INIfile::INIlines() {
    if (!lines_) {
        lines_ = std::make_shared<zy::INIlines>();
    }
    return lines_;
}

bool INIfile::FileExists(std::string_view path) const {
    return files_.PathExists(path);
}

void INIfile::LoadFile(std::string_view Filename) {
    auto& lines = *INIlines();
    lines.Clear();
    if (!FileExists(Filename)) {
        return;
    }
    if (const auto opened = files_.OpenAlwaysForReading(Filename); opened.handle) {
        const auto& text = lines.Keep(FileText(*opened.handle));
        static_cast<void>(opened.handle->Close()); // nothing was written that it could lose
        AddLines(text);
    }
}

inline char* INIfile::ParseLine(char* line, INIplaces& places, const CodePage& codePage) {
    char* const first = SkipBlanks(line);
    const bool isHeader = *first == '[';
    char* end = ScanKey(first, isHeader, codePage);
    places.section = places.value = std::string_view(first, first);
    if (*end == '=') {
        places.section = TrimmedBehind(first, end);
        char* const value = SkipBlanks(end + 1);
        end = ScanValue(value);
        places.value = TrimmedBehind(value, end);
    } else if (isHeader) {
        places.section = places.group = TrimmedBehind(first, end);
    }
    if (end - line > kLongestLine) {
        RaiseOverflow();
    }
    return end;
}

void INIfile::AddLines(const FileText& text) {
    const auto lastEnd = text.View().rfind(kLineEnd);
    if (lastEnd == std::string_view::npos) {
        return;
    }
    // What is written into the text could otherwise be the members themselves, which costs a look each time.
    auto& lines = *lines_;
    const auto& codePage = codePage_;
    INIplaces places{.group = text.View().substr(0, 0), .section = {}, .value = {}};
    const char* const behindLast = text.Begin() + lastEnd + kLineEnd.size();
    for (char* line = text.Begin(); line != behindLast;) {
        line = ParseLine(line, places, codePage) + kLineEnd.size();
        if (!places.section.empty()) {
            lines.Add(places);
        }
    }
}

void INIfile::SaveFile(std::string_view Filename) {
    trace_.DebugTrace("INIFile", "SaveFile", "Start " + std::string(Filename));
    const INIfileText text(*INIlines(), format_, codePage_);
    if (FileExists(Filename)) {
        // One that cannot be deleted may still be written over, which is tried next.
        static_cast<void>(files_.Delete(Filename));
    }
    const auto created = files_.Create(Filename);
    if (created.handle) {
        WriteAndClose(*created.handle, text.Get()); // SaveFile reports no failure: see its contract
    }
}

} // namespace zy
