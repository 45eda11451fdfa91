#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace zy {

/// What the program did last, by name alone: no value, for a password could be among them. It stands in
/// place, so that it can be read when the program breaks off and nothing else can be relied on.
class LastSteps {
  public:
    static constexpr std::size_t kCount = 16;
    /// What is longer is cut.
    static constexpr std::size_t kLongest = 80;

    void Note(std::string_view module, std::string_view procedure) {
        auto& step = steps_[noted_ % kCount];
        step.size = 0;
        step.Append(module);
        step.Append(" ");
        step.Append(procedure);
        ++noted_;
    }

    std::size_t Count() const { return std::min(noted_, kCount); }
    /// Counted from 0, the earliest.
    std::string_view operator[](std::size_t step) const {
        const auto& found = steps_[(noted_ - Count() + step) % kCount];
        return {found.text.data(), found.size};
    }

  private:
    struct Step {
        std::array<char, kLongest> text{};
        std::size_t size = 0;

        void Append(std::string_view part) {
            size += part.substr(0, kLongest - size).copy(text.data() + size, kLongest - size);
        }
    };

    std::array<Step, kCount> steps_{};
    std::size_t noted_ = 0;
};

} // namespace zy
