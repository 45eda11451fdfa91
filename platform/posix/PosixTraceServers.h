#pragma once

#include <string>

#include "platform/CodePage.h"
#include "platform/TraceServers.h"

namespace zy {

/// Trace viewers on the user's session bus. A viewer registered as "ZYDebug.Application" owns that name on
/// the bus and offers, at the object "/ZYDebug/Application", the interface "ZYDebug.Application" with the
/// method Send(ssss).
///
/// Neither a bus nor a viewer is ever started, and neither is waited for longer than kBusPatience. The
/// connection to the bus is kept between look-ups; one that was lost is made anew.
class PosixTraceServers final : public TraceServers {
  public:
    explicit PosixTraceServers(const CodePage& codePage);
    PosixTraceServers(const PosixTraceServers&) = delete;
    PosixTraceServers& operator=(const PosixTraceServers&) = delete;
    ~PosixTraceServers() override;

    std::unique_ptr<TraceServer> GetRunning(std::string_view name) override;
    /// Whether the last look-up has reached the bus, which has not gone since then.
    bool HasBus() const;

  private:
    class Bus; // keeps the headers of GLib out of this one

    const CodePage& codePage_;
    std::unique_ptr<Bus> bus_;
};

/// Text as the bus takes it: UTF-8, with a NUL as its symbol U+2400, since text on the bus ends at a NUL.
std::string ToBusText(const CodePage& codePage, std::string_view text);

} // namespace zy
