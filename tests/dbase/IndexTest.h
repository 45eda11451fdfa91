#pragma once

#include "DbaseTest.h"
#include "dbase/IndexBuilder.h"
#include "dbase/TableImage.h"
#include "index/IndexChecks.h"
#include "index/IndexFile.h"
#include "support/TableBytes.h"

namespace zy::dbase::test {

using Values = std::vector<std::string>;

/// A table with one column of these values.
inline TableImage TableOf(const Values& values, unsigned width = 10) {
    TableBytes table({{"USERID", width}});
    std::string all;
    for (const auto& value : values) {
        all += ' ' + value + std::string(width - value.size(), ' ');
    }
    table.records = std::move(all);
    table.count = values.size();
    return TableImage(table.Bytes(), "T.DBF");
}

inline IndexFile IndexOf(const TableImage& table) {
    return IndexFile(BuildIndex(table, 0), "T.NDX");
}

} // namespace zy::dbase::test
