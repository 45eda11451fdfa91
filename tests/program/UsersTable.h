#pragma once

#include <string>

#include "support/TableBytes.h"

namespace zy::test {

/// The bytes of a table of one user, whose password is "secret".
inline std::string TableOf(const std::string& name) {
    dbase::test::TableBytes table(
        {{"USERID", 10}, {"PASSWORD", 20}, {"IDENTIFIER", 20}, {"EXPDATE", 8}, {"STATUS", 1}});
    return table.Add(' ', {name, "secret", "id", "", "A"}).Bytes();
}

} // namespace zy::test
