#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"
#include "shell/Editor.h"
#include "shell/ListFile.h"
#include "shell/SettingsForm.h"
#include "shell/frmMerge.h"

namespace zy {

/// Nobody's work is overwritten: what another program writes to the list's file is noticed when the window
/// becomes active and before a save, and can be taken over.
///
/// The moment between the last look and the first step of a save stays: a file has no lock that the other
/// programs would heed.
class ChangesByOthers {
  public:
    /// All of these must outlive it.
    ChangesByOthers(ListFile& file, Editor& editor, SettingsForm& form, FileSystem& files, SystemInfo& system,
                    Dialogs& dialogs);
    ChangesByOthers(const ChangesByOthers&) = delete;
    ChangesByOthers& operator=(const ChangesByOthers&) = delete;

    /// The window has become active: shows the notice of a change, or takes it away.
    void Look();
    /// What the notice offers: the change beside one's own; the file's records in place of the list's; and
    /// not to be told again of this change.
    void lblShow_Click();
    void lblLoad_Click();
    void lblIgnore_Click();

    /// The file that the list goes on from is another one now, and the list differs from it.
    Event<> rebased;

  private:
    void Connect();
    void AskBeforeSave(bool& may);
    SharedText ReadForSave();
    void RefuseSave(std::string& reason) const;
    void TakeUpSaved();
    /// Asks what is to become of what the file holds now, where there is anything to be decided. False when
    /// it is left as it is.
    bool Settle(const SharedText& theirs, frmMerge::Purpose purpose);
    bool SettleUnreadable(const SharedText& theirs, frmMerge::Purpose purpose);
    frmMerge::Answer Ask(const frmMerge::Lists& lists, RowMerge* merge, frmMerge::Purpose purpose);
    /// From here on the file is known to hold this, and the list, which may be the same, goes on from it.
    void GoOnFrom(const SharedText& theirs, bool isTheList);
    std::string Notice() const;
    void HideNotice();
    /// In the status bar.
    void Tell(std::string_view hint);

    ListFile& file_;
    Editor& editor_;
    SettingsForm& form_;
    FileSystem& files_;
    SystemInfo& system_;
    Dialogs& dialogs_;
    SharedText ignored_;
    std::vector<Subscription> subscriptions_;
};

} // namespace zy
