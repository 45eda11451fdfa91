#include "platform/posix/SessionBus.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

#include "platform/glib/Waiting.h"
#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

constexpr std::string_view kDisabled = "disabled:";
constexpr std::array<std::string_view, 2> kStartABus{"autolaunch:", "unixexec:"};

/// A context of the main loop's kind that is this thread's own for a while: what begins meanwhile ends in it,
/// and nothing else of the program goes on.
class OwnContext {
  public:
    OwnContext() { g_main_context_push_thread_default(context_); }
    OwnContext(const OwnContext&) = delete;
    OwnContext& operator=(const OwnContext&) = delete;
    ~OwnContext() {
        g_main_context_pop_thread_default(context_);
        g_main_context_unref(context_);
    }

    GMainContext* Get() const { return context_; }

  private:
    GMainContext* context_ = g_main_context_new();
};

/// The end of an operation that was begun, whenever it comes.
class Ending {
  public:
    /// To be handed over with the ending itself as its data.
    static void Come(GObject* /*source*/, GAsyncResult* result, gpointer ending) {
        static_cast<Ending*>(ending)->result_.reset(G_ASYNC_RESULT(g_object_ref(result)));
    }

    /// Waits for the end. An operation that takes too long is cancelled, and ends at once then.
    GAsyncResult* Await(const OwnContext& context, GCancellable* operation,
                        std::chrono::milliseconds patience) {
        if (!WaitOn(context.Get(), patience, [this] { return result_ != nullptr; })) {
            g_cancellable_cancel(operation);
        }
        while (!result_) {
            g_main_context_iteration(context.Get(), TRUE);
        }
        return result_.get();
    }

  private:
    GlibPointer<GAsyncResult> result_;
};

/// A connection that has not begun to connect. It reports its end in the context that it is made in.
GlibPointer<GDBusConnection> MakeConnection(const std::string& address) {
    constexpr auto kFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                              G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    return GlibPointer<GDBusConnection>(G_DBUS_CONNECTION(
        g_object_new(G_TYPE_DBUS_CONNECTION, "address", address.c_str(), "flags", kFlags, nullptr)));
}

/// A connection is asked for in the midst of the program's work, so no event of a window may happen
/// meanwhile.
bool Connect(GDBusConnection* connection, std::chrono::milliseconds patience) {
    const OwnContext context;
    Ending ending;
    const GlibPointer<GCancellable> cancellable(g_cancellable_new());
    auto* initable = G_ASYNC_INITABLE(connection);
    g_async_initable_init_async(initable, G_PRIORITY_DEFAULT, cancellable.get(), &Ending::Come, &ending);
    return g_async_initable_init_finish(initable, ending.Await(context, cancellable.get(), patience),
                                        nullptr) != FALSE;
}

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

GlibPointer<GDBusConnection> ConnectToSessionBus(std::chrono::milliseconds patience) {
    const auto address = SessionBusAddress();
    if (address.empty()) {
        return nullptr;
    }
    auto connection = MakeConnection(address);
    if (!Connect(connection.get(), patience)) {
        return nullptr;
    }
    g_dbus_connection_set_exit_on_close(connection.get(), FALSE);
    return connection;
}

bool LeaveOutSilentBus(std::chrono::milliseconds patience) {
    const auto start = std::chrono::steady_clock::now();
    if (ConnectToSessionBus(patience) || std::chrono::steady_clock::now() - start < patience) {
        return false;
    }
    ::setenv("DBUS_SESSION_BUS_ADDRESS", std::string(kDisabled).c_str(), 1);
    ::setenv("NO_AT_BRIDGE", "1", 1); // or the bridge to the screen readers complains that there is no bus
    return true;
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
