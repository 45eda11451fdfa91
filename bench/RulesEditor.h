#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "BigFile.h"
#include "FileWorld.h"
#include "rules/RulesFileText.h"
#include "rules/mRules.h"

namespace zy::bench {

/// The rules editor without a window, over a folder of the real system. What it loads must not outlive it.
class RulesEditor {
  public:
    static constexpr const BigFile& kFile = kRulesFile;

    /// The folder's path inside the program.
    explicit RulesEditor(std::string_view folder) : world_(folder) {}

    std::unique_ptr<mRules> Load() {
        auto rules = std::make_unique<mRules>(world_.Get().files, world_.Get().system, world_.Trace());
        rules->Build_Rules_Array();
        return rules;
    }
    static std::string Text(const mRules& rules) { return RulesFileText(rules.gaRules); }
    static int Count(const mRules& rules) { return rules.gaRules.UBound(); }
    static void Save(mRules& rules) { rules.Write_Rules_File(); }

  private:
    FileWorld world_;
};

} // namespace zy::bench
