#include "dbase/OemPages.h"

#include <algorithm>

namespace zy::dbase {
namespace {

/// The ANSI character for each byte from 80 up. Whatever stands for a character that the ANSI page lacks is
/// ASCII, so that each byte from 80 up in here is exact and the way back is found in here too.
constexpr std::string_view kPage437 = "\xC7\xFC\xE9\xE2\xE4\xE0\xE5\xE7\xEA\xEB\xE8\xEF\xEE\xEC\xC4\xC5"
                                      "\xC9\xE6\xC6\xF4\xF6\xF2\xFB\xF9\xFF\xD6\xDC\xA2\xA3\xA5P\x83"
                                      "\xE1\xED\xF3\xFA\xF1\xD1\xAA\xBA\xBF-\xAC\xBD\xBC\xA1\xAB\xBB"
                                      "###|++++++|+++++"
                                      "+--+-+++++==+=+="
                                      "===++++++++#####"
                                      "a\xDFGpSs\xB5tFTOd8fen"
                                      "=\xB1><()\xF7~\xB0.\xB7vn\xB2#\xA0";
constexpr std::string_view kPage850 = "\xC7\xFC\xE9\xE2\xE4\xE0\xE5\xE7\xEA\xEB\xE8\xEF\xEE\xEC\xC4\xC5"
                                      "\xC9\xE6\xC6\xF4\xF6\xF2\xFB\xF9\xFF\xD6\xDC\xF8\xA3\xD8\xD7\x83"
                                      "\xE1\xED\xF3\xFA\xF1\xD1\xAA\xBA\xBF\xAE\xAC\xBD\xBC\xA1\xAB\xBB"
                                      "###|+\xC1\xC2\xC0\xA9+|++\xA2\xA5+"
                                      "+--+-+\xE3\xC3++==+=+\xA4"
                                      "\xF0\xD0\xCA\xCB\xC8i\xCD\xCE\xCF++##\xA6\xCC#"
                                      "\xD3\xDF\xD4\xD2\xF5\xD5\xB5\xFE\xDE\xDA\xDB\xD9\xFD\xDD\xAF\xB4"
                                      "\xAD\xB1=\xBE\xB6\xA7\xF7\xB8\xB0\xA8\xB7\xB9\xB3\xB2#\xA0";
static_assert(kPage437.size() == 128 && kPage850.size() == 128);

constexpr unsigned char kFirstHigh = 0x80;

std::string_view HighCharacters(OemPage page) {
    return page == OemPage::Page437 ? kPage437 : kPage850;
}

bool IsHigh(char c) {
    return static_cast<unsigned char>(c) >= kFirstHigh;
}

} // namespace

OemPage OemPageOf(unsigned char languageByte) {
    switch (languageByte) {
    case 0x01:
        return OemPage::Page437;
    case 0x02:
        return OemPage::Page850;
    default:
        return OemPage::None;
    }
}

bool IsKnownPage(unsigned char languageByte) {
    return languageByte == kLanguageNotStated || languageByte == kLanguageWindows1252 ||
           languageByte == kLanguageWindowsAnsi || OemPageOf(languageByte) != OemPage::None;
}

std::size_t OemToAnsi(OemPage page, char* begin, char* end) {
    if (page == OemPage::None) {
        return 0;
    }
    std::size_t replaced = 0;
    std::transform(begin, end, begin, [&replaced, high = HighCharacters(page)](char c) {
        const char ansi = IsHigh(c) ? high[static_cast<unsigned char>(c) - kFirstHigh] : c;
        replaced += IsHigh(c) && !IsHigh(ansi) ? 1U : 0U;
        return ansi;
    });
    return replaced;
}

bool AnsiToOem(OemPage page, std::string& text) {
    const auto high = page == OemPage::None ? std::string_view{} : HighCharacters(page);
    for (char& c : text) {
        if (!high.empty() && IsHigh(c)) {
            const auto found = high.find(c);
            if (found == std::string_view::npos) {
                return false;
            }
            c = static_cast<char>(found + kFirstHigh);
        }
    }
    return true;
}

} // namespace zy::dbase
