#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "controls/Grid.h"
#include "controls/TextBox.h"
#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "platform/SystemInfo.h"
#include "rules/RuleList.h"
#include "shell/TraceChannel.h"

namespace zy {

/// The checks of a rule's fields. Each shows its own message on failure; none changes a rule.
class RuleChecks {
  public:
    RuleChecks(const RuleList& rules, SystemInfo& system, Dialogs& dialogs, const CodePage& codePage,
               TraceChannel& trace);

    /// True when the code is acceptable for the rule at `index`: 1 to 3 characters, no double quote, and no
    /// other rule has it, whatever the case and the blanks around.
    bool CheckCode(std::string_view code, int index);
    /// True for a number from 1 to 100, fractions included.
    bool Check_Min(std::string_view text);
    bool Check_Max(std::string_view text);
    /// What both find of a text; shows and traces nothing.
    bool IsCount(std::string_view text) const;
    /// True unless min is greater than max. Equal counts pass although the message says "less than": rules
    /// such as "one point above the limit" have them. A text that is no number counts as 0.
    bool Verify_MinMax(std::string_view minText, std::string_view maxText);
    /// True for a text that is not empty and holds no double quote; blanks alone pass.
    bool CheckDescription(std::string_view text);
    /// Checks every row of the rules grid, in time linear in the rows. The first cell that fails is selected
    /// and opened for editing. Codes are compared with the rules as held, not with the other rows.
    bool Validate_RulesGRid(Grid& grid);

    /// Shows a message box with an OK button, and comes back when it was closed.
    void ShowRuleError(std::string_view message, std::string_view title);

  private:
    /// How many rules have a code, by the code as it is compared.
    using CodeCounts = std::unordered_map<std::string, int>;

    CodeCounts CountCodes() const;
    std::string ComparedCode(std::string_view code) const;
    bool IsTaken(const CodeCounts& counts, std::string_view code, int index) const;
    bool CheckCode(std::string_view code, const std::function<bool()>& isTaken);
    bool CheckCount(std::string_view text, std::string_view name);
    double NumberOf(std::string_view text) const;
    /// The column of the row's first cell that fails; -1 when all pass.
    int FailingColumn(const GridCells& grid, int row, const CodeCounts& counts);
    void Start(std::string_view procedure);

    const RuleList& rules_;
    SystemInfo& system_;
    Dialogs& dialogs_;
    const CodePage& codePage_;
    TraceChannel& trace_;
};

/// Gives the text box the focus and selects its whole text.
void SelectAllText(TextBox& box);

} // namespace zy
