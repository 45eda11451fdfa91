#include "tools/TraceViewer.h"

#include <glib-unix.h>

#include <csignal>
#include <string>

#include "platform/posix/SessionBus.h"

namespace zy {
namespace {

constexpr const char* kName = "ZYDebug.Application";
constexpr const char* kInterface = "<node>"
                                   "  <interface name='ZYDebug.Application'>"
                                   "    <method name='Send'>"
                                   "      <arg type='s' name='executable' direction='in'/>"
                                   "      <arg type='s' name='module' direction='in'/>"
                                   "      <arg type='s' name='procedure' direction='in'/>"
                                   "      <arg type='s' name='message' direction='in'/>"
                                   "    </method>"
                                   "  </interface>"
                                   "</node>";

void OnMethodCall(GDBusConnection* /*connection*/, const gchar* /*sender*/, const gchar* /*path*/,
                  const gchar* /*interface*/, const gchar* /*method*/, GVariant* arguments,
                  GDBusMethodInvocation* invocation, gpointer viewer) {
    static_cast<const TraceViewer*>(viewer)->Take(arguments);
    g_dbus_method_invocation_return_value(invocation, nullptr);
}

gboolean OnSignal(gpointer viewer) {
    static_cast<TraceViewer*>(viewer)->Stop();
    return G_SOURCE_CONTINUE;
}

void OnClosed(GDBusConnection* /*connection*/, gboolean /*remotePeerVanished*/, GError* /*error*/,
              gpointer viewer) {
    static_cast<TraceViewer*>(viewer)->Stop();
}

/// Offers the object that takes the records, for as long as the connection lives.
void OfferObject(GDBusConnection* connection, TraceViewer* viewer) {
    static const GDBusInterfaceVTable table{
        .method_call = OnMethodCall, .get_property = nullptr, .set_property = nullptr, .padding = {}};
    GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(kInterface, nullptr);
    g_dbus_connection_register_object(connection, ObjectPathOf(kName).c_str(), node->interfaces[0], &table,
                                      viewer, nullptr, nullptr);
    g_dbus_node_info_unref(node);
}

bool OwnName(GDBusConnection* connection) {
    constexpr guint kDoNotQueue = 4;
    constexpr guint kIsPrimaryOwner = 1;
    const auto reply =
        CallBus(connection, "RequestName", g_variant_new("(su)", kName, kDoNotQueue), G_VARIANT_TYPE("(u)"));
    guint result = 0;
    if (reply) {
        g_variant_get(reply.get(), "(u)", &result);
    }
    return result == kIsPrimaryOwner;
}

} // namespace

TraceViewer::TraceViewer(OnReady onReady, OnRecord onRecord)
    : onReady_(std::move(onReady)), onRecord_(std::move(onRecord)), loop_(g_main_loop_new(nullptr, FALSE)) {}

TraceViewer::~TraceViewer() {
    g_main_loop_unref(loop_);
}

TraceViewer::End TraceViewer::Run() {
    const auto connection = ConnectToSessionBus();
    if (!connection) {
        return End::NoBus;
    }
    const guint interrupt = g_unix_signal_add(SIGINT, OnSignal, this);
    const guint terminate = g_unix_signal_add(SIGTERM, OnSignal, this);
    const auto end = RunOn(connection.get());
    g_source_remove(interrupt);
    g_source_remove(terminate);
    g_dbus_connection_close_sync(connection.get(), nullptr, nullptr);
    return end;
}

TraceViewer::End TraceViewer::RunOn(GDBusConnection* connection) {
    const gulong closed = g_signal_connect(connection, "closed", G_CALLBACK(OnClosed), this);
    OfferObject(connection, this);
    const bool owned = OwnName(connection);
    if (owned) {
        onReady_();
        g_main_loop_run(loop_);
    }
    g_signal_handler_disconnect(connection, closed);
    if (g_dbus_connection_is_closed(connection)) {
        return End::BusLost;
    }
    return owned ? End::Stopped : End::NameTaken;
}

void TraceViewer::Stop() {
    g_main_loop_quit(loop_);
}

void TraceViewer::Take(GVariant* record) const {
    RecordFields fields;
    for (gsize i = 0; i < fields.size(); ++i) {
        const GlibPointer<GVariant> field(g_variant_get_child_value(record, i));
        fields[i] = g_variant_get_string(field.get(), nullptr);
    }
    onRecord_(fields);
}

} // namespace zy
