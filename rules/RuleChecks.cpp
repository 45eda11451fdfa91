#include "rules/RuleChecks.h"

#include "basics/Int16.h"
#include "basics/Number.h"
#include "basics/Text.h"

namespace zy {
namespace {

constexpr std::string_view kCodeTitle = "Invalid Rule Code";
constexpr std::string_view kDescriptionTitle = "Invalid Rule Description";
constexpr char kQuote = '"';

} // namespace

RuleChecks::RuleChecks(const RuleList& rules, SystemInfo& system, Dialogs& dialogs, const CodePage& codePage,
                       TraceChannel& trace)
    : rules_(rules), system_(system), dialogs_(dialogs), codePage_(codePage), trace_(trace) {}

void RuleChecks::Start(std::string_view procedure) {
    trace_.DebugTrace(kRulesModule, procedure, "Start");
}

void RuleChecks::ShowRuleError(std::string_view message, std::string_view title) {
    dialogs_.ShowMessage(message, title);
}

std::string RuleChecks::ComparedCode(std::string_view code) const {
    return codePage_.UCase(Trim(code));
}

RuleChecks::CodeCounts RuleChecks::CountCodes() const {
    CodeCounts counts;
    counts.reserve(static_cast<std::size_t>(rules_.UBound()));
    for (int i = 1; i <= rules_.UBound(); ++i) {
        ++counts[ComparedCode(rules_(i).Code)];
    }
    return counts;
}

bool RuleChecks::IsTaken(const CodeCounts& counts, std::string_view code, int index) const {
    const auto compared = ComparedCode(code);
    const auto found = counts.find(compared);
    const int all = found == counts.end() ? 0 : found->second;
    const bool isRule = index >= 1 && index <= rules_.UBound();
    const int own = isRule && ComparedCode(rules_(index).Code) == compared ? 1 : 0;
    return all > own;
}

bool RuleChecks::CheckCode(std::string_view code, int index) {
    return CheckCode(code, [&] { return IsTaken(CountCodes(), code, index); });
}

bool RuleChecks::CheckCode(std::string_view code, const std::function<bool()>& isTaken) {
    constexpr std::size_t kLongest = 3;
    Start("CheckCode");
    const auto fail = [this](std::string_view message) {
        ShowRuleError(message, kCodeTitle);
        return false;
    };
    if (code.empty()) {
        return fail("Rule Code cannot be Blank");
    }
    if (code.size() > kLongest) {
        return fail("Rule Code must be 1 to 3 characters");
    }
    if (Contains(code, kQuote)) {
        return fail("Rule Code cannot contain double quotes");
    }
    if (isTaken()) {
        return fail("Rule Code must be unique");
    }
    return true;
}

bool RuleChecks::Check_Min(std::string_view text) {
    Start("Check_Min");
    return CheckCount(text, "Min");
}

bool RuleChecks::Check_Max(std::string_view text) {
    Start("Check_Max");
    return CheckCount(text, "Max");
}

bool RuleChecks::CheckCount(std::string_view text, std::string_view name) {
    if (IsCount(text)) {
        return true;
    }
    const std::string field(name);
    const bool isNumber = ParseNumber(text, system_.DecimalSeparator()).has_value();
    ShowRuleError(field + (isNumber ? " Must be between 1 and 100" : " Must be a Numeric Value"),
                  "Invalid Rule " + field + " Value");
    return false;
}

bool RuleChecks::IsCount(std::string_view text) const {
    constexpr double kLeast = 1;
    constexpr double kMost = 100;
    const auto number = ParseNumber(text, system_.DecimalSeparator());
    return number && *number >= kLeast && *number <= kMost;
}

double RuleChecks::NumberOf(std::string_view text) const {
    return ParseNumber(text, system_.DecimalSeparator()).value_or(0);
}

bool RuleChecks::Verify_MinMax(std::string_view minText, std::string_view maxText) {
    Start("Verify_MinMax");
    if (NumberOf(minText) > NumberOf(maxText)) {
        ShowRuleError("Min Value must be less than Max Value", "Invalid Rule Max or Min Value");
        return false;
    }
    return true;
}

bool RuleChecks::CheckDescription(std::string_view text) {
    if (text.empty()) {
        ShowRuleError("Rule Description cannot be Blank", kDescriptionTitle);
        return false;
    }
    if (Contains(text, kQuote)) {
        ShowRuleError("Rule Description cannot contain double quotes", kDescriptionTitle);
        return false;
    }
    return true;
}

int RuleChecks::FailingColumn(const GridCells& grid, int row, const CodeCounts& counts) {
    // Condition and zone are not checked: their cells are edited through fixed lists.
    const auto& code = grid.Text(row, kCodeColumn);
    if (!CheckCode(code, [&] { return IsTaken(counts, code, ToInt16(row)); })) {
        return kCodeColumn;
    }
    if (!Check_Min(grid.Text(row, kMinColumn))) {
        return kMinColumn;
    }
    if (!Check_Max(grid.Text(row, kMaxColumn)) ||
        !Verify_MinMax(grid.Text(row, kMinColumn), grid.Text(row, kMaxColumn))) {
        return kMaxColumn;
    }
    return CheckDescription(grid.Text(row, kDescriptionColumn)) ? -1 : kDescriptionColumn;
}

bool RuleChecks::Validate_RulesGRid(Grid& grid) {
    Start("Validate_RulesGRid");
    const auto counts = CountCodes();
    for (int row = 1; row < grid.cells.Rows(); ++row) {
        const int column = FailingColumn(grid.cells, row, counts);
        if (column != -1) {
            grid.selection.Select(row, column);
            grid.editor.Open();
            return false;
        }
    }
    return true;
}

void SelectAllText(TextBox& box) {
    box.SetFocus();
    box.Select(0, box.Text().size());
}

} // namespace zy
