#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zy {

/// A 16-bit signed integer that refuses to overflow: any result outside -32768..32767 is run-time error 6.
class Int16 {
  public:
    static constexpr int kMost = 32767;

    constexpr Int16() = default;
    Int16(std::int64_t value);
    Int16(std::size_t value);
    Int16(int value) : Int16(static_cast<std::int64_t>(value)) {}

    /// The number that a text such as "12" stands for. Run-time error 13 when it is not a whole number, 6
    /// when it is outside the range.
    static Int16 FromText(std::string_view text);

    constexpr operator int() const { return value_; }

    Int16& operator++() { return *this = Int16(value_ + 1); }
    Int16& operator--() { return *this = Int16(value_ - 1); }

  private:
    std::int16_t value_ = 0;
};

/// The number of items that a list can hold: list counters are 16-bit signed.
inline constexpr int kMaxItems = Int16::kMost;

} // namespace zy
