#include "security/UserStatement.h"

#include "security/UserFiles.h"

namespace zy {

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

} // namespace zy
