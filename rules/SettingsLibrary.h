#pragma once

#include <deque>
#include <optional>
#include <string>

#include "basics/Int16.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"
#include "rules/RulesReader.h"
#include "rules/RunRule.h"

namespace zy {

/// The product's settings as this program needs them: where the rules file lies and what it holds. It owns
/// every rule object of the run, so that a reference to one stays good after the rule left the list.
class SettingsLibrary {
  public:
    /// The rules as the file holds them, counted from 1.
    class RuleCollection {
      public:
        explicit RuleCollection(std::deque<RunRule>& rules) : rules_(rules) {}

        /// Run-time error 6 when the file holds more than 32,767 rules.
        int Count() const { return ToInt16(rules_.size()); }
        /// Run-time error 9 for an index outside 1..Count.
        RunRule& Item(int index) const;

      private:
        std::deque<RunRule>& rules_;
    };

    SettingsLibrary(FileSystem& files, SystemInfo& system) : files_(files), system_(system) {}

    /// The full path of the rules file.
    std::string RulesFile() const;

    /// Reads the rules file. A missing or empty file gives no rules; one that is there but cannot be read
    /// whole is run-time error 75 or 57, so that what is left of it is never taken for the whole list and
    /// saved as such.
    RuleCollection Rules();
    /// Whether there was one when it was read last.
    bool HasFoundFile() const { return hasFoundFile_; }
    /// What reading came upon that is no part of a rule and so would not be written back.
    const RulesReadReport& Report() const { return report_; }

    /// A new rule without values.
    RunRule& NewRule() { return added_.emplace_back(); }

  private:
    FileSystem& files_;
    SystemInfo& system_;
    std::deque<RunRule> read_;
    std::deque<RunRule> added_;
    RulesReadReport report_;
    bool hasFoundFile_ = false;
};

} // namespace zy
