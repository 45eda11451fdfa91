#include "platform/posix/SessionBus.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <mutex>
#include <string_view>
#include <thread>

#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

constexpr std::string_view kDisabled = "disabled:";
constexpr std::array<std::string_view, 2> kStartABus{"autolaunch:", "unixexec:"};

/// Cancels an operation that takes too long.
class Deadline {
  public:
    explicit Deadline(std::chrono::milliseconds patience)
        : watch_([this, patience](const std::stop_token& stop) { Watch(stop, patience); }) {}

    GCancellable* Cancellable() const { return cancellable_.get(); }

  private:
    void Watch(const std::stop_token& stop, std::chrono::milliseconds patience) {
        std::unique_lock lock(mutex_);
        if (!finished_.wait_for(lock, stop, patience, [&stop] { return stop.stop_requested(); })) {
            g_cancellable_cancel(cancellable_.get());
        }
    }

    GlibPointer<GCancellable> cancellable_{g_cancellable_new()};
    std::mutex mutex_;
    std::condition_variable_any finished_;
    std::jthread watch_; // the last member: it starts when the others stand, and is joined before they go
};

bool StartsABus(std::string_view address) {
    return std::any_of(kStartABus.begin(), kStartABus.end(),
                       [address](std::string_view kind) { return address.starts_with(kind); });
}

/// The addresses of a list that lead to a bus that is running.
std::string AddressesOfRunning(std::string_view addresses) {
    std::string kept;
    while (!addresses.empty()) {
        const auto address = addresses.substr(0, addresses.find(';'));
        if (!address.empty() && !StartsABus(address)) {
            kept += (kept.empty() ? "" : ";") + std::string(address);
        }
        addresses.remove_prefix(std::min(address.size() + 1, addresses.size()));
    }
    return kept;
}

bool IsSocket(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISSOCK(status.st_mode);
}

std::string RuntimeFolderAddress() {
    const auto folder = Environment("XDG_RUNTIME_DIR");
    const auto socket = folder + "/bus";
    if (folder.empty() || !IsSocket(socket)) {
        return "";
    }
    const GlibPointer<gchar> escaped(g_dbus_address_escape_value(socket.c_str()));
    return std::string("unix:path=") + escaped.get();
}

} // namespace

std::string SessionBusAddress() {
    const auto given = Environment("DBUS_SESSION_BUS_ADDRESS");
    if (given.starts_with(kDisabled)) {
        return "";
    }
    auto running = AddressesOfRunning(given);
    return running.empty() ? RuntimeFolderAddress() : running;
}

GlibPointer<GDBusConnection> ConnectToSessionBus() {
    const auto address = SessionBusAddress();
    if (address.empty()) {
        return nullptr;
    }
    constexpr auto kFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                              G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    const Deadline deadline(kBusPatience);
    GlibPointer<GDBusConnection> connection(g_dbus_connection_new_for_address_sync(
        address.c_str(), kFlags, nullptr, deadline.Cancellable(), nullptr));
    if (connection) {
        g_dbus_connection_set_exit_on_close(connection.get(), FALSE);
    }
    return connection;
}

GlibPointer<GVariant> CallBus(GDBusConnection* connection, const char* method, GVariant* arguments,
                              const GVariantType* resultType) {
    return GlibPointer<GVariant>(g_dbus_connection_call_sync(
        connection, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
        arguments, resultType, G_DBUS_CALL_FLAGS_NONE, static_cast<gint>(kBusPatience.count()), nullptr,
        nullptr));
}

std::string ObjectPathOf(const std::string& busName) {
    auto path = '/' + busName;
    std::replace(path.begin(), path.end(), '.', '/');
    return path;
}

} // namespace zy
