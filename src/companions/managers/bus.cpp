#include "bus.h"

#include <cstdlib>
#include <filesystem>

#include <unistd.h>

namespace {

constexpr const char* busName = "org.freedesktop.DBus";

}  // namespace

Bus::Bus(GDBusConnection* connection, std::chrono::milliseconds answerTime)
    : connection_(connection), answerTime_(answerTime) {
    g_dbus_connection_set_exit_on_close(connection, FALSE);
}

bool Bus::isAtHand() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    return std::getenv("DBUS_SESSION_BUS_ADDRESS") != nullptr ||
           (runtime != nullptr &&
            access((std::filesystem::path(runtime) / "bus").c_str(), F_OK) == 0);
}

std::optional<Bus> Bus::session(std::chrono::milliseconds answerTime) {
    GDBusConnection* const connection =
        isAtHand() ? g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr) : nullptr;
    return connection != nullptr ? std::optional(Bus(connection, answerTime)) : std::nullopt;
}

std::optional<Bus> Bus::accessibility() const {
    const auto answer =
        call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr, "(s)");
    if (!answer) {
        return {};
    }
    const char* address = nullptr;
    g_variant_get(answer.get(), "(&s)", &address);
    constexpr auto flags =
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    GDBusConnection* const connection =
        g_dbus_connection_new_for_address_sync(address, flags, nullptr, nullptr, nullptr);
    return connection != nullptr ? std::optional(Bus(connection, answerTime_)) : std::nullopt;
}

VariantPointer Bus::call(const std::string& service, const std::string& path,
                         const std::string& interface, const std::string& method,
                         GVariant* arguments, const char* answerType) const {
    return VariantPointer(g_dbus_connection_call_sync(
        connection_.get(), service.c_str(), path.c_str(), interface.c_str(), method.c_str(),
        arguments, G_VARIANT_TYPE(answerType), G_DBUS_CALL_FLAGS_NO_AUTO_START,
        static_cast<int>(answerTime_.count()), nullptr, nullptr));
}

VariantPointer Bus::property(const std::string& service, const std::string& path,
                             const std::string& interface, const std::string& name,
                             const char* type) const {
    const auto answer = call(service, path, "org.freedesktop.DBus.Properties", "Get",
                             g_variant_new("(ss)", interface.c_str(), name.c_str()), "(v)");
    GVariant* value = nullptr;
    if (answer) {
        g_variant_get(answer.get(), "(v)", &value);
    }
    VariantPointer owned(value);
    return owned && g_variant_is_of_type(value, G_VARIANT_TYPE(type)) ? std::move(owned) : nullptr;
}

VariantPointer Bus::callBus(const std::string& method, GVariant* arguments,
                            const char* answerType) const {
    return call(busName, "/org/freedesktop/DBus", busName, method, arguments, answerType);
}

void Bus::emit(const std::string& path, const std::string& interface, const std::string& name,
               GVariant* arguments) const {
    g_dbus_connection_emit_signal(connection_.get(), nullptr, path.c_str(), interface.c_str(),
                                  name.c_str(), arguments, nullptr);
    g_dbus_connection_flush_sync(connection_.get(), nullptr, nullptr);
}

std::vector<std::string> Bus::names() const {
    std::vector<std::string> names;
    if (const auto answer = callBus("ListNames", nullptr, "(as)")) {
        GVariantIter* iterator = nullptr;
        g_variant_get(answer.get(), "(as)", &iterator);
        const char* name = nullptr;
        while (g_variant_iter_loop(iterator, "&s", &name)) {
            names.emplace_back(name);
        }
        g_variant_iter_free(iterator);
    }
    return names;
}

std::vector<std::string> Bus::childObjects(const std::string& service,
                                           const std::string& path) const {
    std::vector<std::string> children;
    const auto answer =
        call(service, path, "org.freedesktop.DBus.Introspectable", "Introspect", nullptr, "(s)");
    const char* text = "";
    if (answer) {
        g_variant_get(answer.get(), "(&s)", &text);
    }
    GDBusNodeInfo* const node = g_dbus_node_info_new_for_xml(text, nullptr);
    if (node == nullptr) {
        return children;
    }
    for (auto* const* child = node->nodes; child != nullptr && *child != nullptr; ++child) {
        children.emplace_back((*child)->path);
    }
    g_dbus_node_info_unref(node);
    return children;
}
