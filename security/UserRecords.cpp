#include "security/UserRecords.h"

#include <array>

#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "dbase/Recordset.h"
#include "security/UserRecord.h"
#include "security/UsersReader.h"

namespace zy {
namespace {

LoadedUsers UsersInFile(std::string_view bytes, const CodePage& codePage) {
    const std::string name;
    dbase::TableImage table(std::string(bytes), name);
    table.ConvertToAnsi();
    dbase::Recordset records(std::move(table));
    return UsersOf(records, name, codePage);
}

} // namespace

std::string UserRecords::Key(const RowTexts& comparable, int row) const {
    return codePage_.UCase(Trim(comparable.Text(row, kUserName)));
}

/// The table fills its fields up with blanks.
RowTexts UserRecords::Comparable(const RowTexts& rows) const {
    RowTexts comparable(kUsersColumns);
    for (int row = 0; row < rows.Rows(); ++row) {
        for (int column = 0; column < kUsersColumns; ++column) {
            comparable.Add(dbase::WithoutFiller(rows.Text(row, column)));
        }
    }
    return comparable;
}

std::optional<FileRecords> UserRecords::Read(std::string_view bytes) const {
    try {
        auto loaded = UsersInFile(bytes, codePage_);
        FileRecords records{RowTexts(kUsersColumns), std::move(loaded.losses)};
        for (const auto& user : loaded.users) {
            for (int column = 0; column < kUsersColumns; ++column) {
                records.rows.Add(user.*FieldIn(static_cast<UsersColumn>(column)).member);
            }
        }
        return records;
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

} // namespace zy
