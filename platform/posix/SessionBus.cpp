#include "platform/posix/SessionBus.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

constexpr std::string_view kDisabled = "disabled:";
constexpr std::array<std::string_view, 2> kStartABus{"autolaunch:", "unixexec:"};

using Clock = std::chrono::steady_clock;

/// A context of the main loop's kind that is this thread's own for a while: what begins meanwhile ends in it,
/// and nothing else of the program goes on.
class OwnContext {
  public:
    OwnContext() { g_main_context_push_thread_default(context_); }
    ~OwnContext() {
        g_main_context_pop_thread_default(context_);
        g_main_context_unref(context_);
    }
    OwnContext(const OwnContext&) = delete;
    OwnContext& operator=(const OwnContext&) = delete;

    /// Waits for something to do, at most until then or for as long as it takes, and does it.
    void Iterate(std::optional<Clock::time_point> end) {
        gint priority = 0;
        g_main_context_prepare(context_, &priority);
        gint patience = -1;
        auto watched = Watched(priority, patience);
        if (end) {
            const auto left = std::max(0, MillisecondsUntil(*end));
            patience = patience < 0 ? left : std::min(patience, left);
        }
        g_poll(watched.data(), static_cast<guint>(watched.size()), patience);
        if (g_main_context_check(context_, priority, watched.data(), static_cast<gint>(watched.size())) !=
            FALSE) {
            g_main_context_dispatch(context_);
        }
    }

  private:
    static int MillisecondsUntil(Clock::time_point end) {
        return static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count());
    }

    std::vector<GPollFD> Watched(gint priority, gint& patience) {
        std::vector<GPollFD> watched(1);
        for (;;) {
            const auto room = watched.size();
            const auto needed =
                g_main_context_query(context_, priority, &patience, watched.data(), static_cast<gint>(room));
            watched.resize(static_cast<std::size_t>(needed));
            if (watched.size() <= room) {
                return watched;
            }
        }
    }

    GMainContext* context_ = g_main_context_new();
};

/// The end of an operation that was begun, whenever it comes.
class Ending {
  public:
    /// To be handed over with the ending itself as its data.
    static void Come(GObject* /*source*/, GAsyncResult* result, gpointer ending) {
        static_cast<Ending*>(ending)->result_.reset(G_ASYNC_RESULT(g_object_ref(result)));
    }

    /// Waits for the end. What takes too long is told to give up, and ends soon then.
    GAsyncResult* Await(OwnContext& context, GCancellable* operation) {
        const auto end = Clock::now() + kBusPatience;
        while (!result_ && Clock::now() < end) {
            context.Iterate(end);
        }
        if (!result_) {
            g_cancellable_cancel(operation);
        }
        while (!result_) {
            context.Iterate(std::nullopt);
        }
        return result_.get();
    }

  private:
    GlibPointer<GAsyncResult> result_;
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
    OwnContext context;
    Ending ending;
    const GlibPointer<GCancellable> cancellable(g_cancellable_new());
    g_dbus_connection_new_for_address(address.c_str(), kFlags, nullptr, cancellable.get(), &Ending::Come,
                                      &ending);
    GlibPointer<GDBusConnection> connection(
        g_dbus_connection_new_for_address_finish(ending.Await(context, cancellable.get()), nullptr));
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
