#include "reset.h"

#include <algorithm>
#include <chrono>
#include <string_view>

#include "managers/accessible.h"
#include "managers/bus.h"
#include "managers/thunar.h"
#include "managers/wait.h"

namespace {

using namespace std::chrono_literals;

/// Dolphin offers each command of its windows on the session bus.
void resetDolphin(const Bus& session, const std::string& service) {
    constexpr const char* action = "org.qtproject.Qt.QAction";
    for (const auto& window : session.childObjects(service, "/dolphin")) {
        const auto path = "/dolphin/" + window + "/actions/show_hidden_files";
        const auto checked = session.property(service, path, action, "checked", "b");
        if (checked && g_variant_get_boolean(checked.get()) != FALSE) {
            session.call(service, path, action, "trigger", nullptr, "()");
        }
    }
}

/// The check mark of the command tells each window's own state. False when no window was found.
bool resetByMenu(const Bus* accessibility, const char* program) {
    bool reached = false;
    for (const auto& window : Accessible::windowsOf(accessibility, program)) {
        for (const auto& command : window.commandsWithKey("<Primary>h", "Ctrl+H")) {
            if (command.isChecked()) {
                command.activate();
            }
            reached = true;
        }
    }
    return reached;
}

/// With the setting removed beforehand, what appears there after a press tells the state of that
/// one window; a window that was in order is turned back at once.
bool resetThunar(const Thunar& thunar) {
    if (!thunar.isReachable()) {
        return false;
    }
    const auto press = [&thunar](const SentKeys::Window& window) {
        const auto before = thunar.setting();
        return thunar.toggle(window) &&
               waitFor(500ms, [&thunar, before] { return thunar.setting() != before; });
    };
    bool reached = true;
    const auto windows = thunar.windows();
    for (const auto& window : windows) {
        thunar.setSetting({});
        reached = press(window) && (thunar.setting() == false || press(window)) && reached;
    }
    if (!windows.empty()) {
        thunar.setSetting(false);
    }
    return reached;
}

}  // namespace

std::vector<std::string> resetRunningManagers() {
    const auto session = Bus::session(1s);
    if (!session) {
        return {};
    }
    const auto names = session->names();
    const auto runs = [&names](std::string_view name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    const auto accessibility = session->accessibility();
    const Bus* const tree = accessibility ? &*accessibility : nullptr;
    std::vector<std::string> missed;
    for (const auto& name : names) {
        if (name.starts_with("org.kde.dolphin-")) {
            resetDolphin(*session, name);
        }
    }
    if (runs("org.Nemo") && !resetByMenu(tree, "nemo")) {
        missed.emplace_back("Nemo");
    }
    if (runs("org.pcmanfm.PCManFM") && !resetByMenu(tree, "pcmanfm-qt")) {
        missed.emplace_back("PCManFM-Qt");
    }
    if (runs(Thunar::service) && !resetThunar(Thunar(*session))) {
        missed.emplace_back("Thunar");
    }
    return missed;
}
