#pragma once

#include "controls/GridCells.h"
#include "shell/ListRecords.h"

namespace zy {

/// The units as records. Unit and description together tell one from the others: nothing else does, so that
/// one that was edited is another one.
class UnitRecords : public ListRecords {
  public:
    /// As the grid shows them. It must outlive this.
    explicit UnitRecords(const GridCells& grid) : grid_(grid) {}

    std::string_view Noun() const override { return "unit"; }
    std::vector<std::string> Columns() const override { return grid_.Headers(); }
    RowTexts Comparable(const RowTexts& rows) const override { return rows; }
    std::string Key(const RowTexts& comparable, int row) const override;
    std::optional<FileRecords> Read(std::string_view bytes) const override;

  private:
    const GridCells& grid_;
};

} // namespace zy
