#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "Targets.h"
#include "basics/Text.h"
#include "ini/INIfile.h"
#include "platform/memory/MemoryFileSystem.h"
#include "platform/memory/MemoryTraceServers.h"

namespace zy::fuzz {
namespace {

constexpr std::string_view kFile = R"(C:\SYS\ZYSECURE.ZYX)";

struct Line {
    std::string group;
    std::string section;
    std::string value;
};

/// What a line of a file means, worked out in the plainest way.
void TakeLine(std::string text, std::vector<Line>& lines) {
    for (char& c : text) {
        c = c == '\r' || c == '\n' || c == '\t' ? ' ' : c;
    }
    const std::string_view trimmed = Trim(text);
    const auto equals = trimmed.find('=');
    const std::string group = lines.empty() ? "" : lines.back().group;
    if (trimmed.starts_with('[')) {
        const auto header = Windows1252().UCase(trimmed);
        lines.push_back({header, header, ""});
    } else if (equals != std::string_view::npos && equals != 0) {
        lines.push_back({group, Windows1252().UCase(RTrim(trimmed.substr(0, equals))),
                         std::string(Trim(trimmed.substr(equals + 1)))});
    }
}

std::vector<Line> LinesOf(std::string_view text) {
    std::vector<Line> lines;
    for (auto end = text.find("\r\n"); end != std::string_view::npos; end = text.find("\r\n")) {
        TakeLine(std::string(text.substr(0, end)), lines);
        text.remove_prefix(end + 2);
    }
    return lines;
}

/// A settings file on a disk of its own.
struct Document {
    explicit Document(std::string_view bytes) {
        disk.Put(kFile, bytes);
        file.LoadFile(kFile);
    }

    INIlines& Lines() { return *file.INIlines(); }

    std::string Saved() {
        file.SaveFile(kFile);
        return disk.Get(kFile).value_or("nothing was saved");
    }

    MemoryFileSystem disk{Windows1252()};
    MemoryTraceServers servers;
    TraceChannel trace{servers, "fuzz"};
    INIfile file{disk, Windows1252(), trace};
};

void RequireLines(INIlines& lines, const std::vector<Line>& expected) {
    Require(lines.Count() == static_cast<std::int32_t>(expected.size()),
            "as many lines are loaded as there are");
    std::int32_t i = 0;
    for (const auto& line : expected) {
        const auto& loaded = lines.Item(++i);
        Require(loaded.Group() == line.group, "a line stands under the last header");
        Require(loaded.Section() == line.section, "a line has its key");
        Require(loaded.Value() == line.value, "a line has its value");
    }
}

/// A header comes back longer: saving writes every line that has a key as one.
void RequireSavedLines(INIlines& lines, const std::vector<Line>& expected) {
    Require(lines.Count() == static_cast<std::int32_t>(expected.size()), "a save keeps every line");
    std::int32_t i = 0;
    for (const auto& line : expected) {
        const auto& loaded = lines.Item(++i);
        const bool isHeader = line.section.starts_with('[');
        Require(isHeader ? loaded.Section().starts_with(line.section) : loaded.Section() == line.section,
                "a save keeps the keys");
        Require(loaded.Value() == line.value, "a save keeps the values");
    }
}

/// A changed copy leaves the line itself alone.
void RequireCopies(INIlines& lines, const std::vector<Line>& expected) {
    for (INIline copy : lines) {
        copy.Section("changed");
        copy.Value(copy.Group());
    }
    RequireLines(lines, expected);
}

/// Sets values, which may become longer than the whole file, as the bytes of the input say.
void ChangeSome(INIlines& lines, std::vector<Line>& expected, std::string_view input) {
    constexpr std::size_t kMost = 4;
    constexpr std::size_t kLongest = 30'000;
    std::size_t changed = 0;
    for (std::size_t i = 0; i < expected.size() && changed < kMost; ++i) {
        const auto byte = static_cast<unsigned char>(input[i]);
        if (byte % 2 == 0 && !expected[i].section.starts_with('[')) {
            expected[i].value.assign(std::min<std::size_t>(std::size_t{byte} * byte, kLongest), 'v');
            lines.Item(static_cast<std::int32_t>(i) + 1).Value(expected[i].value);
            ++changed;
        }
    }
}

} // namespace

void IniFile(std::string_view input) {
    auto expected = LinesOf(input);
    Document document(input);
    RequireLines(document.Lines(), expected);
    RequireCopies(document.Lines(), expected);

    Document again(document.Saved());
    RequireLines(document.Lines(), expected);
    RequireSavedLines(again.Lines(), expected);

    ChangeSome(document.Lines(), expected, input);
    Document changed(document.Saved());
    RequireSavedLines(changed.Lines(), expected);
}

} // namespace zy::fuzz
