#include "platform/PatientTraceServers.h"

#include <utility>

namespace zy {

class PatientTraceServers::Server final : public TraceServer {
  public:
    Server(PatientTraceServers& patient, std::unique_ptr<TraceServer> server)
        : patient_(patient), server_(std::move(server)) {}

    bool Send(std::string_view executable, std::string_view module, std::string_view procedure,
              std::string_view message) override {
        if (patient_.IsResting()) {
            return false;
        }
        const auto begun = patient_.clock_();
        const bool taken = server_->Send(executable, module, procedure, message);
        patient_.RestAfter(begun);
        return taken;
    }

  private:
    PatientTraceServers& patient_;
    std::unique_ptr<TraceServer> server_;
};

PatientTraceServers::PatientTraceServers(TraceServers& servers, Clock clock)
    : servers_(servers), clock_(std::move(clock)) {}

std::unique_ptr<TraceServer> PatientTraceServers::GetRunning(std::string_view name) {
    if (IsResting()) {
        return nullptr;
    }
    const auto begun = clock_();
    auto server = servers_.GetRunning(name);
    RestAfter(begun);
    return server ? std::make_unique<Server>(*this, std::move(server)) : nullptr;
}

void PatientTraceServers::RestAfter(std::chrono::steady_clock::time_point begun) {
    const auto now = clock_();
    if (now - begun >= kTracePatience) {
        restsUntil_ = now + kTraceRest;
    }
}

} // namespace zy
