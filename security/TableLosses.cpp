#include "security/TableLosses.h"

#include <algorithm>
#include <string_view>

#include "security/UserRecord.h"

namespace zy {
namespace {

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

} // namespace

std::string TableLosses(const dbase::Recordset& records) {
    const auto& table = records.Table();
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

} // namespace zy
