#include "units/UnitRecords.h"

#include <vector>

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
    std::vector<TextPlace> places;
    TextParts cells(bytes, places);
    FileRecords records{RowTexts(kUnitsColumns), {}};
    try {
        records.dropped = Describe(AppendUnitCells(bytes, {}, cells));
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
    for (const auto place : places) {
        records.rows.Add(place.In(bytes));
    }
    return records;
}

} // namespace zy
