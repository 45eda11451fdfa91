#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "basics/Bool16.h"
#include "controls/Event.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"
#include "rules/RuleList.h"
#include "rules/SettingsLibrary.h"
#include "shell/SaveTurn.h"
#include "shell/TraceChannel.h"

// The rules editor: the rule list and its file (mRules), the checks (RuleChecks), and the page (RulesPage)
// with its list (RulesListMode), its detail form (RuleDetails, RuleDetailChecks), what the status bar says
// (RulesStatus), the pictures of the rules
// (RulePicture, RuleDrawing, RulePictures), and the grid view that the page carries out of reach
// (RulesGridMode). It owns the rules and the rules file, and calls the low part of the shell and what lies
// below that.

namespace zy {

/// The rule list, its file, and the state that belongs with them.
class mRules {
  public:
    mRules(FileSystem& files, SystemInfo& system, TraceChannel& trace);

    /// Takes the rule list from the settings library. Run-time error 6 when it holds more than 32,767 rules.
    void Build_Rules_Array();

    /// Writes the rule list to the rules file, by way of "Rules.tmp" in the same folder.
    ///
    /// No box shows what failed, `reported` alone says so. Until the new text stands whole on the disk the
    /// old file is not touched; when only the last step fails, the rules stand in "Rules.tmp".
    ///
    /// False when the save is refused before its first step, and `reported` says why: somebody else is saving
    /// in the folder, or it is not certain which file one of the two is.
    bool Write_Rules_File();

    /// Appends a rule with the values of a new one. Run-time error 6 when the list is full.
    void Add_New_Rule();
    /// Takes a rule out of the list; those behind it move up. Run-time error 9 when there is no such rule.
    void Delete_Rule(int index);

    /// Puts other rules in place of `count` rules from `first` on. Run-time error 9 when there are no such
    /// rules.
    void ReplaceRules(int first, int count, const std::vector<RunRule>& others);

    RuleList gaRules;
    int giCurRule = -1;    ///< the rule in the detail form, -1 for none
    Bool16 gbNewRule;      ///< a rule was added and not stored from the detail form yet
    Bool16 gbRulesChanged; ///< cleared by writing and never set, which keeps a step of EditRule dormant
    Bool16 gbLoadingRule;  ///< the program fills the detail form: its change events are no user edits
    Bool16 gbGridChanged; ///< a cell of the rules grid was changed; never cleared, so that every later switch
                          ///< stores

    /// Lines of the rules file that are no part of a rule; the next save will not write them back.
    std::size_t SkippedLines() const { return skippedLines_; }

    /// Looks up what else a save would destroy, or why it would be refused: the temporary file of a save that
    /// did not come to its end, names that differ by case alone, a file that cannot be replaced. To be asked
    /// for in one's turn to save, or the temporary file may be one that is just being written.
    void LookForDangers();
    /// What was found then, for the status bar, or that the last save failed. A save that goes well ends it.
    std::string Dangers() const;
    /// Whether the last save ran and failed. The marks are gone then, so that closing asks nothing.
    bool LastSaveFailed() const { return lastSaveFailed_; }

    /// How a save ended, as a short text for the status bar.
    Event<const std::string&> reported;
    SaveHooks saveHooks;

  private:
    SettingsLibrary& Settings();
    /// A rule object that is in no list.
    RunRule& RuleToPutIn();
    std::string TemporaryFile();
    std::string WhyNotToSaveRules(const SaveTurn& turn);
    void ReportFailure(std::string_view what, FileError error);
    void ReplaceFile();
    bool WriteTemporary(const std::string& temporary, const std::string& text);
    void ReportNotReplaced(const std::string& temporary, const std::string& text, FileError error);

    FileSystem& files_;
    SystemInfo& system_;
    TraceChannel& trace_;
    std::unique_ptr<SettingsLibrary> goSettings_;
    std::size_t skippedLines_ = 0;
    std::string dangers_;
    bool lastSaveFailed_ = false;
    std::vector<RunRule*> spare_; ///< those that ReplaceRules took out of the list
};

} // namespace zy
