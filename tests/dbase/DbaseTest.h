#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "dbase/DBEngine.h"
#include "dbase/ErrorNumbers.h"
#include "support/RaisedError.h"
#include "support/WorldTest.h"

namespace zy::dbase::test {

using zy::test::ErrorNumber;
using zy::test::RaisedBy;
using zy::test::WorldTest;
using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

inline constexpr std::string_view kFolder = R"(C:\SYS\)";
inline constexpr std::string_view kCreateUsers = "CREATE TABLE [ZYSECURE.TMP] (USERID TEXT (10), PASSWORD "
                                                 "TEXT (20), IDENTIFIER TEXT(20),EXPDATE TEXT (8), "
                                                 "STATUS TEXT(1));";

/// The statement that adds a user as the users editor does.
inline std::string InsertUser(const Row& user, std::string_view table = "ZYSECURE.TMP") {
    std::string sql =
        "INSERT INTO [" + std::string(table) + "] (USERID, PASSWORD, IDENTIFIER, EXPDATE, STATUS) VALUES ('";
    for (std::size_t i = 0; i < user.size(); ++i) {
        sql += (i == 0 ? "" : "', '") + user[i];
    }
    return sql + "');";
}

inline Rows RowsOf(Recordset& records) {
    Rows rows;
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        Row row;
        for (int i = 0; i < records.Fields().Count(); ++i) {
            row.emplace_back(records.Fields().Item(i).Value());
        }
        rows.push_back(row);
    }
    return rows;
}

/// Databases in a memory world where it is always 20 November 2026.
class DbaseTest : public WorldTest {
  protected:
    std::unique_ptr<Database> Open(bool readOnly = false) {
        return engine.OpenDatabase(kFolder, false, readOnly, "dBase III");
    }

    void Run(std::string_view sql) { database->Execute(sql, ExecuteOptions::FailOnError); }
    RuntimeError RaisedByRun(std::string_view sql) {
        return RaisedBy([&] { Run(sql); });
    }

    Rows RowsIn(std::string_view table) {
        const auto records = database->OpenRecordset(table, RecordsetType::Dynaset);
        return RowsOf(*records);
    }

    static std::string PathOf(std::string_view name) { return std::string(kFolder) + std::string(name); }
    void Put(std::string_view name, std::string_view bytes) { world.files.Put(PathOf(name), bytes); }
    std::string Get(std::string_view name) const { return world.files.Get(PathOf(name)).value_or("no file"); }
    std::vector<std::string> Names() const { return world.files.Names(R"(C:\SYS)"); }

    DBEngine engine{world.files, [] {
                        using namespace std::chrono;
                        return year_month_day(2026y / November / 20);
                    }};
    std::unique_ptr<Database> database = Open();
};

} // namespace zy::dbase::test
