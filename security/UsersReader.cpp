#include "security/UsersReader.h"

#include <algorithm>
#include <string_view>

#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "dbase/ErrorNumbers.h"
#include "shell/ListFile.h"
#include "shell/SaveTurn.h"

namespace zy {
namespace {

/// The engine would raise the same error, without a word about the table.
void RequireFields(const dbase::Fields& fields, const std::string& table) {
    const int expected = static_cast<int>(kUserFields.size());
    if (fields.Count() < expected) {
        throw RuntimeError(dbase::kNoSuchItem, "Item not found in this collection: the table of users '" +
                                                   table + "' has " + std::to_string(fields.Count()) +
                                                   " of the " + std::to_string(expected) +
                                                   " fields of a user.");
    }
}

/// The first columns of a table, whatever they are called.
UserRecord UserIn(const dbase::Fields& fields) {
    return UserOf([&, column = 0](const UserField&) mutable { return fields.Item(column++).Value(); });
}

bool IsAdmin(const UserRecord& user, const CodePage& codePage) {
    constexpr std::string_view kAdmin = "ADMIN";
    // The size first: it is that of few names.
    const auto name = Trim(user.USERID);
    return name.size() == kAdmin.size() && codePage.UCase(name) == kAdmin;
}

/// The parts of a list of losses.
class Losses {
  public:
    /// Nothing when there are none; `many` is the word for more than one.
    void Add(std::size_t count, std::string_view one, std::string_view many) {
        if (count != 0) {
            Add(std::to_string(count).append(" ").append(count == 1 ? one : many));
        }
    }
    void Add(std::string_view loss) { text_.append(text_.empty() ? "a save will drop " : ", ").append(loss); }
    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

std::string TableLosses(const dbase::TableImage& table) {
    const auto columns = table.Fields().size();
    Losses losses;
    losses.Add(table.UncountedRecords(), "user that the table does not count",
               "users that the table does not count");
    losses.Add(columns - std::min(columns, kUserFields.size()), "more column", "more columns");
    losses.Add(table.ReplacedCharacters(), "character that the code page lacks",
               "characters that the code page lacks");
    losses.Add(table.DeletedRecords(), "deleted user", "deleted users");
    if (const auto page = table.UnknownPage()) {
        losses.Add("the mark of the unknown code page " + std::to_string(*page));
    }
    return losses.Text();
}

} // namespace

UsersReader::UsersReader(UsersDatabase& database, FileSystem& files, const CodePage& codePage)
    : database_(database), files_(files), codePage_(codePage) {}

bool UsersReader::FindsTable() {
    const auto table = database_.TablePath();
    RequireCertain(files_, database_.LocationFile());
    RequireCertain(files_, table);
    return FindsFile(files_, table);
}

LoadedUsers UsersReader::Read() {
    auto& database = database_.Open();
    const auto records = database.OpenRecordset(database_.TableName(), dbase::RecordsetType::Dynaset);
    auto loaded = UsersOf(*records, files_.DisplayPath(database_.GivenPath()), codePage_);
    records->Close();
    return loaded;
}

LoadedUsers UsersOf(dbase::Recordset& records, const std::string& table, const CodePage& codePage) {
    LoadedUsers loaded;
    records.MoveFirst();
    if (!records.Eof()) {
        RequireFields(records.Fields(), table);
    }
    loaded.users.reserve(std::min<std::size_t>(records.Table().Records(), kMaxItems));
    for (int i = 0; !records.Eof(); i = ToInt16(i + 1)) {
        loaded.users.resize(static_cast<std::size_t>(i) + 1);
        auto& user = loaded.users.back();
        user = UserIn(records.Fields());
        if (IsAdmin(user, codePage)) {
            loaded.adminPassword = codePage.UCase(user.PASSWORD);
        }
        records.MoveNext();
    }
    loaded.losses = TableLosses(records.Table());
    return loaded;
}

} // namespace zy
