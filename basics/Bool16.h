#pragma once

#include <cstdint>

namespace zy {

/// A truth value as this program keeps it: a 16-bit integer, True = -1 and False = 0.
///
/// Every test is a test for True, so a value that is neither of the two counts as False.
class Bool16 {
  public:
    constexpr Bool16() = default;
    constexpr Bool16(bool value) : value_(value ? kTrue : kFalse) {}

    /// Takes any 16-bit value, also one that is neither True nor False.
    static constexpr Bool16 FromValue(std::int16_t value) {
        Bool16 result;
        result.value_ = value;
        return result;
    }

    /// True exactly when the value is -1.
    constexpr operator bool() const { return value_ == kTrue; }
    constexpr std::int16_t Value() const { return value_; }

  private:
    static constexpr std::int16_t kTrue = -1;
    static constexpr std::int16_t kFalse = 0;
    std::int16_t value_ = kFalse;
};

} // namespace zy
