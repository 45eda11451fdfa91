#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace zy {

/// The year that two digits mean: 0 to 49 are 2000 to 2049, 50 to 99 are 1950 to 1999.
int FullYear(int twoDigits);

/// The first and the last date whose year two digits can mean.
inline constexpr std::chrono::year_month_day kFirstShortDate{std::chrono::year(1950), std::chrono::January,
                                                             std::chrono::day(1)};
inline constexpr std::chrono::year_month_day kLastShortDate{std::chrono::year(2049), std::chrono::December,
                                                            std::chrono::day(31)};

/// A date written as year, month and day, between two "-", two "/" or two ".". The year has two digits, which
/// mean what FullYear says, or four, from 0100 on; month and day have one or two. Nothing for any other text
/// and for a date that the calendar lacks.
std::optional<std::chrono::year_month_day> ParseDate(std::string_view text);

/// The same for texts of the shape "yy-mm-dd" alone.
std::optional<std::chrono::year_month_day> ParseShortDate(std::string_view text);

/// The date as "yy-mm-dd"; one outside those two dates would be read as another one.
std::string ShortDate(std::chrono::year_month_day date);

} // namespace zy
