#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

namespace zy {

// Dates and times in digits, the same wherever the user is: what is written so sorts by time.

/// A number with zeros in front, in so many digits at least.
std::string Digits(std::uint64_t number, std::size_t width);

/// As in "20261122".
std::string DateDigits(std::chrono::year_month_day date);
/// As in "140705".
std::string ClockDigits(std::chrono::seconds sinceMidnight);

/// As in "2026-11-22 14:07:05", which is understood where the user's own form cannot be had.
std::string PlainTime(std::chrono::local_seconds time);

} // namespace zy
