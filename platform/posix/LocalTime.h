#pragma once

#include <chrono>
#include <ctime>

namespace zy {

/// A time as the clock shows it where the user is.
inline std::tm LocalTime(std::time_t time) {
    std::tm local{};
    ::localtime_r(&time, &local);
    return local;
}

inline std::chrono::local_seconds ToSeconds(std::tm local) {
    // Counted as if the user's clock showed UTC.
    return std::chrono::local_seconds(std::chrono::seconds(::timegm(&local)));
}

} // namespace zy
