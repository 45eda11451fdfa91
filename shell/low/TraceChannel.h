#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/LastSteps.h"
#include "platform/TraceServers.h"

namespace zy {

// The modules as which several classes trace: a viewer knows a step by this name, whichever class takes it.
inline constexpr std::string_view kRulesModule = "mRules";
inline constexpr std::string_view kSecurityModule = "mSecurity";
inline constexpr std::string_view kMainForm = "frmGlobalSettings"; ///< the window's own name

/// Reports what the program does to an external trace viewer, when one is running, and is silent otherwise.
///
/// The viewer is looked up afresh for every record. When the very first look-up finds none, no later one is
/// made, so that tracing then costs one comparison; a viewer that was there once is looked for again every
/// time.
class TraceChannel {
  public:
    /// The name under which the viewer is registered.
    static constexpr std::string_view kServerName = "ZYDebug.Application";

    TraceChannel(TraceServers& servers, std::string executableName);

    /// Sends one record: the program's name, the module or form, the procedure, and a short message. Never
    /// fails.
    void DebugTrace(std::string_view module, std::string_view procedure, std::string_view message);

    /// The last of these records, whether there was a viewer or not, without their messages.
    const LastSteps& Last() const { return last_; }

  private:
    enum class TraceState : std::int16_t { GivenUp = -1, NotTried = 0, Reached = 1 };

    TraceServers& servers_;
    std::string executableName_;
    TraceState state_ = TraceState::NotTried;
    LastSteps last_;
};

} // namespace zy
