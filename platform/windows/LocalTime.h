#pragma once

#include <windows.h>

#include <chrono>

namespace zy {

// For sources of this room alone: its other headers stay without the system's.

/// A time as the clock shows it where the user is.
inline SYSTEMTIME LocalTime(const FILETIME& time) {
    SYSTEMTIME utc{};
    SYSTEMTIME local{};
    ::FileTimeToSystemTime(&time, &utc);
    ::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    return local;
}

inline std::chrono::local_seconds ToSeconds(const SYSTEMTIME& local) {
    const std::chrono::year_month_day day{std::chrono::year(local.wYear), std::chrono::month(local.wMonth),
                                          std::chrono::day(local.wDay)};
    return std::chrono::local_days(day) + std::chrono::hours(local.wHour) +
           std::chrono::minutes(local.wMinute) + std::chrono::seconds(local.wSecond);
}

} // namespace zy
