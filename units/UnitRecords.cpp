#include "units/UnitRecords.h"

#include "basics/RuntimeError.h"
#include "units/UnitsFileText.h"

namespace zy {

std::string UnitRecords::Key(const RowTexts& comparable, int row) const {
    constexpr auto kBetween = "\r\n"; // which no file can hold inside a field
    return std::string(comparable.Text(row, kUnit))
        .append(kBetween)
        .append(comparable.Text(row, kUnitDescription));
}

std::optional<FileRecords> UnitRecords::Read(std::string_view bytes) const {
    std::vector<std::string_view> cells;
    FileRecords records{RowTexts(kUnitsColumns), {}};
    try {
        records.dropped = Describe(AppendUnitCells(bytes, {}, cells));
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
    for (const auto cell : cells) {
        records.rows.Add(cell);
    }
    return records;
}

} // namespace zy
