#include "xfconf_place.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>
#include <vector>

#include "glib_pointer.h"

namespace {

constexpr int answerTime = 300;   // milliseconds; a busy daemon must not hold up the window
constexpr int startTime = 10000;  // the daemon may have to be started for a change

/// Throws std::runtime_error with the bus's message when the call fails.
VariantPointer callDaemon(const char* method, GVariant* arguments, GDBusCallFlags flags,
                          int timeout) {
    GError* raised = nullptr;
    const VariantPointer owned(g_variant_ref_sink(arguments));
    const ObjectPointer<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, &raised));
    VariantPointer answer;
    if (bus) {
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
        answer.reset(g_dbus_connection_call_sync(bus.get(), "org.xfce.Xfconf", "/org/xfce/Xfconf",
                                                 "org.xfce.Xfconf", method, owned.get(), nullptr,
                                                 flags, timeout, nullptr, &raised));
    }
    const ErrorPointer error(raised);
    if (error)
        throw std::runtime_error(error->message);
    return answer;
}

}  // namespace

XfconfPlace::XfconfPlace(std::string channel, std::string property)
    : channel_(std::move(channel)), property_(std::move(property)) {}

Place::State XfconfPlace::state() const {
    try {
        const auto answer = callDaemon(
            "GetProperty", g_variant_new("(ss)", channel_.c_str(), ("/" + property_).c_str()),
            G_DBUS_CALL_FLAGS_NO_AUTO_START, answerTime);
        GVariant* inner = nullptr;
        g_variant_get(answer.get(), "(v)", &inner);
        const VariantPointer value(inner);
        const bool on =
            g_variant_is_of_type(inner, G_VARIANT_TYPE_BOOLEAN) && g_variant_get_boolean(inner);
        return on ? State::On : State::Off;
    } catch (const std::runtime_error&) {
        return stateInFiles();
    }
}

Place::State XfconfPlace::stateInFiles() const {
    std::vector<std::filesystem::path> folders{g_get_user_config_dir()};
    for (const auto* const* folder = g_get_system_config_dirs(); *folder != nullptr; ++folder)
        folders.emplace_back(*folder);
    for (const auto& folder : folders) {
        std::ifstream stream(folder / "xfce4/xfconf/xfce-perchannel-xml" / (channel_ + ".xml"));
        const std::string content(std::istreambuf_iterator<char>(stream), {});
        // Written by the daemon alone, always in this one form.
        const auto start = content.find("<property name=\"" + property_ + "\" type=\"bool\"");
        if (start == std::string::npos)
            continue;
        const auto element = content.substr(start, content.find('>', start) - start);
        return element.find("value=\"true\"") != std::string::npos ? State::On : State::Off;
    }
    return State::Absent;
}

void XfconfPlace::turnOff() {
    callDaemon("SetProperty",
               g_variant_new("(ssv)", channel_.c_str(), ("/" + property_).c_str(),
                             g_variant_new_boolean(FALSE)),
               G_DBUS_CALL_FLAGS_NONE, startTime);
}
