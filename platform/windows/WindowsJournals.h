#pragma once

#include <string>

#include "platform/Journals.h"

namespace zy {

/// Journals as files in the folder "zysetup" below the user's folder for data that stays on this computer.
/// Those for passwords lie there too, protected with the user's own key, and are of kinds of their own. Each
/// is held by being open: it is shared with nobody, and the system closes it however the process ends.
class WindowsJournals final : public Journals {
  public:
    WindowsJournals();
    /// Below another folder instead.
    explicit WindowsJournals(const std::wstring& below);

    OpenedJournal Create(std::string_view kind, Secrecy secrecy) override;
    std::vector<std::unique_ptr<Journal>> Orphans(std::string_view kind, Secrecy secrecy) override;
    /// Empty when the system does not give one.
    std::string Fingerprint(std::string_view bytes) const override;

  private:
    std::wstring folder_;
};

} // namespace zy
