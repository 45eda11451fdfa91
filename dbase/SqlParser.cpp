#include "dbase/SqlParser.h"

#include <charconv>

#include "basics/Text.h"
#include "dbase/Errors.h"
#include "dbase/SqlTokens.h"

namespace zy::dbase {
namespace {

/// A text as it is meant: two quotes inside are one.
std::string Unquoted(std::string_view text) {
    std::string value;
    for (auto quote = text.find('\''); quote != std::string_view::npos; quote = text.find('\'')) {
        value += text.substr(0, quote + 1);
        text.remove_prefix(quote + 2);
    }
    return value += text;
}

class SqlParser {
  public:
    explicit SqlParser(std::string_view sql) : tokens_(sql), token_(tokens_.Next()) {}

    Statement Parse() {
        if (Takes("INSERT")) {
            return ParseInsert();
        }
        if (!Takes("CREATE")) {
            Fail("CREATE or INSERT");
        }
        if (Takes("INDEX")) {
            return ParseCreateIndex();
        }
        Within(kCreateTableSyntax, "Syntax error in CREATE TABLE statement");
        TakeWord("TABLE");
        return ParseCreateTable();
    }

  private:
    CreateTable ParseCreateTable() {
        CreateTable statement{.table = TakeName(), .columns = {}};
        TakeList([&] { statement.columns.push_back(TakeColumn()); });
        TakeEnd();
        return statement;
    }

    Insert ParseInsert() {
        Within(kInsertSyntax, "Syntax error in INSERT INTO statement");
        TakeWord("INTO");
        Insert statement{.table = TakeName(), .columns = TakeNames(), .values = {}};
        TakeWord("VALUES");
        statement.values.reserve(statement.columns.size());
        TakeList([&] { statement.values.push_back(Unquoted(Take(TokenKind::Text, "a text in quotes"))); });
        TakeEnd();
        return statement;
    }

    CreateIndex ParseCreateIndex() {
        Within(kCreateIndexSyntax, "Syntax error in CREATE INDEX statement");
        CreateIndex statement{.index = TakeName(), .table = {}, .columns = {}};
        TakeWord("ON");
        statement.table = TakeName();
        statement.columns = TakeNames();
        TakeEnd();
        return statement;
    }

    ColumnDefinition TakeColumn() {
        ColumnDefinition column{.name = TakeName(), .width = 0};
        const auto number = number_;
        const auto what = what_;
        Within(kFieldSyntax, "Syntax error in field definition");
        TakeWord("TEXT");
        Take(TokenKind::OpenParenthesis, "'('");
        column.width = TakeWidth();
        Take(TokenKind::CloseParenthesis, "')'");
        Within(number, what);
        return column;
    }

    int TakeWidth() {
        const auto place = token_;
        const auto digits = Take(TokenKind::Number, "a width");
        int width = 0;
        if (std::from_chars(digits.data(), digits.data() + digits.size(), width).ec != std::errc{}) {
            token_ = place;
            Fail("a width of 1 to 254");
        }
        return width;
    }

    std::vector<std::string_view> TakeNames() {
        std::vector<std::string_view> names;
        TakeList([&] { names.push_back(TakeName()); });
        return names;
    }

    /// One or more items, separated by commas, in parentheses.
    template <typename Item>
    void TakeList(const Item& takeItem) {
        Take(TokenKind::OpenParenthesis, "'('");
        takeItem();
        while (Is(TokenKind::Comma)) {
            Advance();
            takeItem();
        }
        Take(TokenKind::CloseParenthesis, "',' or ')'");
    }

    void TakeEnd() {
        if (Is(TokenKind::Semicolon)) {
            Advance();
        }
        Take(TokenKind::End, "the end");
    }

    std::string_view TakeName() {
        return Take(Is(TokenKind::BracketedName) ? TokenKind::BracketedName : TokenKind::Word, "a name");
    }

    void TakeWord(std::string_view word) {
        if (!Takes(word)) {
            Fail(word);
        }
    }

    bool Takes(std::string_view word) {
        const bool is = Is(TokenKind::Word) && IsSameName(token_.text, word);
        if (is) {
            Advance();
        }
        return is;
    }

    std::string_view Take(TokenKind kind, std::string_view expected) {
        if (!Is(kind)) {
            Fail(expected);
        }
        const auto text = token_.text;
        Advance();
        return text;
    }

    bool Is(TokenKind kind) const { return token_.kind == kind; }
    void Advance() { token_ = tokens_.Next(); }

    /// From here on, what an error is called.
    void Within(ErrorNumber number, std::string_view what) {
        number_ = number;
        what_ = what;
    }

    [[noreturn]] void Fail(std::string_view expected) const {
        Raise(number_, {what_, ": at character ", std::to_string(token_.position), " stands ",
                        Describe(token_.kind), " where ", expected, " should."});
    }

    SqlTokens tokens_;
    Token token_;
    ErrorNumber number_ = kInvalidStatement;
    std::string_view what_ = "Invalid SQL statement";
};

} // namespace

Statement ParseStatement(std::string_view sql) {
    return SqlParser(sql).Parse();
}

} // namespace zy::dbase
