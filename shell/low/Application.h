#pragma once

#include <string_view>

namespace zy {

/// The application's title, as message boxes without a title of their own show it.
inline constexpr std::string_view kApplicationTitle = "ZY Setup";

} // namespace zy
