#include "platform/memory/MemoryTraceServers.h"

#include <ostream>

namespace zy {

std::ostream& operator<<(std::ostream& out, const TraceRecord& record) {
    return out << record.executable << " | " << record.module << " | " << record.procedure << " | "
               << record.message;
}

class MemoryTraceServers::Server final : public TraceServer {
  public:
    explicit Server(MemoryTraceServers& viewer) : viewer_(viewer), stops_(viewer.stops_) {
        ++viewer_.unreleased_;
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server() override { --viewer_.unreleased_; }

    bool Send(std::string_view executable, std::string_view module, std::string_view procedure,
              std::string_view message) override {
        if (viewer_.sendFails_ || viewer_.stops_ != stops_) {
            return false;
        }
        viewer_.records_.push_back({.executable = std::string(executable),
                                    .module = std::string(module),
                                    .procedure = std::string(procedure),
                                    .message = std::string(message)});
        return true;
    }

  private:
    MemoryTraceServers& viewer_;
    std::size_t stops_;
};

std::unique_ptr<TraceServer> MemoryTraceServers::GetRunning(std::string_view name) {
    ++lookUps_;
    const bool running = NextIsRunning();
    return running && name == name_ ? std::make_unique<Server>(*this) : nullptr;
}

void MemoryTraceServers::SetRunning(bool running) {
    stops_ += running ? 0 : 1;
    running_ = running;
}

void MemoryTraceServers::Clear() {
    lookUps_ = 0;
    records_.clear();
}

bool MemoryTraceServers::NextIsRunning() {
    if (script_.empty()) {
        return running_;
    }
    const bool running = script_.front();
    script_.pop_front();
    return running;
}

} // namespace zy
