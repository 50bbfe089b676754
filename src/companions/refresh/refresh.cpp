#include "refresh.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <map>
#include <string_view>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

#include "folder.h"
#include "managers/accessible.h"
#include "managers/bus.h"
#include "managers/sent_keys.h"
#include "managers/thunar.h"
#include "managers/wait.h"

namespace {

using namespace std::chrono_literals;
using Folders = std::vector<Folder>;

constexpr xcb_keysym_t keyF5 = 0xffc2;

/// Setting the mode, or the owner of a link, to what it is raises an event for the name; file
/// managers read a single item anew on it. That only the item's owner may do so is ignored.
void raiseAttributeEvent(const std::filesystem::path& item) {
    struct stat now {};
    if (lstat(item.c_str(), &now) != 0) {
        return;
    }
    [[maybe_unused]] const int ignored = S_ISLNK(now.st_mode)
                                             ? lchown(item.c_str(), now.st_uid, now.st_gid)
                                             : chmod(item.c_str(), now.st_mode & 07777);
}

/// What KDE's programs, file dialogs included, listen to.
void tellKde(const Bus& session, const Folders& folders) {
    for (const auto& folder : folders) {
        session.emit("/", "org.kde.KDirNotify", "FilesAdded",
                     g_variant_new("(s)", folder.uri().c_str()));
    }
}

bool mayShow(const std::string& title, const Folders& folders) {
    return std::any_of(folders.begin(), folders.end(),
                       [&title](const Folder& folder) { return folder.mayBeIn(title); });
}

/// Whether the window lists the items of all those folders as it should, as far as can be seen.
bool isRight(const Accessible& window, const Folders& folders) {
    const auto names = window.contentNames();
    return names && std::all_of(folders.begin(), folders.end(), [&](const Folder& folder) {
               return !folder.mayBeIn(window.name()) || folder.isShownRightBy(*names);
           });
}

/// Reloads the windows of a program: by the action that GTK 4's windows offer, or else by the
/// command in the menu. False when the desktop runs without accessibility.
bool reload(const Bus* accessibility, const char* program, const Folders& folders, bool onlyWrong) {
    const auto windows = Accessible::windowsOf(accessibility, program);
    for (const auto& window : windows) {
        if (mayShow(window.name(), folders) && !(onlyWrong && isRight(window, folders))) {
            window.activate(".reload");
            for (const auto& command : window.commandsWithKey("<Primary>r", "F5")) {
                command.activate();
            }
        }
    }
    return !windows.empty();
}

/// Sends the windows of a program the reload key. Programs made with GTK 4 ignore sent keys.
bool sendReloadKey(const char* program, const Folders& folders) {
    const SentKeys keys;
    if (!keys.isConnected()) {
        return false;
    }
    const auto windows = keys.windowsOf(program);
    return std::all_of(windows.begin(), windows.end(), [&](const SentKeys::Window& window) {
        return !mayShow(window.title, folders) || keys.send(window, keyF5, false);
    });
}

/// Toggles the display of hidden files twice: Thunar's reload reads the items anew, but only this
/// makes it decide anew which of them to list. It handles both keys before it paints.
bool refreshThunar(const Thunar& thunar, const Folders& folders) {
    if (!thunar.isReachable()) {
        return false;
    }
    const auto before = thunar.setting();
    bool pressed = false;
    for (const auto& window : thunar.windows()) {
        if (!mayShow(window.title, folders)) {
            continue;
        }
        if (!thunar.toggle(window) || !thunar.toggle(window)) {
            return false;
        }
        pressed = true;
    }
    // Each key stores what its window shows after it; the setting must end as it was before.
    const auto shown = before.value_or(false);
    if (pressed && waitFor(300ms, [&] { return thunar.setting() != shown; }) &&
        !waitFor(300ms, [&] { return thunar.setting() == shown; })) {
        thunar.setSetting(shown);
    }
    return true;
}

Folders foldersOf(const Items& items) {
    std::map<std::filesystem::path, Folder> known;
    for (const auto& path : items) {
        const auto item = (std::filesystem::path(path) / "").parent_path();  // no slash at its end
        raiseAttributeEvent(item);
        known.try_emplace(item.parent_path(), item.parent_path())
            .first->second.addItem(item.filename());
    }
    Folders folders;
    std::transform(known.begin(), known.end(), std::back_inserter(folders),
                   [](const auto& entry) { return entry.second; });
    return folders;
}

}  // namespace

std::vector<Unreached> refreshWindows(const Items& items, bool onlyWrong) {
    const auto folders = foldersOf(items);
    const auto session = Bus::session(1s);
    if (!session) {
        return {};
    }
    tellKde(*session, folders);
    const auto names = session->names();
    const auto runs = [&names](std::string_view name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    const auto accessibility = session->accessibility();
    const Bus* const tree = accessibility ? &*accessibility : nullptr;
    std::vector<Unreached> missed;
    if (runs("org.gnome.Nautilus") && !reload(tree, "org.gnome.Nautilus", folders, onlyWrong)) {
        missed.push_back({"Nautilus", "F5"});
    }
    if (runs("org.mate.Caja") && !reload(tree, "caja", folders, onlyWrong) &&
        !sendReloadKey("caja", folders)) {
        missed.push_back({"Caja", "F5"});
    }
    if (runs("org.Nemo") && !reload(tree, "nemo", folders, onlyWrong) &&
        !sendReloadKey("nemo", folders)) {
        missed.push_back({"Nemo", "F5"});
    }
    if (runs(Thunar::service) && !refreshThunar(Thunar(*session), folders)) {
        missed.push_back({"Thunar", "Ctrl+H"});
    }
    // Dolphin takes an item for visible some seconds after its attributes changed, unless it reads
    // the folder in between or later. Right after a change `.hidden` was replaced, which has it do
    // so.
    if (onlyWrong) {
        std::this_thread::sleep_for(1s);
        tellKde(*session, folders);
    }
    return missed;
}
