#pragma once

#include <memory>
#include <string_view>

namespace zy {

/// A running trace viewer, as reached by one look-up.
class TraceServer {
  public:
    virtual ~TraceServer() = default;

    /// Hands over one record. False when the viewer could not take it.
    virtual bool Send(std::string_view executable, std::string_view module, std::string_view procedure,
                      std::string_view message) = 0;
};

/// The look-up of running servers by their registered name.
class TraceServers {
  public:
    virtual ~TraceServers() = default;

    /// The running server of that name, or nothing. Never starts one.
    virtual std::unique_ptr<TraceServer> GetRunning(std::string_view name) = 0;
};

} // namespace zy
