#include "rules/RulePictures.h"

#include <utility>

#include "rules/RuleDrawing.h"

namespace zy {

RulePictures::RulePictures(const mRules& rules, RuleDetails& details, RulesControls& controls,
                           SystemInfo& system)
    : rules_(rules), controls_(controls), system_(system) {
    details.shown.Connect([this] { Show(); });
    controls.lstRulesList.hint = [this](int item) { return HintOf(item); };
}

RulePicture RulePictures::PictureOf(const RunRule& rule) const {
    return zy::PictureOf(rule, system_.DecimalSeparator());
}

void RulePictures::Show() {
    if (rules_.giCurRule == -1) {
        controls_.picRule.Show("", {});
        return;
    }
    auto picture = PictureOf(RuleInForm(controls_, {}));
    // The sentence says all that is drawn: where it is the same, nothing has to be painted again.
    if (picture.sentence != controls_.picRule.Description()) {
        zy::Show(controls_.picRule, std::move(picture));
    }
}

std::string RulePictures::HintOf(int item) const {
    const auto picture = PictureOf(rules_.gaRules(item));
    return picture.IsDrawn() ? picture.sentence : std::string();
}

} // namespace zy
