#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "basics/Bool16.h"
#include "ini/INIfileText.h"
#include "ini/INIlines.h"
#include "platform/CodePage.h"
#include "platform/FileSystem.h"
#include "shell/TraceChannel.h"

// ini: settings files of the INI kind as a list of lines, with their headers, keys and values. It owns the
// classes INIfile (the document), INIlines (its lines) and INIline (one line), and calls the low part of the
// shell and what lies below that.

namespace zy {

/// A settings file: its lines, and how they are written.
class INIfile {
  public:
    INIfile(FileSystem& files, const CodePage& codePage, TraceChannel& trace);

    /// The lines; an empty collection when there was none. Files can share one.
    const std::shared_ptr<zy::INIlines>& INIlines();
    void INIlines(std::shared_ptr<zy::INIlines> lines) { lines_ = std::move(lines); }

    /// On saving, keys are written in capitals. The setter lacks an "i" in the interface that the product's
    /// other programs call, and keeps that name for them.
    Bool16 UcaseSection() const { return format_.ucaseSection; }
    void UcaseSecton(Bool16 value) { format_.ucaseSection = value; }

    /// The blanks that saving writes in front of a key. A negative number is none.
    std::int32_t LeadingSpaces() const { return format_.leadingSpaces; }
    void LeadingSpaces(std::int32_t value) { format_.leadingSpaces = value; }

    /// The column, counted from 1, at which saving writes "=" when the key is short enough.
    std::int32_t EqualPos() const { return format_.equalPos; }
    void EqualPos(std::int32_t value) { format_.equalPos = value; }

    /// Replaces the lines by those of a file, be it hidden or not. A file that is missing or cannot be read
    /// leaves none, without a word; of one that can be read in part, the lines of that part are taken.
    ///
    /// Taken are header lines, whose Group and Section both hold the header, and lines "key=value", whose
    /// Group is the last header; headers and keys come out in capitals, whatever UcaseSection says. Not
    /// taken: blank lines, lines without "=" or without a key, and what stands behind the last CR LF. A CR,
    /// LF or TAB inside a line counts as a blank. A line of more than 32,767 characters is run-time error 6;
    /// the lines before it are then loaded.
    void LoadFile(std::string_view Filename);

    /// Writes the lines, as INIfileText has them, in place of the file. Run-time error 6, with the file
    /// untouched, when there are more than 32,767.
    ///
    /// The old file is deleted first, also a hidden one, and failures are silent: when the new one cannot be
    /// created there is none, when the disk fills up there is the part that was written.
    void SaveFile(std::string_view Filename);

  private:
    /// Whether the shell finds anything by that path; whatever goes wrong counts as nothing.
    bool FileExists(std::string_view path) const;
    /// Adds the lines of a file's text that are to be taken; they refer to the text.
    void AddLines(const FileText& text);
    /// Takes a line apart, in its place, and returns its end, which must stand ahead. The section comes out
    /// empty when the line is not to be taken; the group stays as it is unless the line is a header.
    static char* ParseLine(char* line, INIplaces& places, const CodePage& codePage);

    FileSystem& files_;
    const CodePage& codePage_;
    TraceChannel& trace_;
    std::shared_ptr<zy::INIlines> lines_;
    INIformat format_;
};

} // namespace zy
