#include "dbase/SqlTokens.h"

#include <algorithm>

#include "basics/Text.h"

namespace zy::dbase {
namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsWordStart(char c) {
    const char capital = AsciiCapital(c);
    return (capital >= 'A' && capital <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

bool IsWordCharacter(char c) {
    return IsWordStart(c) || IsDigit(c);
}

TokenKind KindOfCharacter(char c) {
    switch (c) {
    case ',':
        return TokenKind::Comma;
    case '(':
        return TokenKind::OpenParenthesis;
    case ')':
        return TokenKind::CloseParenthesis;
    case ';':
        return TokenKind::Semicolon;
    default:
        return TokenKind::StrayCharacter;
    }
}

} // namespace

std::string_view Describe(TokenKind kind) {
    switch (kind) {
    case TokenKind::Word:
        return "a word";
    case TokenKind::BracketedName:
        return "a name in brackets";
    case TokenKind::Text:
        return "a text in quotes";
    case TokenKind::Number:
        return "a number";
    case TokenKind::Comma:
        return "a comma";
    case TokenKind::OpenParenthesis:
        return "an opening parenthesis";
    case TokenKind::CloseParenthesis:
        return "a closing parenthesis";
    case TokenKind::Semicolon:
        return "a semicolon";
    case TokenKind::UnclosedText:
        return "a text without a closing quote";
    case TokenKind::UnclosedBracket:
        return "a name without a closing bracket";
    case TokenKind::StrayCharacter:
        return "a character that belongs to nothing";
    case TokenKind::End:
        break;
    }
    return "the end";
}

Token SqlTokens::Next() {
    SkipBlanks();
    start_ = at_;
    if (at_ == sql_.size()) {
        return Make(TokenKind::End, at_, at_);
    }
    const char c = sql_[at_];
    if (c == '\'') {
        return Quoted();
    }
    if (IsWordStart(c)) {
        return Word();
    }
    if (c == '[') {
        return Bracketed();
    }
    return IsDigit(c) ? Number() : Other();
}

void SqlTokens::SkipBlanks() {
    while (at_ != sql_.size() && IsBlank(sql_[at_])) {
        ++at_;
    }
}

Token SqlTokens::Word() {
    while (at_ != sql_.size() && IsWordCharacter(sql_[at_])) {
        ++at_;
    }
    return Make(TokenKind::Word, start_, at_);
}

Token SqlTokens::Number() {
    while (at_ != sql_.size() && IsDigit(sql_[at_])) {
        ++at_;
    }
    return Make(TokenKind::Number, start_, at_);
}

Token SqlTokens::Bracketed() {
    const auto close = std::min(sql_.find(']', at_), sql_.size());
    at_ = std::min(close + 1, sql_.size());
    return Make(close == sql_.size() ? TokenKind::UnclosedBracket : TokenKind::BracketedName, start_ + 1,
                close);
}

Token SqlTokens::Quoted() {
    for (++at_; at_ != sql_.size(); ++at_) {
        if (sql_[at_] != '\'') {
            continue;
        }
        ++at_;
        if (at_ == sql_.size() || sql_[at_] != '\'') {
            return Make(TokenKind::Text, start_ + 1, at_ - 1);
        }
    }
    return Make(TokenKind::UnclosedText, start_ + 1, at_);
}

Token SqlTokens::Other() {
    ++at_;
    return Make(KindOfCharacter(sql_[start_]), start_, at_);
}

Token SqlTokens::Make(TokenKind kind, std::size_t begin, std::size_t end) const {
    return {.kind = kind, .text = sql_.substr(begin, end - begin), .position = start_ + 1};
}

} // namespace zy::dbase
