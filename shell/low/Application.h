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

/// The version as files and notes have it, such as "1.0.0".
std::string VersionOf(const Application& application);

} // namespace zy
