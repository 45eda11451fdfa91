#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/memory/MemoryWorld.h"
#include "shell/frmRecovery.h"

namespace zy::test {

/// What the question after unsaved changes said, and whether it came.
struct AskedToRestore {
    int times = 0;
    std::string heading;
    std::string text;
    bool canRestore = false;
};

/// The next start will ask what is to become of unsaved changes, and is answered by this; by its close box
/// without one.
inline void ExpectRecovery(MemoryWorld& world, AskedToRestore& asked,
                           CommandButton frmRecovery::*answer = nullptr) {
    world.dialogs.ExpectForm([&asked, answer](Form& form) {
        auto& question = dynamic_cast<frmRecovery&>(form);
        asked = {asked.times + 1, question.lblHeading.Caption(), question.lblText.Caption(),
                 question.cmdRestore.Enabled()};
        if (answer != nullptr) {
            (question.*answer).Click();
        }
    });
}

} // namespace zy::test
