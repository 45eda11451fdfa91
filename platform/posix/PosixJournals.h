#pragma once

#include "platform/Journals.h"

namespace zy {

/// Journals as files in the folder "zysetup" below the user's folder for the state of programs; those for
/// passwords below the folder that the system keeps in memory until the user logs out. Each is held by the
/// system's own advisory lock of its file, which goes with the process that holds it, however that ends.
class PosixJournals final : public Journals {
  public:
    OpenedJournal Create(std::string_view kind, Secrecy secrecy) override;
    std::vector<std::unique_ptr<Journal>> Orphans(std::string_view kind, Secrecy secrecy) override;
    std::string Fingerprint(std::string_view bytes) const override;
};

} // namespace zy
