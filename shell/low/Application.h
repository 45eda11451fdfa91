#pragma once

#include <string>
#include <string_view>

namespace zy {

/// The application's title, as message boxes without a title of their own show it.
inline constexpr std::string_view kApplicationTitle = "ZY Setup";

/// The program as it presents itself.
struct Application {
    std::string title;
    int majorVersion = 0;
    int minorVersion = 0;
    int revision = 0;
};

/// This program, of the version that it was built as.
Application ThisApplication();

} // namespace zy
