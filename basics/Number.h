#pragma once

#include <optional>
#include <string_view>

namespace zy {

/// The number that a text typed by the user stands for, or nothing when the text is not numeric.
///
/// Accepted: blanks around, one sign, decimal digits with at most one decimal separator, and an exponent ("e"
/// or "E" with digits). The decimal point is always a separator; `decimalSeparator`, the locale's own, is one
/// too. Not accepted: a text without a digit, hexadecimal, "inf", "nan", separators of thousands. A number
/// beyond the range of a double comes out infinite, one below it as zero.
std::optional<double> ParseNumber(std::string_view text, char decimalSeparator);

} // namespace zy
