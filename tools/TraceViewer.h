#pragma once

#include <functional>

#include "platform/posix/GlibPointer.h"
#include "tools/RecordLine.h"

namespace zy {

/// The trace viewer's end of the session bus: owns the name "ZYDebug.Application" and takes the records sent
/// to it.
class TraceViewer {
  public:
    enum class End {
        Stopped,   ///< by Stop, or by SIGINT or SIGTERM
        NoBus,     ///< there is no session bus
        NameTaken, ///< another viewer runs
        BusLost,   ///< the bus went away
    };

    /// Called with each record, in the order they come; the sender is answered when it returns.
    using OnRecord = std::function<void(const RecordFields& fields)>;
    /// Called once, when the name is owned.
    using OnReady = std::function<void()>;

    TraceViewer(OnReady onReady, OnRecord onRecord);
    TraceViewer(const TraceViewer&) = delete;
    TraceViewer& operator=(const TraceViewer&) = delete;
    ~TraceViewer();

    /// Takes records until something ends it. The name is given up on return.
    End Run();
    /// Makes Run return.
    void Stop();

    /// What Run does with one record off the bus.
    void Take(GVariant* record) const;

  private:
    End RunOn(GDBusConnection* connection);

    OnReady onReady_;
    OnRecord onRecord_;
    GMainLoop* loop_;
};

} // namespace zy
