#pragma once

#include "DbaseTest.h"

namespace zy::dbase::test {

/// A database with the users' temporary table.
class DatabaseTest : public DbaseTest {
  protected:
    void Insert(const std::string& name) { Run(InsertUser({name, "", "", "", ""})); }
    void InsertInTransaction(const std::string& name) {
        engine.BeginTrans();
        Insert(name);
        engine.CommitTrans();
    }
    std::vector<std::string> NamesIn(std::string_view table) {
        std::vector<std::string> names;
        for (const auto& row : RowsIn(table)) {
            names.push_back(row[0]);
        }
        return names;
    }
    std::size_t RecordsOnDisk() const { return (Get("ZYSECURE.TMP").size() - 194) / 60; }
};

} // namespace zy::dbase::test
