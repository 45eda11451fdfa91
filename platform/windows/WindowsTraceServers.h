#pragma once

#include "platform/CodePage.h"
#include "platform/TraceServers.h"

namespace zy {

/// Trace viewers in the table of running objects. A viewer registered as "ZYDebug.Application" offers,
/// late-bound, the method Send with four texts. None is ever started.
///
/// COM is made ready, with an apartment of this thread's own, for as long as this lives; all calls come from
/// that thread.
class WindowsTraceServers final : public TraceServers {
  public:
    explicit WindowsTraceServers(const CodePage& codePage);
    WindowsTraceServers(const WindowsTraceServers&) = delete;
    WindowsTraceServers& operator=(const WindowsTraceServers&) = delete;
    ~WindowsTraceServers() override;

    std::unique_ptr<TraceServer> GetRunning(std::string_view name) override;

  private:
    const CodePage& codePage_;
    bool comIsOurs_;
};

} // namespace zy
