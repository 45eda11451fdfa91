#include "security/UserStatement.h"

#include <array>
#include <variant>
#include <vector>

#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "dbase/SqlParser.h"

namespace zy {
namespace {

using Texts = std::array<const std::string*, kUserFields>;

Texts TextsOf(const UserRecord& user) {
    return {&user.USERID, &user.PASSWORD, &user.IDENTIFIER, &user.EXPDATE, &user.STATUS};
}

/// The text with each pair of single quotes made one.
std::string WithoutPairs(std::string_view text) {
    std::string single;
    for (std::size_t i = 0; i < text.size(); ++i) {
        single += text[i];
        i += text.substr(i, 2) == "''" ? 1U : 0U;
    }
    return single;
}

/// The values as the table engine takes them; none when it refuses the statement.
std::vector<std::string> ValuesOf(const UserRecord& user) {
    std::string statement = "INSERT INTO U (A, B, C, D, E) VALUES ('";
    AppendValues(statement, user);
    try {
        return std::get<dbase::Insert>(dbase::ParseStatement(statement)).values;
    } catch (const RuntimeError&) {
        return {};
    }
}

} // namespace

void AppendValues(std::string& statement, const UserRecord& user) {
    statement.append(user.USERID).append("', '").append(user.PASSWORD).append("', '");
    statement.append(user.IDENTIFIER).append("', '").append(user.EXPDATE).append("', '");
    statement.append(user.STATUS).append("');");
}

QuotesEffect EffectOfQuotes(const UserRecord& user) {
    bool hasQuotes = false;
    std::vector<std::string> inPairs;
    for (const auto* text : TextsOf(user)) {
        hasQuotes = hasQuotes || Contains(*text, '\'');
        inPairs.push_back(WithoutPairs(*text));
    }
    if (!hasQuotes) {
        return QuotesEffect::None;
    }
    const auto values = ValuesOf(user);
    if (values.size() != kUserFields) {
        return QuotesEffect::NotSaved;
    }
    return values == inPairs ? QuotesEffect::HalfStored : QuotesEffect::Shifted;
}

} // namespace zy
