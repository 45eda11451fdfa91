#include "tools/RecordLine.h"

#include <cstdio>

#include "platform/CodePage.h"

namespace zy {
namespace {

bool BreaksLine(char32_t character) {
    constexpr char32_t kLineSeparator = 0x2028;
    constexpr char32_t kParagraphSeparator = 0x2029;
    const bool control = character < 0x20 || (character >= 0x7F && character < 0xA0);
    return control || character == kLineSeparator || character == kParagraphSeparator;
}

std::string ByNumber(char32_t character) {
    std::array<char, 16> number{};
    std::snprintf(number.data(), number.size(), "<U+%04X>", static_cast<unsigned>(character));
    return number.data();
}

std::string Shown(std::string_view field) {
    std::string shown;
    while (const auto character = TakeUtf8(field)) {
        if (BreaksLine(*character)) {
            shown += ByNumber(*character);
        } else {
            AppendUtf8(shown, *character);
        }
    }
    return shown;
}

} // namespace

std::string RecordLine(const RecordFields& fields) {
    std::string line;
    for (const auto& field : fields) {
        line += Shown(field) + '\t';
    }
    line.back() = '\n';
    return line;
}

} // namespace zy
