#include "security/SecurityFileLocation.h"

#include "basics/Int16.h"
#include "basics/Text.h"
#include "ini/INIfile.h"
#include "security/UserFiles.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

std::string_view WithoutQuotes(std::string_view value) {
    if (!value.starts_with('"')) {
        return value;
    }
    value.remove_prefix(1);
    return value.substr(0, value.empty() ? 0 : value.size() - 1);
}

} // namespace

std::string SecurityFileLocation(FileSystem& files, SystemInfo& system, const CodePage& codePage,
                                 TraceChannel& trace) {
    trace.DebugTrace(kSecurityModule, "SecurityFileLocation", "Start");
    const std::string systemDir = GetSystemDir(system);
    std::string location = UserFiles(systemDir).table;

    INIfile settings(files, codePage, trace);
    settings.LoadFile(systemDir + std::string(kSecurityLocationFile));
    auto& lines = *settings.INIlines();
    const int count = ToInt16(lines.Count());
    for (int i = 1; i <= count; ++i) {
        const auto& line = lines.Item(i);
        if (codePage.UCase(Trim(line.Section())) == "ZYSECURE.SECURITYFILE") {
            location = WithoutQuotes(line.Value());
        }
    }
    return codePage.UCase(Trim(location));
}

} // namespace zy
