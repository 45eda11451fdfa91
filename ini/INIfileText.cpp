#include "ini/INIfileText.h"

#include <algorithm>

#include "basics/Int16.h"
#include "basics/Text.h"

namespace zy {
namespace {

constexpr std::string_view kEquals = "= ";
constexpr std::string_view kLineEnd = "\r\n";

/// Writes the text of a file over blanks, from the first character on.
class LineWriter {
  public:
    LineWriter(const INIformat& format, const CodePage& codePage)
        : codePage_(codePage), ucaseSection_(format.ucaseSection),
          indent_(static_cast<std::size_t>(std::max(format.leadingSpaces, 0))),
          equalAt_(static_cast<std::size_t>(std::max(format.equalPos, 1)) - 1) {}

    /// The number of characters that the line takes at most.
    std::size_t Room(const INIline& line) const {
        if (Trim(line.Section()).empty()) {
            return line.Group().size() + kLineEnd.size();
        }
        const auto keyRoom = std::max(indent_ + line.Section().size(), equalAt_);
        return keyRoom + kEquals.size() + line.Value().size() + kLineEnd.size();
    }

    /// Writes a line and returns its end.
    char* Write(const INIline& line, char* at) const {
        const auto key = Trim(line.Section());
        at = key.empty() ? WriteCapitals(Trim(line.Group()), at)
                         : WriteValue(Trim(line.Value()), WriteKey(key, at));
        return Copy(kLineEnd, at);
    }

  private:
    static char* Copy(std::string_view text, char* at) { return std::copy(text.begin(), text.end(), at); }

    char* WriteCapitals(std::string_view text, char* at) const {
        return std::transform(text.begin(), text.end(), at, [this](char c) { return codePage_.Upper(c); });
    }

    char* WriteKey(std::string_view key, char* at) const {
        char* const end = ucaseSection_ ? WriteCapitals(key, at + indent_) : Copy(key, at + indent_);
        return std::max(end, at + equalAt_);
    }

    static char* WriteValue(std::string_view value, char* at) {
        return value.empty() ? Copy("=", at) : Copy(value, Copy(kEquals, at));
    }

    const CodePage& codePage_;
    bool ucaseSection_;
    std::size_t indent_;
    std::size_t equalAt_;
};

} // namespace

std::string INIfileText(const INIlines& lines, const INIformat& format, const CodePage& codePage) {
    [[maybe_unused]] const Int16 count = lines.Count();
    const LineWriter writer(format, codePage);
    std::size_t room = 0;
    for (const auto& line : lines) {
        room += writer.Room(line);
    }
    std::string text(room, ' ');
    char* at = text.data();
    for (const auto& line : lines) {
        at = writer.Write(line, at);
    }
    text.resize(static_cast<std::size_t>(at - text.data()));
    return text;
}

} // namespace zy
