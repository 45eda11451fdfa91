#include "controls/CellList.h"

#include <algorithm>

namespace zy {
namespace {

constexpr std::string_view kButton = "...";
constexpr char kSeparator = '|';

std::vector<std::string> ItemsOf(std::string_view notation) {
    std::vector<std::string> items(1);
    for (const char character : notation) {
        if (character == kSeparator) {
            items.emplace_back();
        } else {
            items.back() += character;
        }
    }
    return items;
}

std::optional<std::string> FirstThatBegins(const std::vector<std::string>& items, std::string_view beginning,
                                           const CellList::UpperCase& upperCase) {
    const auto wanted = upperCase(beginning);
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&](const auto& item) { return upperCase(item).starts_with(wanted); });
    return found == items.end() ? std::nullopt : std::optional(*found);
}

} // namespace

CellList::CellList(std::string_view notation) : hasButton_(notation == kButton) {
    if (!notation.empty() && !hasButton_) {
        items_ = ItemsOf(notation);
    }
}

bool CellList::IsItem(std::string_view text) const {
    return std::find(items_.begin(), items_.end(), text) != items_.end();
}

bool CellList::Takes(std::string_view text) const {
    return text.empty() || !HasItems() || IsItem(text);
}

std::optional<std::string> CellList::Next(std::string_view current, std::string_view beginning,
                                          const UpperCase& upperCase) const {
    auto items = items_;
    const auto found = std::find(items.begin(), items.end(), current);
    if (found != items.end()) {
        std::rotate(items.begin(), found + 1, items.end());
    }
    return FirstThatBegins(items, beginning, upperCase);
}

std::string CellList::Corrected(std::string_view typed, std::string_view old,
                                const UpperCase& upperCase) const {
    if (!HasItems() || typed == old || IsItem(typed)) {
        return std::string(typed);
    }
    const auto item = typed.empty() ? std::nullopt : FirstThatBegins(items_, typed, upperCase);
    return item.value_or(std::string(old));
}

} // namespace zy
