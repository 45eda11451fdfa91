#pragma once

#include <gtest/gtest.h>

#include <cstdlib>

namespace zy::test {

/// Stops a test program that opens windows where none can open, and says how it is to be started. On Windows
/// every session has a screen.
class NeedsDisplay : public ::testing::Environment {
  public:
    void SetUp() override {
#ifndef _WIN32
        if (std::getenv("DISPLAY") == nullptr) {
            FAIL() << "These tests open windows and press keys, on an X display with a window manager that "
                      "nobody else uses. Start them with tests/with-display in front of the command, as "
                      "./test does.";
        }
#endif
    }
};

} // namespace zy::test
