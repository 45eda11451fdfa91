#pragma once

#include "platform/World.h"
#include "shell/ChangesByOthers.h"
#include "shell/EarlierVersions.h"
#include "shell/Editor.h"
#include "shell/ListFile.h"
#include "shell/SettingsForm.h"
#include "shell/VersionKeeper.h"

namespace zy {

/// What stands around the list of the editor that was started, from its loading on: its file, what other
/// programs do to that, the list's earlier versions, and what of it is not saved.
class ListSession {
  public:
    /// The editor is about to load its list from this file. All of these must outlive the session.
    ListSession(const World& world, SettingsForm& form, ListFile& file, Editor& editor,
                VersionKeeper::Keeps keeps);
    ListSession(const ListSession&) = delete;
    ListSession& operator=(const ListSession&) = delete;

    /// The differences between the file and the list as it stands, each of which can be taken back.
    void ShowUnsavedChanges();
    void ShowEarlierVersions();
    void ShowChangesByOthers() { others_.lblShow_Click(); }
    /// The window has become active.
    void Activated() { others_.Look(); }
    /// Takes the keyboard to the notice, if there is one, or back from there to the list.
    void GoToOtherPart();
    /// There is nothing else to do at the moment.
    void Idle();

    /// The file that the list goes on from is another one now, and the list differs from it.
    Event<> rebased;

  private:
    /// Says where a save would find no room, before anybody edits.
    void LookForRoom();

    SettingsForm& form_;
    FileSystem& files_;
    Dialogs& dialogs_;
    Editor& editor_;
    ListFile& file_;
    EarlierVersions store_;
    ChangesByOthers others_;
    VersionKeeper versions_;
    bool hasLooked_ = false; ///< for room
};

} // namespace zy
