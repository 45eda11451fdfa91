#pragma once

#include <cstdint>
#include <string_view>

namespace zy {

/// Where the texts of a line stand in the text of a loaded file: the header somewhere before the key, or the
/// key itself, and the value directly behind the key.
struct INIplaces {
    std::string_view group;
    std::string_view section;
    std::size_t valueLength = 0;
};

/// One line of a settings file: the header it stands under, its key and its value. The three texts are kept
/// as they are given.
///
/// A line of a loaded file refers to the text that its collection keeps, until one of its texts is set; any
/// other line holds its texts itself, and so does every copy. What a getter returns is valid until a text of
/// the line is set or the line goes away. A text of 2 GB or more is run-time error 14.
class INIline {
  public:
    INIline() = default;
    INIline(std::string_view group, std::string_view section, std::string_view value);
    /// A line that refers to a text, which must outlive it.
    explicit INIline(const INIplaces& places);

    INIline(const INIline& other);
    INIline(INIline&& other) noexcept;
    INIline& operator=(INIline other) noexcept;
    ~INIline();

    /// The header, such as "[SETTINGS]"; empty before the first one.
    std::string_view Group() const { return {at_.section - at_.groupDistance, at_.groupLength}; }
    void Group(std::string_view text);

    /// The key; for a header line, the header itself.
    std::string_view Section() const { return {at_.section, at_.sectionLength}; }
    void Section(std::string_view text);

    /// The text behind the "="; empty for a header line.
    std::string_view Value() const { return {at_.section + at_.sectionLength, at_.valueLength}; }
    void Value(std::string_view text);

  private:
    /// Kept this small because a file can have very many lines: the key's place, with the value directly
    /// behind it and the header a distance before it. In memory of the line's own the header stands directly
    /// before the key.
    struct Places {
        const char* section = "";
        std::uint32_t groupDistance = 0;
        std::uint32_t groupLength = 0;
        std::uint32_t sectionLength = 0;
        std::uint32_t valueLength : 31 = 0;
        std::uint32_t isOwn : 1 = 0;
    };

    Places at_;
};

} // namespace zy
