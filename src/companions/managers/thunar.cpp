#include "thunar.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace {

/// The user can give each command of Thunar another key; it is then in this file, in lines that
/// are no comments.
bool keyIsChanged() {
    std::ifstream stream(std::filesystem::path(g_get_user_config_dir()) / "Thunar/accels.scm");
    for (std::string line; std::getline(stream, line);) {
        const bool command = line.find("ThunarWindow/show-hidden\"") != std::string::npos;
        const bool key = line.find("\"<Primary>h\"") != std::string::npos;
        if (line.starts_with('(') && command != key) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool Thunar::isReachable() const {
    return keys_.isConnected() && !keyIsChanged();
}

void Thunar::setSetting(std::optional<bool> shown) const {
    setting_.store(shown);
    // Thunar updates its own copy of the settings before it answers this call.
    session_.call(service, "/org/xfce/Thunar", "org.gtk.Actions", "List", nullptr, "(as)");
}
