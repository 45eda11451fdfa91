#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "Targets.h"
#include "basics/RuntimeError.h"
#include "dbase/ErrorNumbers.h"
#include "dbase/IndexBuilder.h"
#include "dbase/Recordset.h"
#include "dbase/TableImage.h"
#include "index/IndexChecks.h"

namespace zy::fuzz {
namespace {

using dbase::TableImage;
using Row = std::vector<std::string>;

/// The table of a file; nothing when it is refused. Nothing else may be raised.
std::optional<TableImage> TableIn(std::string_view bytes) {
    try {
        return TableImage(std::string(bytes), "T.DBF");
    } catch (const RuntimeError& error) {
        Require(error.Number() == dbase::kBadFormat, "what is no table is refused as such");
        return std::nullopt;
    }
}

std::vector<Row> RowsOf(TableImage table) {
    dbase::Recordset records(std::move(table));
    std::vector<Row> rows;
    for (; !records.Eof(); records.MoveNext()) {
        Row row;
        for (int i = 0; i < records.Fields().Count(); ++i) {
            row.emplace_back(records.Fields().Item(i).Value());
            Require(!row.back().ends_with(' ') && !row.back().ends_with('\0'),
                    "a value ends before its blanks");
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

/// The first text column; nothing when there is none.
std::optional<std::size_t> FirstTextColumn(const TableImage& table) {
    for (std::size_t i = 0; i != table.Fields().size(); ++i) {
        if (dbase::CanBeIndexed(table.Fields()[i])) {
            return i;
        }
    }
    return std::nullopt;
}

/// A row is added behind those that are there, and they stay. Returns the table as its file then has it.
TableImage CheckAdding(TableImage table, std::size_t column) {
    using namespace std::chrono;
    const auto rows = RowsOf(table);
    std::vector<std::string_view> values(table.Fields().size());
    values[column] = "x";
    table.Append(values);
    auto written = TableIn(table.FileBytes(table.Records(), year_month_day(2026y / November / 20)));
    Require(written.has_value(), "what was written is a table");
    const auto after = RowsOf(*written);
    Require(after.size() == rows.size() + 1, "one row is added");
    Require(std::equal(rows.begin(), rows.end(), after.begin()), "the other rows stay");
    return std::move(*written);
}

/// An index of the table is sound.
void CheckIndexing(const TableImage& table, std::size_t column) {
    const dbase::IndexFile index(dbase::BuildIndex(table, column), "T.NDX");
    const auto named = table.FindField(index.Expression());
    if (named == column) {
        dbase::RequireIndexOf(table, index);
    }
    for (const auto& entry : index.Walk()) {
        Require(index.Find(entry.key).value_or(0) <= entry.record, "every key is found");
    }
}

} // namespace

void TableFile(std::string_view input) {
    auto table = TableIn(input);
    if (!table) {
        return;
    }
    if (const auto column = FirstTextColumn(*table)) {
        CheckIndexing(CheckAdding(std::move(*table), *column), *column);
    }
}

} // namespace zy::fuzz
