#pragma once

#include <bit>
#include <cstdint>

#include "basics/Bool16.h"

namespace zy::test {

// What stands in memory for a truth value, which other programs of the product may have put there.

inline Bool16 FromValue(std::int16_t value) {
    return std::bit_cast<Bool16>(value);
}

inline std::int16_t ValueOf(const Bool16& truth) {
    return std::bit_cast<std::int16_t>(truth);
}

} // namespace zy::test
