#include <string>
#include <variant>

#include "Targets.h"
#include "basics/RuntimeError.h"
#include "dbase/ErrorNumbers.h"
#include "dbase/SqlParser.h"

namespace zy::fuzz {
namespace {

bool IsPart(std::string_view part, std::string_view whole) {
    return part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size();
}

/// A text as a statement has it.
std::string Quoted(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? "''" : std::string(1, c);
    }
    return quoted + "'";
}

/// Writes a statement out again, in the plainest way.
class Writer {
  public:
    std::string operator()(const dbase::CreateTable& statement) const {
        std::string columns;
        for (const auto& column : statement.columns) {
            columns += ", [" + std::string(column.name) + "] TEXT (" + std::to_string(column.width) + ")";
        }
        return "CREATE TABLE [" + std::string(statement.table) + "] (" + columns.substr(2) + ")";
    }

    std::string operator()(const dbase::Insert& statement) const {
        std::string values;
        for (const auto& value : statement.values) {
            values += ", " + Quoted(value);
        }
        return "INSERT INTO [" + std::string(statement.table) + "] (" + Names(statement.columns) +
               ") VALUES (" + values.substr(2) + ")";
    }

    std::string operator()(const dbase::CreateIndex& statement) const {
        return "CREATE INDEX [" + std::string(statement.index) + "] ON [" + std::string(statement.table) +
               "] (" + Names(statement.columns) + ");";
    }

  private:
    static std::string Names(const std::vector<std::string_view>& names) {
        std::string text;
        for (const auto name : names) {
            text += ", [" + std::string(name) + "]";
        }
        return text.substr(2);
    }
};

void CheckRefusal(const RuntimeError& error) {
    const auto number = error.Number();
    Require(number == dbase::kInvalidStatement || number == dbase::kInsertSyntax ||
                number == dbase::kFieldSyntax || number == dbase::kCreateTableSyntax ||
                number == dbase::kCreateIndexSyntax,
            "what is no statement is a syntax error");
    Require(error.Description().find("at character ") != std::string::npos, "an error names its place");
}

} // namespace

void SqlStatement(std::string_view input) {
    std::string written;
    try {
        const auto statement = dbase::ParseStatement(input);
        std::visit([&](const auto& one) { Require(IsPart(one.table, input), "names are those of the text"); },
                   statement);
        written = std::visit(Writer(), statement);
    } catch (const RuntimeError& error) {
        CheckRefusal(error);
        return;
    }
    Require(std::visit(Writer(), dbase::ParseStatement(written)) == written, "a statement means what it did");
}

} // namespace zy::fuzz
