#pragma once

#include <chrono>
#include <string>

#include "platform/posix/GlibPointer.h"

namespace zy {

/// The longest time that anything is waited for on the session bus.
constexpr std::chrono::milliseconds kBusPatience{2000};

/// Where the user's session bus can be reached: $DBUS_SESSION_BUS_ADDRESS, without those of its addresses
/// that would start a bus; when none remains, the socket "bus" in $XDG_RUNTIME_DIR if it exists. Empty when
/// there is no bus, and when the variable says "disabled:".
std::string SessionBusAddress();

/// A connection of our own to the session bus; nothing when there is none, or when it does not answer in
/// time. Never starts a bus. While it is being made, none of the program's events happens; its own end
/// is one of them.
GlibPointer<GDBusConnection> ConnectToSessionBus(std::chrono::milliseconds patience = kBusPatience);

/// Where there is a session bus that does not answer in time, has all parts of this program, and what it
/// starts, go without one, screen readers among them: other libraries wait for it as long as it takes. True
/// then.
bool LeaveOutSilentBus(std::chrono::milliseconds patience);

/// Calls a method of the bus itself. Nothing when it fails or does not answer in time.
GlibPointer<GVariant> CallBus(GDBusConnection* connection, const char* method, GVariant* arguments,
                              const GVariantType* resultType);

/// The path of the object that a program of this name offers on the bus: "ZYDebug.Application" gives
/// "/ZYDebug/Application".
std::string ObjectPathOf(const std::string& busName);

} // namespace zy
