#pragma once

#include <initializer_list>

#include "ListLines.h"
#include "support/ProgramTest.h"

namespace zy::test {

/// The rules page of a running program, driven as a user does it.
///
/// Rules that a test gives by their codes alone are "1|2|>|UCL|text"; loading leaves two blanks behind the
/// description.
class RulesForm : public ProgramTest {
  protected:
    static RunRule RuleOf(const std::string& code) {
        return {.Code = code,
                .Min = "1",
                .Max = "2",
                .Cond = ">",
                .Zone = "UCL",
                .Description = "text",
                .Desc2 = {},
                .Desc3 = {}};
    }

    /// Starts the rules editor over a file of these rules.
    void StartWith(const std::vector<RunRule>& rules) { StartOver(Text(rules)); }
    void StartWithCodes(std::initializer_list<const char*> codes) {
        std::vector<RunRule> rules;
        for (const auto* code : codes) {
            rules.push_back(RuleOf(code));
        }
        StartWith(rules);
    }
    void StartOver(std::string_view bytes) {
        world.files.Put(kRulesFile, bytes);
        ASSERT_EQ(Start("@RULES"), StartUp::WindowShown);
    }

    mRules& rules() { return program().rules; }
    RulesPage& handlers() { return program().rulesPage; }
    RulesControls& page() { return handlers().controls; }
    ListView& list() { return page().lstRulesList; }

    void ChooseSave() { window().menu.mnuSave.Click(); }
    void ChooseExit() { window().menu.mnuExit.Click(); }
    void Delete(Answer answer) {
        ExpectDeleteQuestion(answer);
        page().cmdDeleteList.Click();
    }
    void ExpectDeleteQuestion(Answer answer) {
        world.dialogs.ExpectYesNo("Are you Sure you want to Delete this Rule", "Confirm Delete", answer,
                                  Escape::AnswersNo);
    }

    std::vector<std::string> Rows() { return LinesOf(list()); }
    /// The first column of the list alone.
    std::vector<std::string> Codes() {
        std::vector<std::string> codes;
        for (int item = 1; item <= list().Count(); ++item) {
            codes.emplace_back(list().CellText(item, 0));
        }
        return codes;
    }

    /// What the detail form shows, as "code|min|max|condition item|zone item|description".
    std::string Details() {
        return page().txtCode.Text() + "|" + page().txtMin.Text() + "|" + page().txtMax.Text() + "|" +
               page().cboCondition.Text() + "|" + page().cboZone.Text() + "|" + page().txtDescription.Text();
    }

    /// The rule in hand and the item that is selected are the same one.
    void ExpectInHand(int index) {
        EXPECT_EQ(rules().giCurRule, index);
        EXPECT_EQ(list().Selected(), index);
    }

    const std::string& Status() { return form().zyStatusBar.Text(); }
    std::optional<std::string> File() const { return world.files.Get(kRulesFile); }

    /// The bytes of a rules file.
    static std::string Text(const std::vector<RunRule>& rules) {
        std::string text;
        for (const auto& rule : rules) {
            text += Section(rule);
        }
        return text;
    }
    /// A rule as loading leaves it: with two blanks behind its description.
    static RunRule Loaded(const std::string& code) {
        RunRule rule = RuleOf(code);
        rule.Description += "  ";
        return rule;
    }
};

} // namespace zy::test
