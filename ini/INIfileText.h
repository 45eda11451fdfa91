#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "basics/Bool16.h"
#include "ini/INIlines.h"
#include "platform/CodePage.h"

namespace zy {

/// How the key lines of a saved file look.
struct INIformat {
    Bool16 ucaseSection;            ///< keys in capitals
    std::int32_t leadingSpaces = 3; ///< blanks in front of a key; a negative number is none
    std::int32_t equalPos = 17;     ///< the column of "=", counted from 1; a longer key is not cut
};

/// The text of a settings file, each line ended by CR LF. It stands in a buffer that is filled once and never
/// cleared.
///
/// A line with a key is written as "key = value". So is a header line as LoadFile made it, whose key is the
/// header: callers who want the bare header in the file add a line with a group and no key. A line without a
/// key is its group in capitals alone, and blank when that is empty too; its value is not written. More than
/// 32,767 lines are run-time error 6.
class INIfileText {
  public:
    INIfileText(const INIlines& lines, const INIformat& format, const CodePage& codePage);

    std::string_view Get() const { return {text_.get(), static_cast<std::size_t>(at_ - text_.get())}; }

  private:
    /// Makes room for so many more characters, and behind them for one more line of a file.
    void MakeRoom(std::size_t room);

    std::unique_ptr<char[]> text_;
    char* at_ = nullptr;              ///< the end of what is written
    const char* lastPlace_ = nullptr; ///< the last one where a line of a file may begin
};

} // namespace zy
