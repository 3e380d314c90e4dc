// SPDX-License-Identifier: MIT
#include <desktop/session_bus.hpp>

#include <stdexcept>

namespace {

constexpr int patience_ms = 180000;

[[noreturn]] void fail(const std::string& what, GError* error) {
    const std::string why = what + ": " + error->message;
    g_error_free(error);
    throw std::runtime_error(why);
}

// An answer that is on its way.
struct call_state {
    GVariant* told = nullptr;
    GError* error = nullptr;
    bool here = false;
};

void on_answer(GObject* connection, GAsyncResult* result, gpointer data) {
    auto& call = *static_cast<call_state*>(data);
    call.told = g_dbus_connection_call_finish(G_DBUS_CONNECTION(connection), result, &call.error);
    call.here = true;
}

}  // namespace

bench::session_bus::session_bus() {
    GError* error = nullptr;
    connection_ = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, &error);
    if (!connection_) fail("session bus", error);
}

bench::session_bus::~session_bus() { g_object_unref(connection_); }

pid_t bench::session_bus::owner(const std::string& name) const {
    GVariant* const process = g_dbus_connection_call_sync(
        connection_, "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetConnectionUnixProcessID",
        g_variant_new("(s)", name.c_str()), G_VARIANT_TYPE("(u)"), G_DBUS_CALL_FLAGS_NONE, patience_ms,
        nullptr, nullptr);
    if (!process) return -1;
    guint32 id = 0;
    g_variant_get(process, "(u)", &id);
    g_variant_unref(process);
    return static_cast<pid_t>(id);
}

std::vector<bench::answer> bench::session_bus::call(const service& served, const char* method,
                                                    const std::vector<GVariant*>& arguments) const {
    std::vector<call_state> calls(arguments.size());
    for (std::size_t i = 0; i < calls.size(); ++i)
        g_dbus_connection_call(connection_, served.name, served.path, served.interface, method, arguments[i],
                               nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, patience_ms, nullptr, on_answer,
                               &calls[i]);
    for (const call_state& call : calls)
        while (!call.here) g_main_context_iteration(nullptr, TRUE);
    std::vector<answer> told;
    for (call_state& call : calls) {
        if (!call.told) fail(method, call.error);
        told.emplace_back(call.told, g_variant_unref);
    }
    return told;
}
