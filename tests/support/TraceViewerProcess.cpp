#include "support/TraceViewerProcess.h"

#include <csignal>
#include <stdexcept>

namespace zy::test {

TraceViewerProcess::TraceViewerProcess() : process_({ProgramPath()}) {
    const auto greeting = process_.Errors().Next();
    if (!greeting || greeting->find("listening") == std::string::npos) {
        throw std::runtime_error("the trace viewer did not start: " + greeting.value_or("it said nothing"));
    }
}

std::optional<int> TraceViewerProcess::Stop() {
    process_.Signal(SIGINT);
    return process_.Wait();
}

std::string TraceViewerProcess::ProgramPath() {
    return ZYDEBUG_PATH;
}

} // namespace zy::test
