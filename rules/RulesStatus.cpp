#include "rules/RulesStatus.h"

#include "shell/StatusTexts.h"

namespace zy {

std::string DescribeSkipped(std::size_t lines) {
    return lines == 0 ? std::string()
                      : Counted(lines, "line") + " of the file not understood, saving drops them";
}

RulesStatus::RulesStatus(mRules& rules, const RulesControls& controls, SettingsForm& form)
    : rules_(rules), controls_(controls), form_(form) {
    rules.reported.Connect([this](const std::string& report) { ShowSave(report); });
}

void RulesStatus::ShowCount() {
    Show(CountText());
}

void RulesStatus::ShowCountAnd(std::string_view hint) {
    ShowCount();
    AddHint(form_.zyStatusBar, hint);
}

void RulesStatus::ShowAgain() {
    Show(std::string(text_));
}

void RulesStatus::ShowSave(const std::string& report) {
    auto text = report;
    Join(text, "; ", rules_.LastSaveFailed() ? "change a rule and save again before closing" : "");
    Show(text);
}

void RulesStatus::Show(std::string_view text) {
    text_ = text;
    form_.zyStatusBar.SetText(text_);
    if (DetailsDiffer()) {
        // File > Save takes the form over only while there is a change to be saved.
        AddHint(form_.zyStatusBar, rules_.gaRules(rules_.giCurRule).Code +
                                       (form_.ChangeFlag ? " edited; File > Save stores it"
                                                         : " differs from its fields; change one, then File "
                                                           "> Save stores them"));
    }
}

std::string RulesStatus::CountText() const {
    std::string text = Counted(static_cast<std::size_t>(rules_.gaRules.UBound()), "rule");
    Join(text, "; ", DescribeSkipped(rules_.SkippedLines()));
    Join(text, "; ", rules_.Dangers());
    return text;
}

bool RulesStatus::DetailsDiffer() const {
    if (rules_.giCurRule == -1) {
        return false;
    }
    const RunRule& held = rules_.gaRules(rules_.giCurRule);
    return RuleInForm(controls_, held) != held;
}

} // namespace zy
