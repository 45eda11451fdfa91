#include "platform/posix/PosixTraceServers.h"

#include "platform/posix/SessionBus.h"

namespace zy {
namespace {

class BusTraceServer final : public TraceServer {
  public:
    BusTraceServer(GDBusConnection* connection, std::string name, const CodePage& codePage)
        : connection_(G_DBUS_CONNECTION(g_object_ref(connection))), name_(std::move(name)),
          codePage_(codePage) {}

    bool Send(std::string_view executable, std::string_view module, std::string_view procedure,
              std::string_view message) override {
        GVariant* record = g_variant_new(
            "(ssss)", ToBusText(codePage_, executable).c_str(), ToBusText(codePage_, module).c_str(),
            ToBusText(codePage_, procedure).c_str(), ToBusText(codePage_, message).c_str());
        const GlibPointer<GVariant> reply(g_dbus_connection_call_sync(
            connection_.get(), name_.c_str(), ObjectPathOf(name_).c_str(), name_.c_str(), "Send", record,
            nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, static_cast<gint>(kBusPatience.count()), nullptr,
            nullptr));
        return reply != nullptr;
    }

  private:
    GlibPointer<GDBusConnection> connection_;
    std::string name_;
    const CodePage& codePage_;
};

bool CanBeOnBus(const std::string& name) {
    return g_dbus_is_name(name.c_str()) && g_dbus_is_interface_name(name.c_str()) &&
           name.find('\0') == std::string::npos;
}

bool HasOwner(GDBusConnection* connection, const std::string& name) {
    const auto reply =
        CallBus(connection, "NameHasOwner", g_variant_new("(s)", name.c_str()), G_VARIANT_TYPE("(b)"));
    gboolean owned = FALSE;
    if (reply) {
        g_variant_get(reply.get(), "(b)", &owned);
    }
    return owned != FALSE;
}

} // namespace

/// The connection to the bus, made when it is first asked for and again after it was lost.
class PosixTraceServers::Bus {
  public:
    /// Nothing when there is no bus.
    GDBusConnection* Connection() {
        if (!IsOpen()) {
            connection_ = ConnectToSessionBus();
        }
        return connection_.get();
    }
    bool IsOpen() const { return connection_ && g_dbus_connection_is_closed(connection_.get()) == FALSE; }

  private:
    GlibPointer<GDBusConnection> connection_;
};

PosixTraceServers::PosixTraceServers(const CodePage& codePage)
    : codePage_(codePage), bus_(std::make_unique<Bus>()) {}

PosixTraceServers::~PosixTraceServers() = default;

std::unique_ptr<TraceServer> PosixTraceServers::GetRunning(std::string_view name) {
    std::string busName(name);
    auto* connection = CanBeOnBus(busName) ? bus_->Connection() : nullptr;
    if (connection == nullptr || !HasOwner(connection, busName)) {
        return nullptr;
    }
    return std::make_unique<BusTraceServer>(connection, std::move(busName), codePage_);
}

bool PosixTraceServers::HasBus() const {
    return bus_->IsOpen();
}

std::string ToBusText(const CodePage& codePage, std::string_view text) {
    constexpr char32_t kSymbolForNul = 0x2400;
    std::string utf8;
    for (const char c : text) {
        AppendUtf8(utf8, c == '\0' ? kSymbolForNul : codePage.ToUnicode(c));
    }
    return utf8;
}

} // namespace zy
