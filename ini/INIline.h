#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace zy {

/// The most characters of a line: positions in one are 16-bit.
inline constexpr int kLongestLine = std::numeric_limits<std::int16_t>::max();

/// The texts of a line, as they stand in the text of a loaded file: the group is the section itself or stands
/// before it, the value stands behind it. None is longer than kLongestLine.
struct INIplaces {
    std::string_view group;
    std::string_view section;
    std::string_view value;
};

/// One line of a settings file: the header it stands under, its key and its value. The three texts are kept
/// as they are given.
///
/// A line of a loaded file refers to the text that its collection keeps, until one of its texts is set; any
/// other line holds its texts itself, and so does every copy. What a getter returns is valid until a text of
/// the line is set or the line goes away.
class INIline {
  public:
    INIline() = default;
    INIline(std::string_view group, std::string_view section, std::string_view value);
    /// A line that refers to the text of a file, which must outlive it.
    explicit INIline(const INIplaces& places);

    INIline(const INIline& other) : INIline(other.Group(), other.Section(), other.Value()) {}
    INIline(INIline&& other) noexcept;
    INIline& operator=(INIline other) noexcept;
    ~INIline();

    /// The texts stand in the text of a file, as they were loaded: trimmed, the key there and in capitals.
    bool IsInFile() const { return at_.kind == Kind::InFile; }

    /// The header, such as "[SETTINGS]"; empty before the first one.
    std::string_view Group() const;
    void Group(std::string_view text) { Own().group = text; }

    /// The key; for a header line, the header itself.
    std::string_view Section() const;
    void Section(std::string_view text) { Own().section = text; }

    /// The text behind the "="; empty for a header line.
    std::string_view Value() const;
    void Value(std::string_view text) { Own().value = text; }

  private:
    enum class Kind : std::uint8_t { Empty, InFile, Own };

    struct OwnTexts {
        std::string group;
        std::string section;
        std::string value;
    };

    /// Where the texts are. Kept this small because a file can have very many lines.
    struct Places {
        union {
            const char* section = ""; ///< in the text of a file, or nowhere
            OwnTexts* own;            ///< when the line holds its texts itself
        };
        std::uint16_t sectionLength = 0;
        std::uint16_t groupLength = 0;
        std::uint32_t groupDistance = 0; ///< from the group to the section
        std::uint16_t valueDistance = 0; ///< from the section to the value
        std::uint16_t valueLength = 0;
        Kind kind = Kind::Empty;
    };

    bool IsOwn() const { return at_.kind == Kind::Own; }
    OwnTexts& Own();

    Places at_;
};

// In place, for the sake of the loops over all lines.

inline INIline::INIline(const INIplaces& places) {
    at_.section = places.section.data();
    at_.sectionLength = static_cast<std::uint16_t>(places.section.size());
    at_.groupLength = static_cast<std::uint16_t>(places.group.size());
    at_.groupDistance = static_cast<std::uint32_t>(places.section.data() - places.group.data());
    at_.valueDistance = static_cast<std::uint16_t>(places.value.data() - places.section.data());
    at_.valueLength = static_cast<std::uint16_t>(places.value.size());
    at_.kind = Kind::InFile;
}

inline std::string_view INIline::Group() const {
    return IsOwn() ? at_.own->group : std::string_view(at_.section - at_.groupDistance, at_.groupLength);
}

inline std::string_view INIline::Section() const {
    return IsOwn() ? at_.own->section : std::string_view(at_.section, at_.sectionLength);
}

inline std::string_view INIline::Value() const {
    return IsOwn() ? at_.own->value : std::string_view(at_.section + at_.valueDistance, at_.valueLength);
}

} // namespace zy
