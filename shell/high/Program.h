#pragma once

#include "platform/World.h"
#include "rules/RulesPage.h"
#include "rules/mRules.h"
#include "shell/MainWindow.h"
#include "shell/SettingsForm.h"
#include "shell/SharedState.h"
#include "shell/TraceChannel.h"

namespace zy {

/// Everything that one run of the program consists of, short of the outside world.
class Program {
  public:
    /// What may be supplied from outside the rooms that the program builds itself.
    struct Options {
        SecurityEditor* security = nullptr;
        UnitsEditor* units = nullptr;
        WindowPlacement* placement = nullptr;
    };

    explicit Program(const World& outside);
    Program(const World& outside, const Options& options);

    World world;
    SharedState state;
    TraceChannel trace;
    SettingsForm form;
    mRules rules;
    RulesPage rulesPage;
    Options options;
    MainWindow window;
};

} // namespace zy
