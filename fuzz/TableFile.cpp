#include <string>
#include <vector>

#include "Targets.h"
#include "basics/RuntimeError.h"
#include "dbase/DBEngine.h"
#include "dbase/ErrorNumbers.h"
#include "dbase/IndexBuilder.h"
#include "index/IndexChecks.h"
#include "platform/memory/MemoryFileSystem.h"

namespace zy::fuzz {
namespace {

using dbase::Database;
using dbase::ExecuteOptions;
using dbase::RecordsetType;
using Row = std::vector<std::string>;

constexpr std::string_view kTable = R"(C:\SYS\T.DBF)";
constexpr std::string_view kIndex = R"(C:\SYS\T.NDX)";

/// A database whose only table has any bytes.
struct World {
    explicit World(std::string_view bytes) { files.Put(kTable, bytes); }

    MemoryFileSystem files{Windows1252()};
    dbase::DBEngine engine{files, [] {
                               using namespace std::chrono;
                               return year_month_day(2026y / November / 20);
                           }};
    std::unique_ptr<Database> database = engine.OpenDatabase(R"(C:\SYS)", false, false, "dBase III");
};

/// True when the action is done, false when a table or an index is refused. Nothing else may be raised.
template <typename Action>
bool IsDone(const Action& action) {
    try {
        action();
        return true;
    } catch (const RuntimeError& error) {
        Require(error.Number() == dbase::kBadFormat, "what is no table is refused as such");
        return false;
    }
}

std::vector<Row> RowsOf(Database& database) {
    const auto records = database.OpenRecordset("T", RecordsetType::Dynaset);
    std::vector<Row> rows;
    for (; !records->Eof(); records->MoveNext()) {
        Row row;
        for (int i = 0; i < records->Fields().Count(); ++i) {
            row.emplace_back(records->Fields().Item(i).Value());
            Require(!row.back().ends_with(' ') && !row.back().ends_with('\0'),
                    "a value ends before its blanks");
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

/// The first text column that a statement can name; nothing when there is none.
std::string FirstTextColumn(const dbase::TableImage& table) {
    for (const auto& field : table.Fields()) {
        const bool canBeNamed = !field.name.empty() && field.name.find(']') == std::string::npos;
        if (canBeNamed && dbase::CanBeIndexed(field) &&
            &table.Fields()[*table.FindField(field.name)] == &field) {
            return field.name;
        }
    }
    return {};
}

/// A row is added behind those that are there, and they stay.
void CheckAdding(World& world, const std::string& column, std::vector<Row> rows) {
    const auto before = world.files.Get(kTable);
    world.database->Execute("INSERT INTO T ([" + column + "]) VALUES ('x')", ExecuteOptions::FailOnError);
    const auto after = RowsOf(*world.database);
    Require(after.size() == rows.size() + 1, "one row is added");
    Require(std::equal(rows.begin(), rows.end(), after.begin()), "the other rows stay");
    Require(world.files.Names(R"(C:\SYS)").size() == 1, "no other file is left behind");
}

/// An index of the table is sound.
void CheckIndexing(World& world, const std::string& column) {
    world.database->Execute("CREATE INDEX T ON T ([" + column + "])");
    const dbase::TableImage table(world.files.Get(kTable).value(), kTable);
    const dbase::IndexFile index(world.files.Get(kIndex).value(), std::string(kIndex));
    if (index.Expression() == column) {
        dbase::RequireIndexOf(table, index);
    }
    for (const auto& entry : index.Walk()) {
        Require(index.Find(entry.key).value_or(0) <= entry.record, "every key is found");
    }
}

} // namespace

void TableFile(std::string_view input) {
    World world(input);
    std::vector<Row> rows;
    if (!IsDone([&] { rows = RowsOf(*world.database); })) {
        Require(world.files.Get(kTable) == input, "what is refused is left alone");
        return;
    }
    const auto column = FirstTextColumn(dbase::TableImage(std::string(input), kTable));
    if (!column.empty()) {
        CheckAdding(world, column, std::move(rows));
        CheckIndexing(world, column);
    }
}

} // namespace zy::fuzz
