#include "security/UserStatement.h"

#include <variant>
#include <vector>

#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "dbase/SqlParser.h"
#include "security/UserFiles.h"

namespace zy {
namespace {

/// The text with each pair of single quotes made one.
std::string WithoutPairs(std::string_view text) {
    std::string single;
    for (std::size_t i = 0; i < text.size(); ++i) {
        single += text[i];
        i += text.substr(i, 2) == "''" ? 1U : 0U;
    }
    return single;
}

/// The columns as the temporary table has them.
std::string Columns() {
    std::string columns;
    for (const auto& field : kUserFields) {
        columns.append(columns.empty() ? "(" : ", ").append(field.column);
    }
    return columns;
}

/// The values as the table engine takes them; none when it refuses the statement.
std::vector<std::string> ValuesOf(const UserRecord& user) {
    auto statement = InsertFront(Columns());
    AppendValues(statement, user);
    try {
        return std::get<dbase::Insert>(dbase::ParseStatement(statement)).values;
    } catch (const RuntimeError&) {
        return {};
    }
}

} // namespace

std::string CreateStatement() {
    std::string statement = "CREATE TABLE [" + std::string(kUsersTemporaryName) + "] (";
    for (const auto& field : kUserFields) {
        statement.append(field.separator).append(field.column).append(field.type);
        statement.append(std::to_string(field.width)).append(")");
    }
    return statement + ");";
}

std::string InsertFront(std::string_view columns) {
    return "INSERT INTO [" + std::string(kUsersTemporaryName) + "] " + std::string(columns) + ") VALUES ('";
}

void AppendValues(std::string& statement, const UserRecord& user) {
    std::string_view separator;
    for (const auto& field : kUserFields) {
        statement.append(separator).append(user.*field.member);
        separator = "', '";
    }
    statement.append("');");
}

std::string IndexStatement(std::string_view column) {
    return "CREATE INDEX [" + std::string(kUsersIndex) + "] ON [" + std::string(kUsersTableName) + "] (" +
           std::string(column) + ");";
}

QuotesEffect EffectOfQuotes(const UserRecord& user) {
    bool hasQuotes = false;
    std::vector<std::string> inPairs;
    for (const auto& field : kUserFields) {
        const std::string_view text = user.*field.member;
        hasQuotes = hasQuotes || Contains(text, '\'');
        inPairs.push_back(WithoutPairs(text));
    }
    if (!hasQuotes) {
        return QuotesEffect::None;
    }
    const auto values = ValuesOf(user);
    if (values.size() != kUserFields.size()) {
        return QuotesEffect::NotSaved;
    }
    return values == inPairs ? QuotesEffect::HalfStored : QuotesEffect::Shifted;
}

} // namespace zy
