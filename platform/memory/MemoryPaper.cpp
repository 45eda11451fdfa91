#include "platform/memory/MemoryPaper.h"

namespace zy {
namespace {

constexpr int kLetter = 100; // twips

Lettering Letters() {
    return {2 * kLetter, [](std::string_view text) { return static_cast<int>(text.size()) * kLetter; }};
}

} // namespace

std::optional<std::string> MemoryPaper::PngOf(const std::function<Sheet(const Lettering&)>& make) {
    if (isTooLarge) {
        return std::nullopt;
    }
    std::string texts = "\x89PNG";
    for (const auto& text : make(Letters()).drawing.texts) {
        texts.append("\n").append(text.text);
    }
    return texts;
}

Printed MemoryPaper::Print(std::string_view heading,
                           const std::function<Pages(const Size& page, const Lettering&)>& make) {
    title = heading;
    if (answer == Printed::Yes) {
        const auto pages = make(page, Letters());
        for (int number = 1; number <= pages.count; ++number) {
            printed.push_back(pages.make(number));
        }
    }
    return answer;
}

} // namespace zy
