#include "platform/CodePage.h"

#include <algorithm>

namespace zy {
namespace {

constexpr char32_t kLastCharacter = 0x10FFFF;

std::size_t Utf8Length(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead < 0xE0) {
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return 3;
    }
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// A character written in more bytes than it needs, a surrogate or a number beyond Unicode is malformed.
bool IsWellFormed(char32_t character, std::size_t length) {
    constexpr std::array<char32_t, 5> kSmallest{0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    return character >= kSmallest[length] && character <= kLastCharacter && !surrogate;
}

} // namespace

CodePage::CodePage(const ToUnicodeTable& toUnicode, const UpperTable& upper)
    : toUnicode_(toUnicode), upper_(upper) {
    for (std::size_t byte = 0; byte < toUnicode.size(); ++byte) {
        fromUnicode_.emplace(toUnicode[byte], static_cast<char>(byte));
    }
}

char CodePage::Upper(char character) const {
    return static_cast<char>(upper_[static_cast<unsigned char>(character)]);
}

std::string CodePage::UCase(std::string_view text) const {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [this](char c) { return Upper(c); });
    return result;
}

char32_t CodePage::ToUnicode(char character) const {
    return toUnicode_[static_cast<unsigned char>(character)];
}

std::optional<char> CodePage::FromUnicode(char32_t character) const {
    const auto found = fromUnicode_.find(character);
    return found == fromUnicode_.end() ? std::nullopt : std::optional<char>(found->second);
}

std::string CodePage::ToUtf8(std::string_view text) const {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        AppendUtf8(utf8, ToUnicode(c));
    }
    return utf8;
}

std::optional<std::string> CodePage::FromUtf8(std::string_view utf8) const {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto character = TakeUtf8(utf8);
        const auto byte = character ? FromUnicode(*character) : std::nullopt;
        if (!byte) {
            return std::nullopt;
        }
        text += *byte;
    }
    return text;
}

void AppendUtf8(std::string& utf8, char32_t character) {
    const auto append = [&utf8](char32_t bits) {
        utf8 += static_cast<char>(static_cast<unsigned char>(bits));
    };
    if (character < 0x80) {
        append(character);
        return;
    }
    if (character < 0x800) {
        append(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            append(0xE0 | (character >> 12));
        } else {
            append(0xF0 | (character >> 18));
            append(0x80 | ((character >> 12) & 0x3F));
        }
        append(0x80 | ((character >> 6) & 0x3F));
    }
    append(0x80 | (character & 0x3F));
}

std::optional<char32_t> TakeUtf8(std::string_view& utf8) {
    if (utf8.empty()) {
        return std::nullopt;
    }
    const auto lead = static_cast<unsigned char>(utf8.front());
    const auto length = Utf8Length(lead);
    if (length == 0 || length > utf8.size()) {
        return std::nullopt;
    }
    constexpr std::array<unsigned char, 5> kLeadBits{0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t character = lead & kLeadBits[length];
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(utf8[i]);
        if ((next & 0xC0) != 0x80) {
            return std::nullopt;
        }
        character = (character << 6) | (next & 0x3F);
    }
    if (!IsWellFormed(character, length)) {
        return std::nullopt;
    }
    utf8.remove_prefix(length);
    return character;
}

} // namespace zy
