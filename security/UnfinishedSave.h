#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "dbase/TableImage.h"
#include "platform/FileSystem.h"
#include "security/UserFiles.h"

namespace zy {

/// How far a save had come when it failed.
struct FailedSave {
    std::size_t users = 0;        ///< to be saved
    bool foundTemporary = false;  ///< the temporary table stood there already
    bool tableIsRecycled = false; ///< the recycle bin has taken the old table
};

/// What a save that did not come to its end has left in its folder. All that its texts say was looked up.
class UnfinishedSave {
  public:
    /// Looks at the folder's files. Raises nothing.
    UnfinishedSave(FileSystem& files, const UserFiles& names);

    /// For the status bar when the editor opens; empty when there is no temporary table.
    std::string Notice() const;
    /// What a box says behind the error of a save; empty when there is no temporary table.
    std::string Account(const FailedSave& save) const;

  private:
    void ReadTemporary(FileSystem& files, std::string_view path);
    bool HoldsUsers() const;
    std::string Advice(const FailedSave& save) const;

    std::string table_;     ///< as people name it
    std::string temporary_; ///< and so the temporary table
    bool hasTable_ = false;
    bool hasTemporary_ = false;
    std::optional<dbase::TableContent> content_; ///< of the temporary table, when it can be read
    std::string fault_;                          ///< why it cannot be read
};

} // namespace zy
