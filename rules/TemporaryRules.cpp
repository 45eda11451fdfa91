#include "rules/TemporaryRules.h"

#include <deque>

#include "basics/Int16.h"
#include "rules/RulesFileText.h"
#include "rules/RulesFormat.h"
#include "rules/RulesReader.h"
#include "shell/StatusTexts.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

/// Whether the file holds these rules as a save writes them, to the last character.
bool IsWhole(FileSystem& files, std::string_view path, std::deque<RunRule>& rules) {
    if (rules.size() > kMaxItems) {
        return false;
    }
    RuleList list;
    for (auto& rule : rules) {
        list.Append(rule);
    }
    return HoldsText(files, path, RulesFileText(list));
}

std::string DescribeRules(FileSystem& files, std::string_view path, std::deque<RunRule>& rules) {
    return "holds " + Counted(rules.size(), "rule") +
           (IsWhole(files, path, rules) ? "" : ", perhaps not whole");
}

/// The only copy there is, or one beside the rules file.
std::string Advice(FileSystem& files, std::string_view rulesFile) {
    return files.OpenForReading(rulesFile).error == FileError::NotFound
               ? ", saving deletes it: close and rename it to " + std::string(kRulesFileName)
               : ", saving deletes it: copy it away if you need it";
}

} // namespace

std::string DescribeUnfinishedSave(FileSystem& files, std::string_view temporary,
                                   std::string_view rulesFile) {
    if (!files.Exists(temporary)) {
        return {};
    }
    const std::string subject = std::string(FileNameOf(temporary)) + " ";
    const auto opened = files.OpenForReading(temporary);
    if (!opened.handle) {
        return subject + "could not be read: " + std::string(Describe(opened.error)) + "; saving deletes it";
    }
    std::deque<RunRule> rules;
    ReadRules(*opened.handle, rules);
    if (rules.empty()) {
        return subject + "holds no rules";
    }
    return subject + DescribeRules(files, temporary, rules) + Advice(files, rulesFile);
}

} // namespace zy
