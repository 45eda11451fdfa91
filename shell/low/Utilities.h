#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "basics/Text.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"

namespace zy {

/// The system directory, cut at its first NUL, with "\" appended, also when it ends in one already.
std::string GetSystemDir(SystemInfo& system);

/// The text up to its first NUL; the whole text when it holds none.
std::string_view StripAtNull(std::string_view text);

/// The part of a path behind its last "\"; the whole path when it holds none.
std::string_view FileNameOf(std::string_view path);
/// The part of a path up to and with its last "\"; empty when it holds none.
std::string_view FolderOf(std::string_view path);

/// Reads up to `count` bytes from the handle's position. Shorter at the end of the file or when reading
/// fails.
std::string ReadFileText(FileHandle& file, std::uint32_t count);

/// Whether a file is there, can be read, and holds this text and nothing else.
bool HoldsText(FileSystem& files, std::string_view path, std::string_view text);

/// Takes one pair of enclosing double quotes off, then trims blanks. A quote behind a blank encloses nothing,
/// which is meant: the quotes are looked for first.
std::string_view Unquote(std::string_view field);

/// Takes the fields of a line one after another, each unquoted, so that none is copied or kept. The line is
/// split at every TAB when it holds one, else at every comma; quotes do not protect a separator. An empty
/// line has one empty field.
class LineFields {
  public:
    explicit LineFields(std::string_view line) : rest_(line), separator_(Contains(line, '\t') ? '\t' : ',') {}

    /// Whether the last one was taken.
    bool AtEnd() const { return atEnd_; }
    std::string_view Next() {
        const auto end = rest_.find(separator_);
        const auto field = rest_.substr(0, end);
        atEnd_ = end == std::string_view::npos;
        rest_.remove_prefix(atEnd_ ? rest_.size() : end + 1);
        return Unquote(field);
    }
    /// The line behind the fields that were taken.
    std::string_view Rest() const { return rest_; }
    char Separator() const { return separator_; }

  private:
    std::string_view rest_;
    char separator_;
    bool atEnd_ = false;
};

/// A split line: element 0 is the number of its fields, the elements from 1 to that number are the fields,
/// which refer to the line.
class Fields {
  public:
    using Element = std::variant<std::int32_t, std::string_view>;

    explicit Fields(LineFields fields);

    /// Run-time error 9 when there is no such element.
    const Element& operator[](std::int32_t index) const;
    /// A field as the text that it is.
    std::string_view Text(std::int32_t field) const { return std::get<std::string_view>((*this)[field]); }

  private:
    std::vector<Element> elements_;
};

/// Splits a line into all the fields that LineFields finds.
Fields SplitFields(std::string_view line);

} // namespace zy
