#include "rules/SettingsLibrary.h"

#include "basics/RuntimeError.h"
#include "rules/RulesFormat.h"
#include "shell/mZYGlobal.h"

namespace zy {

RunRule& SettingsLibrary::RuleCollection::Item(int index) const {
    if (index < 1 || static_cast<std::size_t>(index) > rules_.size()) {
        RaiseSubscriptOutOfRange();
    }
    return rules_[static_cast<std::size_t>(index) - 1];
}

std::string SettingsLibrary::RulesFile() const {
    return GetSystemDir(system_).append(kRulesFileName);
}

SettingsLibrary::RuleCollection SettingsLibrary::Rules() {
    const std::string path = RulesFile();
    read_.clear();
    report_ = {};
    hasFoundFile_ = files_.Exists(path);
    if (hasFoundFile_) {
        const auto opened = files_.OpenForReading(path);
        if (!opened.handle) {
            RaisePathRefused(files_.DisplayPath(path) + ", " + std::string(Describe(opened.error)));
        }
        report_ = ReadRules(*opened.handle, read_);
        if (!report_.complete) {
            RaiseDeviceFailed(files_.DisplayPath(path) + " could not be read to its end");
        }
    }
    return RuleCollection(read_);
}

} // namespace zy
