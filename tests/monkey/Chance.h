#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zy::test {

/// Decides what a monkey does, the same each time for the same seed, and knows what was done last.
class Chance {
  public:
    explicit Chance(std::uint64_t seed) : random_(seed) {}

    /// From 0 on; 0 where there is nothing to choose from.
    int Below(int end) {
        return end <= 1 ? 0 : static_cast<int>(random_() % static_cast<std::uint64_t>(end));
    }
    bool OneIn(int count) { return Below(count) == 0; }
    template <typename Value>
    const Value& Of(const std::vector<Value>& values) {
        return values.at(static_cast<std::size_t>(Below(static_cast<int>(values.size()))));
    }
    /// A short text, of the kind that people type or of the kind that programs stumble over.
    std::string Text() {
        static const std::vector<std::string> kTexts{"",
                                                     "1",
                                                     "2",
                                                     "9",
                                                     "10",
                                                     "99999",
                                                     "-1",
                                                     "1.5",
                                                     "a",
                                                     "R1",
                                                     "UCL",
                                                     "A",
                                                     "I",
                                                     "NewUser",
                                                     "ADMIN",
                                                     "kg",
                                                     "a,b",
                                                     "a\tb",
                                                     "\"q\"",
                                                     "O'Brien",
                                                     "''",
                                                     "|",
                                                     " ",
                                                     "  two  ",
                                                     "=",
                                                     "[RULE]",
                                                     "\xE4",
                                                     "26-11-23",
                                                     "YY-MM-DD",
                                                     "x\r\ny",
                                                     "%",
                                                     "\\",
                                                     "a\"",
                                                     "DESC1 = ",
                                                     "\xDF\xB0",
                                                     std::string(40, 'w'),
                                                     std::string(300, 'l')};
        return Of(kTexts);
    }

    /// The same as a box of one line takes it.
    std::string Line() {
        auto text = Text();
        std::replace_if(
            text.begin(), text.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
        return text;
    }

    void Note(std::string event) {
        constexpr std::size_t kMost = 40;
        last_.push_back(std::move(event));
        if (last_.size() > kMost) {
            last_.pop_front();
        }
    }
    std::string LastEvents() const {
        std::string lines;
        for (const auto& event : last_) {
            lines += "  " + event + "\n";
        }
        return lines;
    }

  private:
    std::mt19937_64 random_;
    std::deque<std::string> last_;
};

} // namespace zy::test
