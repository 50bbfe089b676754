#include "bus.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace {

constexpr int answerTime = 1000;  // milliseconds

std::string firstString(const VariantPointer& answer) {
    const char* text = "";
    if (answer && g_variant_is_of_type(answer.get(), G_VARIANT_TYPE("(s)")))
        g_variant_get(answer.get(), "(&s)", &text);
    return text;
}

}  // namespace

Bus::Bus(ObjectPointer<GDBusConnection> connection) : connection_(std::move(connection)) {
    g_dbus_connection_set_exit_on_close(connection_.get(), FALSE);
}

std::optional<Bus> Bus::session() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    const bool atHand =
        std::getenv("DBUS_SESSION_BUS_ADDRESS") != nullptr ||
        (runtime != nullptr && access((std::filesystem::path(runtime) / "bus").c_str(), F_OK) == 0);
    if (!atHand)  // GLib would start one of its own and wait for it
        return {};
    ObjectPointer<GDBusConnection> connection(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (!connection)
        return {};
    return Bus(std::move(connection));
}

std::optional<Bus> Bus::accessibility() const {
    const auto address =
        firstString(call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
    if (address.empty())
        return {};
    constexpr auto flags =
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    ObjectPointer<GDBusConnection> connection(
        g_dbus_connection_new_for_address_sync(address.c_str(), flags, nullptr, nullptr, nullptr));
    if (!connection)
        return {};
    return Bus(std::move(connection));
}

VariantPointer Bus::call(const std::string& service, const std::string& path,
                         const std::string& interface, const std::string& method,
                         GVariant* arguments) const {
    return VariantPointer(g_dbus_connection_call_sync(
        connection_.get(), service.c_str(), path.c_str(), interface.c_str(), method.c_str(),
        arguments, nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, answerTime, nullptr, nullptr));
}

VariantPointer Bus::property(const std::string& service, const std::string& path,
                             const std::string& interface, const std::string& name) const {
    const auto answer = call(service, path, "org.freedesktop.DBus.Properties", "Get",
                             g_variant_new("(ss)", interface.c_str(), name.c_str()));
    GVariant* value = nullptr;
    if (answer && g_variant_is_of_type(answer.get(), G_VARIANT_TYPE("(v)")))
        g_variant_get(answer.get(), "(v)", &value);
    return VariantPointer(value);
}

void Bus::emit(const std::string& path, const std::string& interface, const std::string& name,
               GVariant* arguments) const {
    g_dbus_connection_emit_signal(connection_.get(), nullptr, path.c_str(), interface.c_str(),
                                  name.c_str(), arguments, nullptr);
    g_dbus_connection_flush_sync(connection_.get(), nullptr, nullptr);
}

std::vector<std::string> Bus::names() const {
    const auto answer =
        call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames");
    std::vector<std::string> names;
    if (!answer)
        return names;
    GVariantIter* iterator = nullptr;
    g_variant_get(answer.get(), "(as)", &iterator);
    const char* name = nullptr;
    while (g_variant_iter_loop(iterator, "&s", &name))
        names.emplace_back(name);
    g_variant_iter_free(iterator);
    return names;
}

std::vector<std::string> Bus::childObjects(const std::string& service,
                                           const std::string& path) const {
    const auto text =
        firstString(call(service, path, "org.freedesktop.DBus.Introspectable", "Introspect"));
    std::vector<std::string> children;
    GDBusNodeInfo* const node = g_dbus_node_info_new_for_xml(text.c_str(), nullptr);
    if (node == nullptr)
        return children;
    for (auto* const* child = node->nodes; child != nullptr && *child != nullptr; ++child)
        children.emplace_back((*child)->path);
    g_dbus_node_info_unref(node);
    return children;
}
