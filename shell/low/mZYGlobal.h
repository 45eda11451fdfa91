#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "basics/Bool16.h"
#include "basics/Marks.h"
#include "basics/SharedText.h"
#include "basics/Text.h"
#include "platform/FileSystem.h"
#include "platform/NativeWindow.h"
#include "platform/SystemInfo.h"

// Module mZYGlobal: the state that the whole program shares and the small procedures that every editor uses.
// Its start-up procedure, mMain, calls the editors and so stands above them.
//
// The low part of the shell is what the editors call: this module, the trace channel and the part of the main
// window that all of them write to. It owns no window and calls platform/, controls/ and basics/.

namespace zy {

/// The state that the whole program shares: one object, given to whoever works with it. Starts empty and
/// False.
struct SharedState {
    std::string gsSystemDir; ///< the system directory, always with a closing "\"
    std::string
        gsRulesFile; ///< the rules file; for reference alone, the rules writer asks the settings library
    std::string gsSecurityFile; ///< the user table, as its location file names it
    std::string gsUnitsFile;    ///< the units file

    // The editor in charge: none until start-up has dispatched, then one for the whole run.
    Bool16 gbRulesMode;
    Bool16 gbSecurityMode;
    Bool16 gbUnitsMode;

    /// Unsaved changes of the editors' records. Only the users editor asks it before closing.
    Bool16 gbChanged;

    /// The main window's own procedure, while another one is in its place; none at other times.
    WindowProcedure glOldWndProc;
};

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

/// The same, for several to hold.
SharedText ShareFileText(FileHandle& file, std::uint32_t count);

/// Whether a file is there, can be read, and holds this text and nothing else.
bool HoldsText(FileSystem& files, std::string_view path, std::string_view text);

/// Takes one pair of enclosing double quotes off, then trims blanks. The quotes are looked for first, so that
/// one behind a blank encloses nothing: files that hold such fields are to be read as they always were.
inline std::string_view Unquote(std::string_view field) {
    if (field.empty() || (static_cast<unsigned char>(field.front()) > '"' && field.back() != ' ')) {
        return field; // as most are: the blank and the quote are among the code page's first characters
    }
    if (field.front() == '"' && field.back() == '"') {
        field = field.size() < 2 ? std::string_view{} : field.substr(1, field.size() - 2);
    }
    return Trim(field);
}

/// Takes the fields of a line one after another, each unquoted, so that none is copied or kept. Quotes do not
/// protect a separator. An empty line has one empty field.
class LineFields {
  public:
    /// Those of a line between these marks, which may be marks of a longer text.
    LineFields(std::string_view line, Marks& separators)
        : begin_(line.data()), end_(begin_ + line.size()), separators_(&separators) {}

    /// Whether the last one was taken.
    bool AtEnd() const { return atEnd_; }
    std::string_view Next() {
        const char* const from = begin_;
        const char* to = separators_->From(from);
        atEnd_ = to >= end_;
        if (atEnd_) {
            to = begin_ = end_;
        } else {
            begin_ = to + 1;
        }
        return Unquote({from, Length(from, to)});
    }
    /// The line behind the fields that were taken.
    std::string_view Rest() const { return {begin_, Length(begin_, end_)}; }
    char Separator() const { return separators_->Character(); }

  private:
    static std::size_t Length(const char* begin, const char* end) {
        return static_cast<std::size_t>(end - begin);
    }

    const char* begin_;
    const char* end_;
    Marks* separators_;
    bool atEnd_ = false;
};

/// What separates the fields in the lines of a text: every TAB of a line that holds one, else every comma.
class Separators {
  public:
    static constexpr char kTab = '\t';
    static constexpr char kComma = ',';

    explicit Separators(std::string_view text) : tabs_(text, kTab), commas_(text, kComma) {}

    /// The fields of a line of the text, of which no later one was asked for. To be taken before the next
    /// line's.
    LineFields FieldsOf(std::string_view line) {
        const char* const end = line.data() + line.size();
        return {line, tabs_.From(line.data()) < end ? tabs_ : commas_};
    }

  private:
    Marks tabs_;
    Marks commas_;
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

/// Splits a line into all its fields.
Fields SplitFields(std::string_view line);

} // namespace zy
