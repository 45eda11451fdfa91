#include "ini/INIline.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "basics/RuntimeError.h"

namespace zy {
namespace {

constexpr std::size_t kLongestText = 0x7FFFFFFF;

std::uint32_t Length(std::string_view text) {
    if (text.size() > kLongestText) {
        throw RuntimeError(14, "Out of string space");
    }
    return static_cast<std::uint32_t>(text.size());
}

} // namespace

INIline::INIline(std::string_view group, std::string_view section, std::string_view value) {
    at_.groupDistance = Length(group);
    at_.groupLength = Length(group);
    at_.sectionLength = Length(section);
    at_.valueLength = Length(value) & kLongestText;
    auto texts = std::make_unique_for_overwrite<char[]>(group.size() + section.size() + value.size());
    char* const key = std::copy(group.begin(), group.end(), texts.get());
    std::copy(value.begin(), value.end(), std::copy(section.begin(), section.end(), key));
    at_.section = key;
    at_.isOwn = 1;
    texts.release();
}

INIline::INIline(const INIplaces& places) {
    at_.section = places.section.data();
    at_.groupDistance = static_cast<std::uint32_t>(places.section.data() - places.group.data());
    at_.groupLength = static_cast<std::uint32_t>(places.group.size());
    at_.sectionLength = static_cast<std::uint32_t>(places.section.size());
    at_.valueLength = static_cast<std::uint32_t>(places.valueLength) & kLongestText;
}

INIline::INIline(const INIline& other) : INIline(other.Group(), other.Section(), other.Value()) {}

INIline::INIline(INIline&& other) noexcept : at_(std::exchange(other.at_, {})) {}

INIline& INIline::operator=(INIline other) noexcept {
    std::swap(at_, other.at_);
    return *this;
}

INIline::~INIline() {
    if (at_.isOwn != 0) {
        delete[](at_.section - at_.groupDistance);
    }
}

void INIline::Group(std::string_view text) {
    *this = INIline(text, Section(), Value());
}

void INIline::Section(std::string_view text) {
    *this = INIline(Group(), text, Value());
}

void INIline::Value(std::string_view text) {
    *this = INIline(Group(), Section(), text);
}

} // namespace zy
