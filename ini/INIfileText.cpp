#include "ini/INIfileText.h"

#include <algorithm>

#include "basics/Int16.h"
#include "basics/Text.h"

namespace zy {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Builds the text of a file line by line.
class TextBuilder {
  public:
    TextBuilder(const INIformat& format, const CodePage& codePage)
        : codePage_(codePage), ucaseSection_(format.ucaseSection),
          indent_(static_cast<std::size_t>(std::max(format.leadingSpaces, 0))),
          equalAt_(static_cast<std::size_t>(std::max(format.equalPos, 1)) - 1) {}

    void Reserve(const INIlines& lines) {
        std::size_t size = 0;
        for (const auto& line : lines) {
            size += std::max(indent_ + line.Section().size(), equalAt_) + line.Value().size();
            size += line.Group().size() + 4;
        }
        text_.reserve(size);
    }

    void Append(const INIline& line) {
        const auto key = Trim(line.Section());
        if (key.empty()) {
            text_ += codePage_.UCase(Trim(line.Group()));
        } else {
            AppendKey(key);
            AppendValue(Trim(line.Value()));
        }
        text_ += kLineEnd;
    }

    std::string Take() { return std::move(text_); }

  private:
    void AppendKey(std::string_view key) {
        text_.append(indent_, ' ');
        if (ucaseSection_) {
            text_ += codePage_.UCase(key);
        } else {
            text_ += key;
        }
        const auto length = indent_ + key.size();
        text_.append(equalAt_ - std::min(length, equalAt_), ' ');
    }

    void AppendValue(std::string_view value) {
        text_ += '=';
        if (!value.empty()) {
            text_ += ' ';
            text_ += value;
        }
    }

    const CodePage& codePage_;
    bool ucaseSection_;
    std::size_t indent_;
    std::size_t equalAt_;
    std::string text_;
};

} // namespace

std::string INIfileText(const INIlines& lines, const INIformat& format, const CodePage& codePage) {
    [[maybe_unused]] const Int16 count = lines.Count();
    TextBuilder text(format, codePage);
    text.Reserve(lines);
    for (const auto& line : lines) {
        text.Append(line);
    }
    return text.Take();
}

} // namespace zy
