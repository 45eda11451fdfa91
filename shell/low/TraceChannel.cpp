#include "shell/TraceChannel.h"

#include <exception>
#include <utility>

namespace zy {
namespace {

/// Runs a step of the trace channel, whose errors are no one's business.
template <typename Step>
void IgnoringErrors(const Step& step) {
    try {
        step();
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): tracing must never disturb the program
    }
}

} // namespace

TraceChannel::TraceChannel(TraceServers& servers, std::string executableName)
    : servers_(servers), executableName_(std::move(executableName)) {}

void TraceChannel::DebugTrace(std::string_view module, std::string_view procedure, std::string_view message) {
    last_.Note(module, procedure);
    if (state_ == TraceState::GivenUp) {
        return;
    }
    std::unique_ptr<TraceServer> server;
    IgnoringErrors([&] { server = servers_.GetRunning(kServerName); });
    if (!server) {
        if (state_ == TraceState::NotTried) {
            state_ = TraceState::GivenUp;
        }
        return;
    }
    // A viewer that was found counts as reached even if it could not take the record, which is lost then:
    // tracing never keeps the program from its work.
    state_ = TraceState::Reached;
    IgnoringErrors([&] { static_cast<void>(server->Send(executableName_, module, procedure, message)); });
}

} // namespace zy
