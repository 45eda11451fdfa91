#pragma once

#include "controls/GridCells.h"
#include "platform/CodePage.h"
#include "shell/ListRecords.h"

namespace zy {

/// The users as records. A user is told from the others by the name, capitals and blanks around it aside, as
/// the login compares it.
class UserRecords : public ListRecords {
  public:
    /// As the grid shows them. Both must outlive it.
    UserRecords(const GridCells& grid, const CodePage& codePage) : grid_(grid), codePage_(codePage) {}

    std::string_view Noun() const override { return "user"; }
    std::vector<std::string> Columns() const override { return grid_.Headers(); }
    RowTexts Comparable(const RowTexts& rows) const override;
    std::string Key(const RowTexts& comparable, int row) const override;
    std::optional<FileRecords> Read(std::string_view bytes) const override;

  private:
    const GridCells& grid_;
    const CodePage& codePage_;
};

} // namespace zy
