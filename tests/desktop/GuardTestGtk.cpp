#include <glib-object.h>

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

namespace zy::test {
namespace {

/// What the window tests run under, so that they see the same window on every machine and miss no mistake.
TEST(Guard, EveryTestGetsTheWholeEnvironmentThatItAsksFor) {
    for (const auto* variable :
         {"NO_AT_BRIDGE=1", "LC_ALL=C.UTF-8", "GTK_THEME=Adwaita", "G_DEBUG=fatal-criticals"}) {
        const std::string wanted(variable);
        const auto* value = std::getenv(wanted.substr(0, wanted.find('=')).c_str());
        EXPECT_EQ(value == nullptr ? "unset" : std::string(value), wanted.substr(wanted.find('=') + 1))
            << wanted;
    }
}

TEST(Guard, ACriticalOfTheWindowSystemEndsTheTest) {
    EXPECT_DEATH(g_log("Gtk", G_LOG_LEVEL_CRITICAL, "a call that makes no sense"),
                 "a call that makes no sense");
}

} // namespace
} // namespace zy::test
