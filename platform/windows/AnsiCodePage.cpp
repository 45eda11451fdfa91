#include "platform/windows/AnsiCodePage.h"

#include <windows.h>

namespace zy {
namespace {

wchar_t WideOf(std::size_t byte) {
    constexpr wchar_t kNoCharacter = 0xFFFD;
    const auto character = static_cast<char>(byte);
    wchar_t wide = kNoCharacter;
    return ::MultiByteToWideChar(CP_ACP, 0, &character, 1, &wide, 1) == 1 ? wide : kNoCharacter;
}

/// The byte of a character, or `otherwise` when the page lacks exactly that character.
unsigned char ByteOf(wchar_t wide, std::size_t otherwise) {
    char character = 0;
    BOOL replaced = FALSE;
    const int length =
        ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, &wide, 1, &character, 1, nullptr, &replaced);
    return static_cast<unsigned char>(length == 1 && replaced == FALSE ? static_cast<unsigned char>(character)
                                                                       : otherwise);
}

CodePage Made() {
    CodePage::ToUnicodeTable toUnicode{};
    CodePage::UpperTable upper{};
    for (std::size_t byte = 0; byte < toUnicode.size(); ++byte) {
        wchar_t wide = WideOf(byte);
        toUnicode[byte] = wide;
        // In Unicode: the call for bytes would give a letter whose capital the page lacks another one's.
        ::CharUpperBuffW(&wide, 1);
        upper[byte] = ByteOf(wide, byte);
    }
    return {toUnicode, upper};
}

} // namespace

const CodePage& AnsiCodePage() {
    static const CodePage codePage = Made();
    return codePage;
}

} // namespace zy
