#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>

#include "basics/RuntimeError.h"

namespace zy {

// Counters, positions and sizes of this program are 16-bit signed where its files and its window are
// concerned. A value is held to that where it comes from outside or is counted up; everything else works with
// plain numbers.

/// The number of items that a list can hold.
inline constexpr int kMaxItems = std::numeric_limits<std::int16_t>::max();

/// The value as a 16-bit signed integer. Run-time error 6 when it is outside -32768..32767.
template <std::integral Value>
constexpr std::int16_t ToInt16(Value value) {
    if (!std::in_range<std::int16_t>(value)) {
        RaiseOverflow();
    }
    return static_cast<std::int16_t>(value);
}

/// The number that a text such as "12" stands for, blanks around it aside. Run-time error 13 when it is not a
/// whole number, 6 when it is outside the range.
std::int16_t ToInt16(std::string_view text);

} // namespace zy
