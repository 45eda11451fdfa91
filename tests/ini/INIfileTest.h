#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "basics/RuntimeError.h"
#include "ini/INIfile.h"
#include "support/RaisedError.h"
#include "support/WorldTest.h"

namespace zy::test {

/// The three texts of a line.
struct Texts {
    std::string group;
    std::string section;
    std::string value;

    bool operator==(const Texts&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Texts& texts) {
    return out << "{\"" << texts.group << "\", \"" << texts.section << "\", \"" << texts.value << "\"}";
}

inline Texts TextsOf(const INIline& line) {
    return {std::string(line.Group()), std::string(line.Section()), std::string(line.Value())};
}

/// A settings file in a memory world.
class INIfileTest : public WorldTest {
  protected:
    static constexpr auto kPath = R"(C:\SYS\Demo.ini)";

    /// Puts a file with these bytes in place and loads it. Returns its lines.
    std::vector<Texts> Load(std::string_view bytes) {
        world.files.Put(kPath, bytes);
        file.LoadFile(kPath);
        return Lines();
    }

    std::vector<Texts> Lines() {
        std::vector<Texts> lines;
        for (const auto& line : *file.INIlines()) {
            lines.push_back(TextsOf(line));
        }
        return lines;
    }

    /// Saves the lines and returns the bytes on the disk.
    std::string Save() {
        file.SaveFile(kPath);
        return world.files.Get(kPath).value_or("no file");
    }

    void AddLines(int count) {
        for (int i = 0; i < count; ++i) {
            file.INIlines()->Add("[G]", "K", "V");
        }
    }

    TraceChannel trace{world.traceServers, "zyGlobal"};
    INIfile file{world.files, world.codePage, trace};
};

} // namespace zy::test
