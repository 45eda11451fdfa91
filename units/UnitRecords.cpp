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
    TextParts cells(bytes);
    FileRecords records{RowTexts(kUnitsColumns), {}};
    try {
        records.dropped = Describe(AppendUnitCells(bytes, {}, cells));
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
    for (std::size_t cell = 0; cell < cells.Count(); ++cell) {
        records.rows.Add(cells[cell]);
    }
    return records;
}

} // namespace zy
