#include "platform/posix/PathText.h"

#include <algorithm>

namespace zy {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::string_view kLowerHexDigits = "0123456789abcdef";

std::optional<unsigned> HexValue(char digit) {
    for (const auto digits : {kHexDigits, kLowerHexDigits}) {
        if (const auto value = digits.find(digit); value != std::string_view::npos) {
            return static_cast<unsigned>(value);
        }
    }
    return std::nullopt;
}

void AppendEscaped(std::string& name, std::string_view bytes) {
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        name += {PathText::kEscape, kHexDigits[byte >> 4], kHexDigits[byte & 0x0F]};
    }
}

/// Takes the two digits behind an escape off the front of the text.
std::optional<char> TakeEscaped(std::string_view& digits) {
    if (digits.size() < 2) {
        return std::nullopt;
    }
    const auto high = HexValue(digits[0]);
    const auto low = HexValue(digits[1]);
    if (!high || !low) {
        return std::nullopt;
    }
    digits.remove_prefix(2);
    return static_cast<char>(static_cast<unsigned char>(*high * 16 + *low));
}

/// Takes the first character of a text in UTF-8, or its first byte when it is malformed, and returns those
/// bytes.
std::string_view TakeBytes(std::string_view& text, std::optional<char32_t>& character) {
    auto rest = text;
    character = TakeUtf8(rest);
    const auto bytes = text.substr(0, character ? text.size() - rest.size() : 1);
    text.remove_prefix(bytes.size());
    return bytes;
}

/// What a name begins with that is written alike in all code pages and in UTF-8, and means nothing but
/// itself.
std::string_view TakePlain(std::string_view& name) {
    const auto isPlain = [](char c) { return c >= ' ' && c <= '~' && c != '\\' && c != '/'; };
    const auto end = std::find_if_not(name.begin(), name.end(), isPlain);
    const auto plain = name.substr(0, static_cast<std::size_t>(end - name.begin()));
    name.remove_prefix(plain.size());
    return plain;
}

bool CanBeInName(char c) {
    return c != '\0' && c != '/';
}

} // namespace

std::string PathText::NameToInside(std::string_view name) const {
    std::string inside(TakePlain(name));
    while (!name.empty()) {
        std::optional<char32_t> character;
        const auto bytes = TakeBytes(name, character);
        const auto inPage = character ? codePage_.FromUnicode(*character) : std::nullopt;
        if (inPage && *inPage != kEscape && *inPage != '\\') {
            inside += *inPage;
        } else {
            AppendEscaped(inside, bytes);
        }
        inside += TakePlain(name);
    }
    return inside;
}

std::optional<std::string> PathText::NameToOutside(std::string_view name) const {
    std::string outside(TakePlain(name));
    while (!name.empty()) {
        const char first = name.front();
        name.remove_prefix(1);
        const auto character = first == kEscape ? TakeEscaped(name) : std::optional(first);
        if (!character || !CanBeInName(*character)) {
            return std::nullopt;
        }
        outside += first == kEscape ? std::string(1, *character) : codePage_.ToUtf8({&*character, 1});
        outside += TakePlain(name);
    }
    return outside;
}

std::string PathText::PathToInside(std::string_view path) const {
    std::string inside;
    while (!path.empty()) {
        const auto name = path.substr(0, path.find('/'));
        if (!name.empty()) {
            inside += '\\' + NameToInside(name);
        }
        path.remove_prefix(std::min(name.size() + 1, path.size()));
    }
    return inside;
}

std::string PathText::TextToInside(std::string_view text) const {
    std::string inside;
    while (!text.empty()) {
        std::optional<char32_t> character;
        TakeBytes(text, character);
        const auto inPage = character ? codePage_.FromUnicode(*character) : std::nullopt;
        inside += inPage.value_or(kEscape);
    }
    return inside;
}

} // namespace zy
