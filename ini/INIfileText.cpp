#include "ini/INIfileText.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <utility>

#include "basics/Int16.h"
#include "basics/Text.h"
#include "ini/FileText.h"

namespace zy {
namespace {

constexpr std::string_view kEquals = "= ";
constexpr std::string_view kBareEquals = "="; // in front of no value

/// As many characters as are written in one go where the right number is known to be no more. What is too
/// much is written over.
constexpr std::size_t kBlock = 16;
static_assert(kBlock <= FileText::kMargin);

/// Writes a text that stands in a file's.
inline char* PutLoaded(std::string_view text, char* at) {
    std::memcpy(at, text.data(), kBlock);
    for (auto done = kBlock; done < text.size(); done += kBlock) {
        std::memcpy(at + done, text.data() + done, kBlock);
    }
    return at + text.size();
}

using Line = std::deque<INIline>::const_iterator;

/// Lays lines out as the text of a file.
class LineLayout {
  public:
    /// The most that a line of a file takes.
    static constexpr std::size_t kLoadedRoom = kLongestLine + 4 * kBlock;

    LineLayout(const INIformat& format, const CodePage& codePage)
        : codePage_(codePage), ucaseSection_(format.ucaseSection),
          indent_(static_cast<std::size_t>(std::max(format.leadingSpaces, 0))),
          equalAt_(static_cast<std::size_t>(std::max(format.equalPos, 1)) - 1) {}

    /// The most that a line takes whose texts have so many characters.
    std::size_t RoomFor(std::size_t characters) const {
        return indent_ + equalAt_ + characters + kEquals.size() + kLineEnd.size();
    }

    /// Writes a line and returns its end.
    char* PutLine(const INIline& line, char* at) const {
        const auto key = Trim(line.Section());
        at = key.empty() ? PutCapitals(Trim(line.Group()), at) : PutPair(key, Trim(line.Value()), at);
        return Put(kLineEnd, at);
    }

    /// The line stands in a file's text and is laid out as usual, so that what is blank in it fits into
    /// blocks. Most lines do.
    bool IsPlain(const INIline& line) const {
        return line.IsInFile() && indent_ <= kBlock && equalAt_ <= kBlock;
    }
    /// Writes such lines as many as follow one another, none of them behind `lastPlace`. Moves on to the line
    /// behind them and returns their end.
    char* PutPlainLines(Line& line, const Line& end, char* at, const char* lastPlace) const {
        auto next = line;
        for (; next != end && next->IsInFile() && at <= lastPlace; ++next) {
            at = PutPlainLine(next->Section(), next->Value(), at);
        }
        line = next;
        return at;
    }

  private:
    char* PutPlainLine(std::string_view key, std::string_view value, char* at) const {
        std::memset(at, ' ', kBlock);
        char* const keyEnd = PutLoaded(key, at + indent_);
        std::memset(keyEnd, ' ', kBlock);
        at = std::max(keyEnd, at + equalAt_);
        return Put(kLineEnd, value.empty() ? Put(kBareEquals, at) : PutLoaded(value, Put(kEquals, at)));
    }

    char* PutPair(std::string_view key, std::string_view value, char* at) const {
        char* const equals = at + equalAt_;
        at = std::fill_n(at, indent_, ' ');
        at = ucaseSection_ ? PutCapitals(key, at) : Put(key, at);
        at = std::fill_n(at, std::max<std::ptrdiff_t>(equals - at, 0), ' ');
        return value.empty() ? Put(kBareEquals, at) : Put(value, Put(kEquals, at));
    }

    char* PutCapitals(std::string_view text, char* at) const {
        return std::transform(text.begin(), text.end(), at, [this](char c) { return codePage_.Upper(c); });
    }

    const CodePage& codePage_;
    bool ucaseSection_;
    std::size_t indent_;
    std::size_t equalAt_;
};

} // namespace

INIfileText::INIfileText(const INIlines& lines, const INIformat& format, const CodePage& codePage) {
    const int count = ToInt16(lines.Count());
    const LineLayout layout(format, codePage);
    // Enough when all lines come from the file.
    MakeRoom(static_cast<std::size_t>(count) * layout.RoomFor(0) + lines.TextSize());
    for (auto line = lines.begin(); line != lines.end();) {
        if (layout.IsPlain(*line)) {
            MakeRoom(1);
            at_ = layout.PutPlainLines(line, lines.end(), at_, lastPlace_);
        } else {
            MakeRoom(layout.RoomFor(line->Group().size() + line->Section().size() + line->Value().size()));
            at_ = layout.PutLine(*line++, at_);
        }
    }
}

void INIfileText::MakeRoom(std::size_t room) {
    // The last line may have ended behind the last place.
    if (lastPlace_ - at_ >= static_cast<std::ptrdiff_t>(room)) {
        return;
    }
    const auto text = Get();
    const auto capacity = 2 * text.size() + room;
    auto larger = std::make_unique_for_overwrite<char[]>(capacity + LineLayout::kLoadedRoom);
    at_ = Put(text, larger.get());
    text_ = std::move(larger);
    lastPlace_ = text_.get() + capacity;
}

} // namespace zy
