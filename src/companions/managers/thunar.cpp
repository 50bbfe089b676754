#include "thunar.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr const char* daemonName = "org.xfce.Xfconf";
constexpr const char* daemonPath = "/org/xfce/Xfconf";
constexpr const char* channel = "thunar";
constexpr const char* property = "/last-show-hidden";

/// The user can give each command of Thunar another key; it is then in this file, in lines that
/// are no comments.
bool keyIsChanged() {
    std::ifstream stream(std::filesystem::path(g_get_user_config_dir()) / "Thunar/accels.scm");
    for (std::string line; std::getline(stream, line);) {
        if (!line.starts_with('('))
            continue;
        const bool command = line.find("ThunarWindow/show-hidden\"") != std::string::npos;
        const bool key = line.find("\"<Primary>h\"") != std::string::npos;
        if (command != key)
            return true;
    }
    return false;
}

}  // namespace

bool Thunar::isReachable() const {
    return keys_.isConnected() && !keyIsChanged();
}

std::vector<SentKeys::Window> Thunar::windows() const {
    return keys_.windowsOf("Thunar");
}

bool Thunar::toggle(const SentKeys::Window& window) const {
    return keys_.send(window, 'h', true);
}

std::optional<bool> Thunar::setting() const {
    const auto answer = session_.call(daemonName, daemonPath, daemonName, "GetProperty",
                                      g_variant_new("(ss)", channel, property));
    if (!answer)
        return {};
    const VariantPointer boxed(g_variant_get_child_value(answer.get(), 0));
    const VariantPointer value(g_variant_get_variant(boxed.get()));
    return g_variant_is_of_type(value.get(), G_VARIANT_TYPE_BOOLEAN) &&
           g_variant_get_boolean(value.get()) != FALSE;
}

void Thunar::setSetting(std::optional<bool> shown) const {
    if (shown) {
        session_.call(daemonName, daemonPath, daemonName, "SetProperty",
                      g_variant_new("(ssv)", channel, property,
                                    g_variant_new_boolean(*shown ? TRUE : FALSE)));
    } else {
        session_.call(daemonName, daemonPath, daemonName, "ResetProperty",
                      g_variant_new("(ssb)", channel, property, FALSE));
    }
    // Its own copy of the settings is brought up to date before it answers this.
    session_.call(service, "/org/xfce/Thunar", "org.gtk.Actions", "List");
}
