#include "rules/RulesReader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

#include "basics/Text.h"
#include "rules/RulesFormat.h"

namespace zy {
namespace {

constexpr std::size_t kBlockSize = 65536;

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

/// What stands in front of a value where the program has written the line.
using Front = std::array<char, kRuleFrontSize>;

std::array<Front, kRuleKeys.size()> FrontsAsWritten() {
    std::array<Front, kRuleKeys.size()> fronts{};
    for (std::size_t i = 0; i < fronts.size(); ++i) {
        FormatRuleLine(kRuleKeys[i].key, "").copy(fronts[i].data(), fronts[i].size());
    }
    return fronts;
}

bool StartsWith(std::string_view line, const Front& front) {
    return line.size() >= front.size() && std::memcmp(line.data(), front.data(), front.size()) == 0;
}

/// The line without a byte-order mark, which only the first one can have.
std::string_view WithoutByteOrderMark(std::string_view line) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return line.starts_with(kMark) ? line.substr(kMark.size()) : line;
}

/// Takes the lines of a rules file one by one.
class RulesParser {
  public:
    explicit RulesParser(std::deque<RunRule>& rules) : rules_(rules) {}

    /// Nearly all lines stand as the program writes them; only the others are taken apart.
    void Line(std::string_view line) {
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (rule_ != nullptr && StartsWith(line, fronts_[next_])) {
            line.remove_prefix(fronts_[next_].size());
            rule_->*Next().property = line;
        } else if (line == kRuleHeader) {
            StartRule();
        } else {
            OtherLine(line);
        }
    }

    std::size_t Skipped() const { return skipped_; }

  private:
    void OtherLine(std::string_view line) {
        const auto text = WithoutIndent(first_ ? WithoutByteOrderMark(line) : line);
        first_ = false;
        if (text.empty()) {
            return;
        }
        const bool taken = text.front() == '[' ? Header(text) : KeyLine(line);
        skipped_ += taken ? 0 : 1;
    }

    void StartRule() {
        rule_ = &rules_.emplace_back();
        next_ = 0;
        first_ = false;
    }

    bool Header(std::string_view text) {
        rule_ = nullptr;
        if (IsSameName(text, kRuleHeader)) {
            StartRule();
        }
        return rule_ != nullptr;
    }

    bool KeyLine(std::string_view line) {
        const auto equals = line.find('=');
        if (rule_ == nullptr || equals == std::string_view::npos) {
            return false;
        }
        const auto* found = Find(WithoutIndent(line.substr(0, equals)));
        if (found == nullptr) {
            return false;
        }
        auto value = line.substr(equals + 1);
        if (!value.empty() && value.front() == ' ') {
            value.remove_prefix(1);
        }
        rule_->*(found->property) = value;
        return true;
    }

    /// The keys mostly come in the order of the table, so the search starts behind the last one found.
    const RuleKey* Find(std::string_view key) {
        for (std::size_t tried = 0; tried < kRuleKeys.size(); ++tried) {
            const auto& next = Next();
            if (IsSameName(key, next.key)) {
                return &next;
            }
        }
        return nullptr;
    }

    const RuleKey& Next() {
        const auto& next = kRuleKeys[next_];
        next_ = next_ + 1 == kRuleKeys.size() ? 0 : next_ + 1;
        return next;
    }

    const std::array<Front, kRuleKeys.size()> fronts_ = FrontsAsWritten();
    std::deque<RunRule>& rules_;
    RunRule* rule_ = nullptr;
    bool first_ = true; ///< no line was taken yet
    std::size_t next_ = 0;
    std::size_t skipped_ = 0;
};

/// Cuts a file into lines, block by block, so that memory holds one block and the line in hand, not the whole
/// file.
class LineCutter {
  public:
    LineCutter(FileHandle& file, std::uint64_t size)
        : file_(file),
          buffer_(static_cast<std::size_t>(std::min<std::uint64_t>(size + 1, kBlockSize)), '\0') {}

    /// Takes the next line, without its LF; also a last one that has none. False behind the last one. The
    /// line stands until the next call.
    bool Next(std::string_view& line) {
        auto end = Held().find('\n', start_);
        while (end == std::string_view::npos) {
            const auto searched = filled_ - start_;
            if (!Fill()) {
                return Rest(line);
            }
            end = Held().find('\n', searched);
        }
        line = {buffer_.data() + start_, end - start_};
        start_ = end + 1;
        return true;
    }

    /// The number of bytes read so far.
    std::uint64_t BytesRead() const { return total_; }

  private:
    std::string_view Held() const { return {buffer_.data(), filled_}; }

    bool Rest(std::string_view& line) {
        line = Held().substr(start_);
        start_ = filled_;
        return !line.empty();
    }

    /// Moves the line in hand to the front and reads behind it. False at the end of the file, which a read
    /// that failed is taken for: what comes behind it would be joined to the wrong line.
    bool Fill() {
        if (ended_) {
            return false;
        }
        std::memmove(buffer_.data(), buffer_.data() + start_, filled_ - start_);
        filled_ -= start_;
        start_ = 0;
        if (filled_ == buffer_.size()) {
            buffer_.resize(buffer_.size() * 2);
        }
        const auto read = file_.Read(std::span(buffer_).subspan(filled_));
        filled_ += read;
        total_ += read;
        ended_ = read == 0;
        return !ended_;
    }

    FileHandle& file_;
    std::string buffer_;
    std::size_t start_ = 0;
    std::size_t filled_ = 0;
    std::uint64_t total_ = 0;
    bool ended_ = false;
};

} // namespace

RulesReadReport ReadRules(FileHandle& file, std::deque<RunRule>& rules) {
    RulesParser parser(rules);
    const auto size = file.Size();
    LineCutter lines(file, size);
    std::string_view line;
    while (lines.Next(line)) {
        parser.Line(line);
    }
    return {lines.BytesRead() >= size, parser.Skipped()};
}

std::string JoinedDescription(const RunRule& rule) {
    const auto first = Trim(rule.Description);
    const auto second = Trim(rule.Desc2);
    const auto third = Trim(rule.Desc3);
    std::string joined;
    joined.reserve(first.size() + second.size() + third.size() + 2);
    joined.append(first).append(1, ' ').append(second).append(1, ' ').append(third);
    return joined;
}

} // namespace zy
