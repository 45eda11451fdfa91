#pragma once

#include <cstddef>
#include <string_view>

namespace zy::dbase {

enum class TokenKind {
    Word,          ///< letters, digits and "_", no digit first: a keyword or a name
    BracketedName, ///< a name in brackets, which are not part of it
    Text,          ///< between quotes, which are not part of it; each quote inside is still doubled
    Number,        ///< digits
    Comma,
    OpenParenthesis,
    CloseParenthesis,
    Semicolon,
    UnclosedText,
    UnclosedBracket,
    StrayCharacter,
    End,
};

/// What such a token is called in an error's text. Its characters are never shown: they may be a password's.
std::string_view Describe(TokenKind kind);

struct Token {
    TokenKind kind;
    std::string_view text;
    std::size_t position; ///< of its first character, counted from 1
};

/// Cuts a statement into tokens.
class SqlTokens {
  public:
    explicit SqlTokens(std::string_view sql) : sql_(sql) {}

    /// The next token; End, again and again, behind the last one.
    Token Next();

  private:
    void SkipBlanks();
    Token Word();
    Token Number();
    Token Bracketed();
    Token Quoted();
    Token Other();
    /// The token between two places of the statement.
    Token Make(TokenKind kind, std::size_t begin, std::size_t end) const;

    std::string_view sql_;
    std::size_t at_ = 0;
    std::size_t start_ = 0; ///< of the token in hand
};

} // namespace zy::dbase
