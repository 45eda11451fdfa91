#include "ini/INIfile.h"

#include <string>

#include "ini/INIparser.h"

namespace zy {

INIfile::INIfile(FileSystem& files, const CodePage& codePage, TraceChannel& trace)
    : files_(files), codePage_(codePage), trace_(trace) {}

const std::shared_ptr<zy::INIlines>& INIfile::INIlines() {
    if (!lines_) {
        lines_ = std::make_shared<zy::INIlines>();
    }
    return lines_;
}

void INIfile::LoadFile(std::string_view Filename) {
    auto& lines = *INIlines();
    lines.Clear();
    // Opening fails as well when there is no such file.
    if (const auto opened = files_.OpenForReading(Filename); opened.handle) {
        ParseLines(lines.Keep(FileText(*opened.handle)), codePage_, lines);
    }
}

void INIfile::SaveFile(std::string_view Filename) {
    trace_.DebugTrace("INIFile", "SaveFile", "Start " + std::string(Filename));
    const INIfileText text(*INIlines(), format_, codePage_);
    if (files_.Exists(Filename)) {
        files_.Delete(Filename);
    }
    const auto created = files_.Create(Filename);
    if (created.handle) {
        WriteAndClose(*created.handle, text.Get()); // a failure is silent, which is meant
    }
}

} // namespace zy
