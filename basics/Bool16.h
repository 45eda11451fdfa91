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

    /// True exactly when the value is -1.
    constexpr operator bool() const { return value_ == kTrue; }

  private:
    static constexpr std::int16_t kTrue = -1;
    static constexpr std::int16_t kFalse = 0;
    std::int16_t value_ = kFalse;
};

} // namespace zy
