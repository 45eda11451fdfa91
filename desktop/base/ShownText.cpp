#include "desktop/ShownText.h"

#include <algorithm>

namespace zy {
namespace {

constexpr char32_t kSymbolForNul = 0x2400;

wxUniChar ShownCharacter(const CodePage& codePage, char character) {
    return character == '\0' ? wxUniChar(kSymbolForNul) : wxUniChar(codePage.ToUnicode(character));
}

std::optional<char> TakeCharacter(const CodePage& codePage, wxUniChar shown) {
    const auto character = static_cast<char32_t>(shown.GetValue());
    return character == kSymbolForNul ? '\0' : codePage.FromUnicode(character);
}

std::optional<std::string> TakeText(const CodePage& codePage, const wxString& shown) {
    std::string text;
    for (const wxUniChar each : shown) {
        const auto character = TakeCharacter(codePage, each);
        if (!character) {
            return std::nullopt;
        }
        text += *character;
    }
    return text;
}

template <typename Iterator>
std::size_t CommonLength(Iterator first, Iterator firstEnd, Iterator second, Iterator secondEnd) {
    return static_cast<std::size_t>(std::mismatch(first, firstEnd, second, secondEnd).first - first);
}

} // namespace

wxString ToShown(const CodePage& codePage, std::string_view text) {
    wxString shown;
    shown.reserve(text.size());
    for (const char character : text) {
        shown += ShownCharacter(codePage, character);
    }
    return shown;
}

std::optional<EditedText> TakeEdit(const CodePage& codePage, std::string_view before, const wxString& shown) {
    if (shown.length() > kMostShown) {
        return std::nullopt;
    }
    const std::wstring was = ToShown(codePage, before).ToStdWstring();
    const std::wstring& is = shown.ToStdWstring();
    const auto front = CommonLength(was.begin(), was.end(), is.begin(), is.end());
    const auto rest = static_cast<std::ptrdiff_t>(front);
    const auto back = CommonLength(was.rbegin(), was.rend() - rest, is.rbegin(), is.rend() - rest);

    const auto entered = TakeText(codePage, OnOneLine(is.substr(front, is.size() - front - back)));
    if (!entered) {
        return std::nullopt;
    }
    std::string text(before.substr(0, front));
    text += *entered;
    const auto changeEnd = text.size();
    text += before.substr(before.size() - back);
    return EditedText{std::move(text), changeEnd};
}

std::optional<wxUniChar> FindLacking(const CodePage& codePage, const wxString& shown) {
    for (const wxUniChar each : shown) {
        if (!TakeCharacter(codePage, each)) {
            return each;
        }
    }
    return std::nullopt;
}

wxString OnOneLine(wxString text) {
    text.Replace("\r\n", " ");
    text.Replace("\r", " ");
    text.Replace("\n", " ");
    text.Replace("\t", " ");
    return text;
}

wxString WithMnemonic(const CodePage& codePage, std::string_view caption, char accessKey) {
    const auto key = accessKey == '\0' ? std::string_view::npos : caption.find(accessKey);
    wxString shown;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        shown += caption[i] == '&' || i == key ? "&" : "";
        shown += ShownCharacter(codePage, caption[i]);
    }
    return shown;
}

} // namespace zy
