#include <algorithm>
#include <string>
#include <vector>

#include "Targets.h"
#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "shell/mZYGlobal.h"

namespace zy::fuzz {
namespace {

bool IsTrimmed(std::string_view text) {
    return text.empty() || (text.front() != ' ' && text.back() != ' ');
}

std::vector<std::string> Pieces(std::string_view line, char separator) {
    std::vector<std::string> pieces(1);
    for (const char c : line) {
        if (c == separator) {
            pieces.emplace_back();
        } else {
            pieces.back() += c;
        }
    }
    return pieces;
}

bool IsRefused(const Fields& fields, std::int32_t field) {
    try {
        static_cast<void>(fields[field]);
        return false;
    } catch (const RuntimeError& error) {
        return error.Number() == 9;
    }
}

void CheckFields(std::string_view line) {
    const auto fields = SplitFields(line);
    const auto pieces = Pieces(line, Contains(line, '\t') ? '\t' : ',');
    const auto count = std::get<std::int32_t>(fields[0]);
    Require(count == static_cast<std::int32_t>(pieces.size()), "every separator ends a field");
    for (std::int32_t i = 1; i <= count; ++i) {
        Require(fields.Text(i) == Unquote(pieces[static_cast<std::size_t>(i) - 1]),
                "a field is its piece, unquoted");
    }
    Require(IsRefused(fields, -1) && IsRefused(fields, count + 1), "there are no other fields");
}

void CheckUnquoted(std::string_view field) {
    const auto text = Unquote(field);
    const bool isQuoted = field.starts_with('"') && field.ends_with('"');
    Require(IsTrimmed(text), "no blanks are left around");
    Require(isQuoted || text == Trim(field), "without quotes around, only blanks go");
    Require(field.find(text) != std::string_view::npos, "what is left was there");
    Require(std::count(field.begin(), field.end(), '"') - std::count(text.begin(), text.end(), '"') <= 2,
            "one pair of quotes goes at most");
}

void CheckCutAtNull(std::string_view text) {
    const auto cut = StripAtNull(text);
    Require(text.starts_with(cut) && !Contains(cut, '\0'), "what is left is the front, without NUL");
    Require(cut.size() == text.size() || text[cut.size()] == '\0', "the cut is at a NUL");
}

void CheckPath(std::string_view path) {
    const auto folder = FolderOf(path);
    const auto name = FileNameOf(path);
    Require(std::string(folder) + std::string(name) == path, "folder and name are the path");
    Require(!Contains(name, '\\'), "the name is the last part");
    Require(folder.empty() || folder.ends_with('\\'), "the folder ends in a separator");
}

} // namespace

void Texts(std::string_view input) {
    CheckFields(input);
    CheckUnquoted(input);
    CheckCutAtNull(input);
    CheckPath(input);
}

} // namespace zy::fuzz
