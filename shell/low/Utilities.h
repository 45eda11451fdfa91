#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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

/// The fields of a line, counted from 1, each unquoted. They refer to the line and are looked up when asked
/// for.
class Fields {
  public:
    Fields(std::string_view line, char separator) : line_(line), separator_(separator) {}

    std::int32_t Count() const;
    /// Run-time error 9 when there is no such field.
    std::string_view operator[](std::int32_t field) const;

  private:
    std::string_view line_;
    char separator_;
};

/// Splits a line at every TAB when it holds one, else at every comma. Quotes do not protect a separator. An
/// empty line has one empty field.
Fields SplitFields(std::string_view line);

} // namespace zy
