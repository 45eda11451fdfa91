#include "rules/RuleRecords.h"

#include <deque>

#include "basics/Int16.h"
#include "basics/Text.h"
#include "platform/BytesFile.h"
#include "rules/RulesReader.h"
#include "rules/RulesStatus.h"
#include "rules/RunRule.h"

namespace zy {

std::vector<std::string> RuleRecords::Columns() const {
    std::vector<std::string> columns;
    columns.reserve(kRuleFields.size());
    for (const auto& field : kRuleFields) {
        columns.emplace_back(field.listHeader);
    }
    return columns;
}

std::string RuleRecords::Key(const RowTexts& comparable, int row) const {
    return codePage_.UCase(Trim(comparable.Text(row, kCodeColumn)));
}

/// A description comes back with blanks at its end.
RowTexts RuleRecords::Comparable(const RowTexts& rows) const {
    RowTexts comparable(kRuleColumns);
    for (int row = 0; row < rows.Rows(); ++row) {
        for (int column = 0; column < kRuleColumns; ++column) {
            const auto text = rows.Text(row, column);
            comparable.Add(column == kDescriptionColumn ? Trim(text) : text);
        }
    }
    return comparable;
}

std::optional<FileRecords> RuleRecords::Read(std::string_view bytes) const {
    std::deque<RunRule> rules;
    BytesFile file(bytes);
    const auto report = ReadRules(file, rules);
    if (rules.size() > kMaxItems) {
        return std::nullopt;
    }
    FileRecords records{RowTexts(kRuleTexts.size()), DescribeSkipped(report.skippedLines)};
    for (auto& rule : rules) {
        rule.Description = JoinedDescription(rule);
        for (const auto property : kRuleTexts) {
            records.rows.Add(rule.*property);
        }
    }
    return records;
}

} // namespace zy
