#pragma once

#include <string>

#include "platform/SystemInfo.h"
#include "rules/RuleDetails.h"
#include "rules/RulePicture.h"
#include "rules/RulesControls.h"
#include "rules/mRules.h"

namespace zy {

/// The pictures of the rules page: the one beside the detail form, which follows what is typed there, and
/// what the list tells of the rules in it.
class RulePictures {
  public:
    /// All of these must outlive it.
    RulePictures(const mRules& rules, RuleDetails& details, RulesControls& controls, SystemInfo& system);
    RulePictures(const RulePictures&) = delete;
    RulePictures& operator=(const RulePictures&) = delete;

    /// Of any rule.
    RulePicture PictureOf(const RunRule& rule) const;

  private:
    void Show();
    /// What the list says of an item that the mouse rests on; nothing of a rule that has no picture.
    std::string HintOf(int item) const;

    const mRules& rules_;
    RulesControls& controls_;
    SystemInfo& system_;
};

} // namespace zy
