#include "rules/mRules.h"

#include "basics/Text.h"
#include "rules/RulesFileText.h"
#include "rules/RulesFormat.h"
#include "rules/TemporaryRules.h"
#include "shell/ListFile.h"
#include "shell/StatusTexts.h"
#include "shell/mZYGlobal.h"

namespace zy {

mRules::mRules(FileSystem& files, SystemInfo& system, TraceChannel& trace)
    : files_(files), system_(system), trace_(trace) {}

SettingsLibrary& mRules::Settings() {
    if (!goSettings_) {
        goSettings_ = std::make_unique<SettingsLibrary>(files_, system_);
    }
    return *goSettings_;
}

void mRules::Build_Rules_Array() {
    spare_.clear();
    goSettings_ = std::make_unique<SettingsLibrary>(files_, system_);
    trace_.DebugTrace(kRulesModule, "Build_Rules_Array", "Start");
    const auto collection = goSettings_->Rules();
    const int count = collection.Count();
    gaRules.Reset(count);
    for (int i = 1; i <= count; ++i) {
        RunRule& rule = collection.Item(i);
        gaRules.Append(rule);
        rule.Description = JoinedDescription(rule);
    }
    skippedLines_ = goSettings_->Report().skippedLines;
}

void mRules::LookForDangers() {
    const auto rulesFile = Settings().RulesFile();
    dangers_ = Settings().HasFoundFile() ? std::string() : DescribeMissed(files_, rulesFile);
    Join(dangers_, "; ", DescribeUnfinishedSave(files_, TemporaryFile(), rulesFile));
    for (const auto& path : {rulesFile, TemporaryFile()}) {
        const auto uncertainty = Uncertainty(files_, path);
        Join(dangers_, "; ", uncertainty.empty() ? uncertainty : "saving is refused, " + uncertainty);
    }
    Join(dangers_, "; ", Obstacle(rulesFile, files_.MayReplace(rulesFile)));
}

void mRules::Add_New_Rule() {
    trace_.DebugTrace(kRulesModule, "Add_New_Rule", "Start");
    RunRule& rule = Settings().NewRule();
    rule.Code = "NEW";
    rule.Cond = "=";
    rule.Description = "New";
    rule.Max = "2";
    rule.Min = "1";
    rule.Zone = "USL";
    gaRules.Append(rule);
    gbNewRule = true;
}

void mRules::Delete_Rule(int index) {
    trace_.DebugTrace(kRulesModule, "Delete_Rule", "Start item: " + std::to_string(index));
    gaRules.Remove(index);
}

void mRules::ReplaceRules(int first, int count, const std::vector<RunRule>& others) {
    const int wanted = static_cast<int>(others.size());
    for (int i = count; i > wanted; --i) {
        spare_.push_back(&gaRules(first + i - 1));
        gaRules.Remove(first + i - 1);
    }
    for (int i = 0; i < wanted; ++i) {
        const int index = first + i;
        if (i >= count) {
            gaRules.Insert(index, RuleToPutIn());
        }
        gaRules.Set(index, others[static_cast<std::size_t>(i)]);
    }
}

RunRule& mRules::RuleToPutIn() {
    if (spare_.empty()) {
        return Settings().NewRule();
    }
    RunRule& rule = *spare_.back();
    spare_.pop_back();
    return rule;
}

std::string mRules::Dangers() const {
    auto text = dangers_;
    Join(text, "; ",
         lastSaveFailed_ ? "the last save failed, change a rule and save again before closing" : "");
    return text;
}

void mRules::ReportFailure(std::string_view what, FileError error) {
    lastSaveFailed_ = true;
    reported.Raise(Failure(what, error));
}

/// Writes the temporary file whole, down to the disk. A file that came out short is removed: it holds half a
/// list.
bool mRules::WriteTemporary(const std::string& temporary, const std::string& text) {
    auto created = files_.Create(temporary);
    if (!created.handle) {
        ReportFailure("Not saved, " + std::string(kRulesTemporaryName) + " could not be created",
                      created.error);
        return false;
    }
    dangers_.clear();
    const auto error = WriteAndClose(*created.handle, text);
    if (error != FileError::None) {
        static_cast<void>(files_.Delete(temporary)); // one that stays is reported at the next start
        ReportFailure("Not saved, " + std::string(kRulesTemporaryName) + " could not be written", error);
        return false;
    }
    return true;
}

std::string mRules::TemporaryFile() {
    return std::string(FolderOf(Settings().RulesFile())).append(kRulesTemporaryName);
}

std::string mRules::WhyNotToSaveRules(const SaveTurn& turn) {
    const auto refusal = WhyNotToSave(files_, Settings().RulesFile(), turn);
    return refusal.empty() ? WhyNotToSave(files_, TemporaryFile(), turn) : refusal;
}

bool mRules::Write_Rules_File() {
    const SaveTurn turn(files_, Settings().RulesFile());
    return SaveInTurn(WhyNotToSaveRules(turn), saveHooks, reported, [this] { ReplaceFile(); });
}

void mRules::ReplaceFile() {
    trace_.DebugTrace(kRulesModule, "Write_Rules_File", "Start");
    auto& files = files_;
    const std::string temporary = TemporaryFile();
    if (files.Exists(temporary) && files.Delete(temporary) == FileError::None) {
        dangers_.clear();
    }
    const std::string text = RulesFileText(gaRules);
    if (!WriteTemporary(temporary, text)) {
        return;
    }
    const std::string rulesFile = Settings().RulesFile();
    FileError deleted = FileError::None;
    if (files.Exists(rulesFile)) {
        // Where they cannot be given on, the new file has those of any new one, and the rules are saved.
        static_cast<void>(files.CopyPermissions(rulesFile, temporary));
        deleted = files.Delete(rulesFile);
    }
    const auto renamed = files.Rename(temporary, rulesFile);
    if (renamed == FileError::None) {
        skippedLines_ = 0;
        lastSaveFailed_ = false;
        reported.Raise(std::string(kListSaved));
    } else {
        // Where the old file is still there, the reason is why it could not be deleted.
        const bool stayed = renamed == FileError::Exists && deleted != FileError::None;
        ReportNotReplaced(temporary, text, stayed ? deleted : renamed);
    }
    trace_.DebugTrace(kRulesModule, "Write_Rules_File", "Finished");
    gbRulesChanged = false;
}

/// Another program may have taken the temporary file, or the disk may have gone away with it, so that it is
/// looked up.
void mRules::ReportNotReplaced(const std::string& temporary, const std::string& text, FileError error) {
    const std::string notReplaced = std::string(kRulesFileName) + " could not be replaced";
    const std::string beside(kRulesTemporaryName);
    ReportFailure(HoldsText(files_, temporary, text)
                      ? "The rules stand in " + beside + ", " + notReplaced
                      : "Not saved, " + notReplaced + ", and the rules were not found in " + beside,
                  error);
}

} // namespace zy
