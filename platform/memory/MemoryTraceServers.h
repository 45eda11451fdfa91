#pragma once

#include <cstddef>
#include <deque>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TraceServers.h"

namespace zy {

/// One record as a trace viewer gets it.
struct TraceRecord {
    std::string executable;
    std::string module;
    std::string procedure;
    std::string message;

    bool operator==(const TraceRecord&) const = default;
};

std::ostream& operator<<(std::ostream& out, const TraceRecord& record);

/// One trace viewer, which can come and go. At first it is not running.
///
/// Servers it has handed out must not outlive it.
class MemoryTraceServers final : public TraceServers {
  public:
    std::unique_ptr<TraceServer> GetRunning(std::string_view name) override;

    /// The name the viewer has registered; a look-up of another finds nothing.
    void SetName(std::string_view name) { name_ = name; }
    /// Stopping the viewer leaves servers handed out before unable to send.
    void SetRunning(bool running);
    /// Says for the next look-ups, one each, whether the viewer is running; those behind them go by
    /// SetRunning.
    void ScriptLookUps(const std::vector<bool>& running) { script_.assign(running.begin(), running.end()); }
    /// Makes every later Send fail; the record is then not among those that came.
    void SetSendFails(bool fails) { sendFails_ = fails; }

    /// The number of look-ups so far.
    std::size_t LookUps() const { return lookUps_; }
    /// The number of servers handed out and not yet released.
    std::size_t Unreleased() const { return unreleased_; }
    /// The records that came, in their order.
    const std::vector<TraceRecord>& Records() const { return records_; }
    /// Forgets the records and the number of look-ups.
    void Clear();

  private:
    class Server;

    bool NextIsRunning();

    std::string name_ = "ZYDebug.Application";
    bool running_ = false;
    bool sendFails_ = false;
    std::deque<bool> script_;
    std::size_t stops_ = 0;
    std::size_t lookUps_ = 0;
    std::size_t unreleased_ = 0;
    std::vector<TraceRecord> records_;
};

} // namespace zy
