#pragma once

#include <cstddef>

namespace zy::test {

/// The bytes of the largest array of characters that was made since the last time this was asked.
std::size_t TakeLargestArray();

} // namespace zy::test
