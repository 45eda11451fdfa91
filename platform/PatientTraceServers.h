#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/TraceServers.h"

namespace zy {

/// How long an answer of a trace viewer, or of what leads to it, is waited for.
constexpr std::chrono::milliseconds kTracePatience{2000};
/// How long nothing is asked after one that did not come in that time.
constexpr std::chrono::seconds kTraceRest{60};

/// Trace servers that hold the program up once a minute at the most. Without this each step would wait for a
/// viewer that hangs, or that is stopped in a debugger. While they rest none is found, and no record is
/// taken.
class PatientTraceServers final : public TraceServers {
  public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// The servers keep to the patience themselves. They must outlive this, and this the servers it hands
    /// out.
    explicit PatientTraceServers(TraceServers& servers, Clock clock = std::chrono::steady_clock::now);

    std::unique_ptr<TraceServer> GetRunning(std::string_view name) override;

  private:
    class Server;

    bool IsResting() const { return clock_() < restsUntil_; }
    /// Rests from now on when what was begun then has taken too long.
    void RestAfter(std::chrono::steady_clock::time_point begun);

    TraceServers& servers_;
    Clock clock_;
    std::chrono::steady_clock::time_point restsUntil_ = std::chrono::steady_clock::time_point::min();
};

} // namespace zy
