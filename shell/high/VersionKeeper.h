#pragma once

#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/SystemInfo.h"
#include "shell/EarlierVersions.h"
#include "shell/Editor.h"
#include "shell/ListFile.h"

namespace zy {

/// Keeps what each save of a list replaces, and brings it back.
class VersionKeeper {
  public:
    /// Passwords are kept nowhere but in their table: what a save of them replaces is in the recycle bin.
    enum class Keeps { Versions, Nothing };

    /// All of these must outlive it.
    VersionKeeper(ListFile& file, Editor& editor, EarlierVersions& versions, SystemInfo& system,
                  Dialogs& dialogs, Keeps keeps);
    VersionKeeper(const VersionKeeper&) = delete;
    VersionKeeper& operator=(const VersionKeeper&) = delete;

    /// Shows the versions, and puts the one that is chosen in place of the list.
    void Show();
    /// There is nothing else to do at the moment.
    void Idle();

    /// What is to be said of the last save, for the status bar.
    Event<const std::string&> reported;

  private:
    void Keep(std::string& refusal);
    void NoteEnd(SaveEnd end);
    std::string Explanation(bool any) const;
    void Restore(const std::string& time, const RowTexts& rows);

    ListFile& file_;
    Editor& editor_;
    EarlierVersions& versions_;
    SystemInfo& system_;
    Dialogs& dialogs_;
    Keeps keeps_;
    bool isKept_ = false; ///< what the last save was to replace
    std::string report_;  ///< not shown yet
    std::vector<Subscription> subscriptions_;
};

} // namespace zy
