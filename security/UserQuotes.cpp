#include "security/UserQuotes.h"

#include <algorithm>
#include <string_view>
#include <variant>
#include <vector>

#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "dbase/SqlParser.h"
#include "security/UserStatement.h"

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

std::string_view Describe(QuotesEffect effect) {
    switch (effect) {
    case QuotesEffect::HalfStored:
        return "two single quotes are stored as one";
    case QuotesEffect::Shifted:
        return "single quotes shift its fields in the table";
    case QuotesEffect::NotSaved:
    case QuotesEffect::None:
        break;
    }
    return "a single quote makes the save fail";
}

bool HasQuotes(const GridCells& grid, int row) {
    int column = 0;
    while (column < grid.Columns() && !Contains(grid.Text(row, column), '\'')) {
        ++column;
    }
    return column < grid.Columns();
}

/// The first row with single quotes; the number of rows when there is none.
int FirstRowWithQuotes(const GridCells& grid) {
    int row = 1;
    while (row < grid.Rows() && !HasQuotes(grid, row)) {
        ++row;
    }
    return row;
}

} // namespace

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

std::string DescribeQuotes(const GridCells& grid, int row) {
    if (row < 1 || row >= grid.Rows() || !HasQuotes(grid, row)) {
        row = FirstRowWithQuotes(grid);
    }
    if (row >= grid.Rows()) {
        return "";
    }
    return "row " + std::to_string(row) + ": " + std::string(Describe(EffectOfQuotes(UserInRow(grid, row))));
}

} // namespace zy
