// The trace viewer: prints what the editor reports through its trace channel while this program runs.

#include <iostream>
#include <span>
#include <string_view>

#include "tools/TraceViewer.h"

namespace {

constexpr std::string_view kUsage =
    "Usage: zydebug\n"
    "Shows the trace records that zyGlobal sends, one line each: executable, module, procedure and message,\n"
    "with a TAB between them. It has to run before zyGlobal starts. Ctrl+C ends it.\n";

int Fail(std::string_view message) {
    std::cerr << "zydebug: " << message << '\n';
    return 1;
}

int Report(zy::TraceViewer::End end) {
    switch (end) {
    case zy::TraceViewer::End::Stopped:
        return 0;
    case zy::TraceViewer::End::NoBus:
        return Fail("there is no session bus to listen on");
    case zy::TraceViewer::End::NameTaken:
        return Fail("another trace viewer is running");
    case zy::TraceViewer::End::BusLost:
        break;
    }
    return Fail("the session bus has gone away");
}

int View() {
    zy::TraceViewer viewer(
        [] { std::cerr << "zydebug: listening; Ctrl+C ends" << std::endl; },
        [](const zy::RecordFields& record) { std::cout << zy::RecordLine(record) << std::flush; });
    return Report(viewer.Run());
}

} // namespace

int main(int argumentCount, char** argumentList) {
    const std::span arguments(argumentList, static_cast<std::size_t>(argumentCount));
    if (arguments.size() <= 1) {
        return View();
    }
    if (std::string_view(arguments[1]) == "--help") {
        std::cout << kUsage;
        return 0;
    }
    std::cerr << kUsage;
    return 1;
}
