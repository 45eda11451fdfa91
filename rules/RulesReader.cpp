#include "rules/RulesReader.h"

#include <array>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace zy {
namespace {

constexpr std::size_t kBlockSize = 65536;

char AsciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool EqualsIgnoringCase(std::string_view text, std::string_view upper) {
    if (text.size() != upper.size()) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (AsciiUpper(text[i]) != upper[i]) {
            return false;
        }
    }
    return true;
}

bool IsIndent(char c) {
    return c == ' ' || c == '\t';
}

std::string_view WithoutIndent(std::string_view text) {
    while (!text.empty() && IsIndent(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsIndent(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

struct Property {
    std::string_view key;
    std::string RunRule::*member;
};

constexpr std::array<Property, 8> kProperties{{{"CODE", &RunRule::Code},
                                               {"MIN", &RunRule::Min},
                                               {"MAX", &RunRule::Max},
                                               {"COND", &RunRule::Cond},
                                               {"ZONE", &RunRule::Zone},
                                               {"DESC1", &RunRule::Description},
                                               {"DESC2", &RunRule::Desc2},
                                               {"DESC3", &RunRule::Desc3}}};

/// Takes the lines of a rules file one by one.
class RulesParser {
  public:
    explicit RulesParser(std::deque<RunRule>& rules) : rules_(rules) {}

    void Line(std::string_view line) {
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        const auto text = WithoutIndent(line);
        if (text.empty()) {
            return;
        }
        const bool taken = text.front() == '[' ? Header(text) : KeyLine(line);
        skipped_ += taken ? 0 : 1;
    }

    std::size_t Skipped() const { return skipped_; }

  private:
    bool Header(std::string_view text) {
        rule_ = EqualsIgnoringCase(text, "[RULE]") ? &rules_.emplace_back() : nullptr;
        return rule_ != nullptr;
    }

    bool KeyLine(std::string_view line) {
        const auto equals = line.find('=');
        if (rule_ == nullptr || equals == std::string_view::npos) {
            return false;
        }
        const auto* property = Find(WithoutIndent(line.substr(0, equals)));
        if (property == nullptr) {
            return false;
        }
        auto value = line.substr(equals + 1);
        if (!value.empty() && value.front() == ' ') {
            value.remove_prefix(1);
        }
        rule_->*(property->member) = value;
        return true;
    }

    /// The keys mostly come in the order of the table, so the search starts behind the last one found.
    const Property* Find(std::string_view key) {
        for (std::size_t tried = 0; tried < kProperties.size(); ++tried) {
            const auto& property = kProperties[next_];
            next_ = (next_ + 1) % kProperties.size();
            if (EqualsIgnoringCase(key, property.key)) {
                return &property;
            }
        }
        return nullptr;
    }

    std::deque<RunRule>& rules_;
    RunRule* rule_ = nullptr;
    std::size_t next_ = 0;
    std::size_t skipped_ = 0;
};

/// Cuts a file into lines, block by block, so that memory holds one block and the line in hand, not the whole
/// file.
class LineCutter {
  public:
    explicit LineCutter(FileHandle& file) : file_(file), buffer_(kBlockSize, '\0') {}

    /// Hands every line to `take`, without its LF; also a last line that has none. Returns the number of
    /// bytes read.
    template <typename Take>
    std::uint64_t ForEachLine(const Take& take) {
        while (Fill()) {
            while (const auto* end = FindLineEnd()) {
                const auto length = static_cast<std::size_t>(end - (buffer_.data() + start_));
                take(std::string_view(buffer_.data() + start_, length));
                start_ += length + 1;
                searched_ = start_;
            }
        }
        if (start_ < filled_) {
            take(std::string_view(buffer_.data() + start_, filled_ - start_));
        }
        return total_;
    }

  private:
    const char* FindLineEnd() {
        const void* found = std::memchr(buffer_.data() + searched_, '\n', filled_ - searched_);
        searched_ = filled_;
        return static_cast<const char*>(found);
    }

    /// Moves the line in hand to the front and reads behind it. False at the end of the file.
    bool Fill() {
        std::memmove(buffer_.data(), buffer_.data() + start_, filled_ - start_);
        filled_ -= start_;
        start_ = 0;
        searched_ = filled_;
        if (filled_ == buffer_.size()) {
            buffer_.resize(buffer_.size() * 2);
        }
        const auto read = file_.Read(std::span(buffer_).subspan(filled_));
        filled_ += read;
        total_ += read;
        return read != 0;
    }

    FileHandle& file_;
    std::string buffer_;
    std::size_t start_ = 0;
    std::size_t searched_ = 0;
    std::size_t filled_ = 0;
    std::uint64_t total_ = 0;
};

/// The line without a byte-order mark, which only the first one can have.
std::string_view WithoutByteOrderMark(std::string_view line) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return line.starts_with(kMark) ? line.substr(kMark.size()) : line;
}

} // namespace

RulesReadReport ReadRules(FileHandle& file, std::deque<RunRule>& rules) {
    RulesParser parser(rules);
    bool first = true;
    const auto size = file.Size();
    const auto read = LineCutter(file).ForEachLine([&](std::string_view line) {
        parser.Line(first ? WithoutByteOrderMark(line) : line);
        first = false;
    });
    return {read >= size, parser.Skipped()};
}

} // namespace zy
