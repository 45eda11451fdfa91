// The trace viewer: prints what the editor reports through its trace channel while this program runs.

#include <iostream>
#include <span>
#include <string_view>

#include "tools/TraceViewer.h"
#include "tools/ZydebugTexts.h"

namespace {

int Fail(std::string_view message) {
    std::cerr << zy::ZydebugError(message);
    return 1;
}

int Report(zy::TraceViewer::End end) {
    switch (end) {
    case zy::TraceViewer::End::Stopped:
        return 0;
    case zy::TraceViewer::End::NoBus:
        return Fail("there is no session bus to listen on");
    case zy::TraceViewer::End::NameTaken:
        return Fail(zy::kZydebugTaken);
    case zy::TraceViewer::End::BusLost:
        break;
    }
    return Fail("the session bus has gone away");
}

int View() {
    zy::TraceViewer viewer(
        [] { std::cerr << zy::kZydebugGreeting << std::flush; },
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
        std::cout << zy::kZydebugUsage;
        return 0;
    }
    std::cerr << zy::kZydebugUsage;
    return 1;
}
