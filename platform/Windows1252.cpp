#include <cstddef>

#include "platform/CodePage.h"

namespace zy {
namespace {

// Bytes 0x80 to 0x9F; every other byte stands for the Unicode character of its own number.
constexpr std::array<char32_t, 32> kHigh{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

CodePage::ToUnicodeTable MakeToUnicode() {
    CodePage::ToUnicodeTable table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const bool high = byte >= 0x80 && byte < 0xA0;
        table[byte] = high ? kHigh[byte - 0x80] : static_cast<char32_t>(byte);
    }
    return table;
}

bool IsLowerWithCapital32Below(std::size_t byte) {
    constexpr std::size_t kDivisionSign = 0xF7;
    return (byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != kDivisionSign);
}

CodePage::UpperTable MakeUpper() {
    CodePage::UpperTable table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        table[byte] = static_cast<unsigned char>(IsLowerWithCapital32Below(byte) ? byte - 32 : byte);
    }
    table[0x9A] = 0x8A; // s with caron
    table[0x9C] = 0x8C; // oe
    table[0x9E] = 0x8E; // z with caron
    table[0xFF] = 0x9F; // y with diaeresis
    return table;
}

} // namespace

const CodePage& Windows1252() {
    static const CodePage codePage(MakeToUnicode(), MakeUpper());
    return codePage;
}

} // namespace zy
