#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/World.h"
#include "rules/RulesPage.h"
#include "rules/mRules.h"
#include "shell/MainMenu.h"
#include "shell/TraceChannel.h"

namespace zy {

/// What the rules editor alone has in the menu Edit and in the menu of its list.
class RulesMenu {
  public:
    /// All of these must outlive it.
    RulesMenu(MainMenu& menu, const mRules& rules, RulesPage& page, const World& world, TraceChannel& trace);

    /// Offers the published sets, and appends the rules that the user chooses.
    void mnuStandardRules_Click();
    /// Writes the rules as they are held, each with its picture, to a file of the user's choice.
    void mnuSavePictures_Click();
    /// Prints the rules as they are held, each with its picture.
    void mnuPrint_Click();

  private:
    /// The text of a file of the kind that its name ends in; nothing where it would be too large.
    std::optional<std::string> PicturesFor(const std::string& path);

    const mRules& rules_;
    RulesPage& page_;
    World world_;
    TraceChannel& trace_;
};

} // namespace zy
