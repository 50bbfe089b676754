#include "reset.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <string_view>
#include <thread>

#include "managers/accessible.h"
#include "managers/bus.h"
#include "managers/sent_keys.h"

namespace {

using namespace std::chrono_literals;

bool waitFor(std::chrono::milliseconds limit, const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

/// Dolphin offers each command of its windows on the session bus.
void resetDolphin(const Bus& session, const std::string& service) {
    constexpr const char* action = "org.qtproject.Qt.QAction";
    for (const auto& window : session.childObjects(service, "/dolphin")) {
        const auto path = "/dolphin/" + window + "/actions/show_hidden_files";
        const auto checked = session.property(service, path, action, "checked");
        if (checked && g_variant_is_of_type(checked.get(), G_VARIANT_TYPE_BOOLEAN) &&
            g_variant_get_boolean(checked.get()))
            session.call(service, path, action, "trigger");
    }
}

/// The check mark of the command tells each window's own state. False when no window was found.
bool resetByMenu(const Bus* accessibility, std::string_view program) {
    if (accessibility == nullptr)
        return false;
    bool reached = false;
    for (const auto& window : Accessible::windowsOf(*accessibility, program)) {
        for (const auto& command : window.commandsWithKey("<Primary>h", "Ctrl+H")) {
            if (command.isChecked())
                command.activate();
            reached = true;
        }
    }
    return reached;
}

/// Thunar makes its menus when they are opened and reads the setting when a window is made, but
/// it takes the command's key in every window and stores what the window does after it. With the
/// setting removed beforehand, what appears there tells the state of that one window.
class ThunarReset final {
public:
    explicit ThunarReset(const Bus& session) : session_(session) {}

    bool run() const {
        if (!keys_.isConnected())
            return false;
        const auto windows = keys_.windowsOf("Thunar");
        const bool reached = std::all_of(windows.begin(), windows.end(),
                                         [this](const auto& window) { return reset(window); });
        if (!windows.empty())
            storeOff();
        return reached;
    }

private:
    static constexpr const char* daemon_ = "org.xfce.Xfconf";
    static constexpr const char* daemonPath_ = "/org/xfce/Xfconf";
    static constexpr const char* channel_ = "thunar";
    static constexpr const char* property_ = "/last-show-hidden";

    bool reset(const SentKeys::Window& window) const {
        session_.call(daemon_, daemonPath_, daemon_, "ResetProperty",
                      g_variant_new("(ssb)", channel_, property_, FALSE));
        // An answer means that Thunar has heard of that. Before, it would take an unchanged value
        // for one that needs no storing.
        session_.call("org.xfce.Thunar", "/org/xfce/Thunar", "org.gtk.Actions", "List");
        return press(window) && (stored() == false || press(window));
    }

    bool press(const SentKeys::Window& window) const {
        const auto before = stored();
        return keys_.sendControl(window, 'h') &&
               waitFor(500ms, [this, before] { return stored() != before; });
    }

    void storeOff() const {
        session_.call(daemon_, daemonPath_, daemon_, "SetProperty",
                      g_variant_new("(ssv)", channel_, property_, g_variant_new_boolean(FALSE)));
    }

    std::optional<bool> stored() const {
        const auto answer = session_.call(daemon_, daemonPath_, daemon_, "GetProperty",
                                          g_variant_new("(ss)", channel_, property_));
        if (!answer)
            return {};
        const VariantPointer boxed(g_variant_get_child_value(answer.get(), 0));
        const VariantPointer value(g_variant_get_variant(boxed.get()));
        return g_variant_is_of_type(value.get(), G_VARIANT_TYPE_BOOLEAN) &&
               g_variant_get_boolean(value.get()) != FALSE;
    }

    const Bus& session_;
    SentKeys keys_;
};

}  // namespace

std::vector<std::string> resetRunningManagers() {
    const auto session = Bus::session();
    if (!session)
        return {};
    const auto names = session->names();
    const auto runs = [&names](std::string_view name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    const auto accessibility = session->accessibility();
    const Bus* const tree = accessibility ? &*accessibility : nullptr;
    std::vector<std::string> missed;
    for (const auto& name : names) {
        if (name.starts_with("org.kde.dolphin-"))
            resetDolphin(*session, name);
    }
    if (runs("org.Nemo") && !resetByMenu(tree, "nemo"))
        missed.emplace_back("Nemo");
    if (runs("org.pcmanfm.PCManFM") && !resetByMenu(tree, "pcmanfm-qt"))
        missed.emplace_back("PCManFM-Qt");
    if (runs("org.xfce.Thunar") && !ThunarReset(*session).run())
        missed.emplace_back("Thunar");
    return missed;
}
