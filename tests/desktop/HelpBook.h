#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include "desktop/HelpFrame.h"

namespace zy::test {

/// Where the program under test looks for its help.
inline constexpr auto kHelpFile = R"(C:\PRODUCT\zysetup.hlp)";

/// The book that is built with the program.
inline std::string HelpBook() {
    std::ifstream file(ZY_HELP_BOOK, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The window of the help; null while that is closed. For the window's thread.
inline HelpFrame* ShownHelp() {
    for (auto* window : wxTopLevelWindows) {
        if (auto* frame = dynamic_cast<HelpFrame*>(window); frame != nullptr && frame->IsShown()) {
            return frame;
        }
    }
    return nullptr;
}

} // namespace zy::test
