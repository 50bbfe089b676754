#include "refresh.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string_view>

#include <fcntl.h>
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
/// managers read a single item anew on it. Only the item's owner may, which is no matter.
void raiseAttributeEvent(const std::filesystem::path& item) {
    struct stat now {};
    if (lstat(item.c_str(), &now) != 0)
        return;
    [[maybe_unused]] const int ignored = S_ISLNK(now.st_mode)
                                             ? lchown(item.c_str(), now.st_uid, now.st_gid)
                                             : chmod(item.c_str(), now.st_mode & 07777);
}

/// What KDE's programs, file dialogs included, listen to.
void tellKde(const Bus& session, const Folder& folder) {
    session.emit("/", "org.kde.KDirNotify", "FilesAdded",
                 g_variant_new("(s)", folder.uri().c_str()));
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

/// Which of Nautilus's windows show one of the folders, as paths on the bus.
std::vector<std::string> nautilusWindows(const Bus& session, const char* service,
                                         const Folders& folders) {
    std::vector<std::string> found;
    const auto windows =
        session.property(service, "/org/freedesktop/FileManager1", "org.freedesktop.FileManager1",
                         "OpenWindowsWithLocations");
    if (!windows || !g_variant_is_of_type(windows.get(), G_VARIANT_TYPE("a{sas}")))
        return found;
    GVariantIter iterator;
    g_variant_iter_init(&iterator, windows.get());
    const char* window = nullptr;
    GVariant* locations = nullptr;
    while (g_variant_iter_loop(&iterator, "{&s@as}", &window, &locations)) {
        gsize count = 0;
        const std::unique_ptr<const char*, GlibRelease> uris(g_variant_get_strv(locations, &count));
        if (std::any_of(folders.begin(), folders.end(), [&](const Folder& folder) {
                return std::find(uris.get(), uris.get() + count, folder.uri()) !=
                       uris.get() + count;
            }))
            found.emplace_back(window);
    }
    return found;
}

/// Nautilus offers a command to reload for each of its windows.
void refreshNautilus(const Bus& session, const Bus* accessibility, const Folders& folders,
                     bool onlyWrong) {
    constexpr const char* service = "org.gnome.Nautilus";
    const auto windows = nautilusWindows(session, service, folders);
    if (windows.empty())
        return;
    if (onlyWrong && accessibility != nullptr) {
        const auto shown = Accessible::windowsOf(*accessibility, service);
        const auto inOrder = [&folders](const Accessible& window) {
            return !mayShow(window.name(), folders) || isRight(window, folders);
        };
        if (!shown.empty() && std::all_of(shown.begin(), shown.end(), inOrder))
            return;
    }
    for (const auto& window : windows)
        session.call(service, window, "org.gtk.Actions", "Activate",
                     g_variant_new_parsed("('reload', @av [], @a{sv} {})"));
}

/// Chooses Reload from the menu of each window; where the desktop runs without accessibility,
/// sends the window its key.
bool refreshByReload(const Bus* accessibility, const char* program, const SentKeys& keys,
                     const Folders& folders, bool onlyWrong) {
    bool reached = false;
    if (accessibility != nullptr) {
        for (const auto& window : Accessible::windowsOf(*accessibility, program)) {
            reached = true;
            if (!mayShow(window.name(), folders) || (onlyWrong && isRight(window, folders)))
                continue;
            for (const auto& command : window.commandsWithKey("<Primary>r", "F5"))
                command.activate();
        }
    }
    if (reached || !keys.isConnected())
        return reached;
    for (const auto& window : keys.windowsOf(program)) {
        if (mayShow(window.title, folders) && !keys.send(window, keyF5, false))
            return false;
    }
    return true;
}

/// Reload reads the items anew, but only showing and hiding the hidden ones sorts them anew.
/// Two keys that arrive together leave nothing to be seen in between.
bool refreshThunar(const Thunar& thunar, const Folders& folders) {
    if (!thunar.isReachable())
        return false;
    const auto before = thunar.setting();
    bool pressed = false;
    for (const auto& window : thunar.windows()) {
        if (!mayShow(window.title, folders))
            continue;
        if (!thunar.toggle(window) || !thunar.toggle(window))
            return false;
        pressed = true;
    }
    // Each key stores what its window shows after it; the setting is not ours to change.
    const auto shown = before.value_or(false);
    if (pressed && waitFor(300ms, [&] { return thunar.setting() != shown; }) &&
        !waitFor(300ms, [&] { return thunar.setting() == shown; }))
        thunar.setSetting(shown);
    return true;
}

}  // namespace

std::vector<Unreached> refreshWindows(const std::vector<std::filesystem::path>& items,
                                      bool onlyWrong) {
    std::map<std::filesystem::path, Folder> known;
    for (const auto& path : items) {
        const auto item = (path / "").parent_path();  // without a slash at its end
        raiseAttributeEvent(item);
        known.try_emplace(item.parent_path(), item.parent_path())
            .first->second.addItem(item.filename());
    }
    Folders folders;
    std::transform(known.begin(), known.end(), std::back_inserter(folders),
                   [](const auto& entry) { return entry.second; });
    const auto session = Bus::session();
    if (!session)
        return {};
    for (const auto& folder : folders)
        tellKde(*session, folder);
    const auto names = session->names();
    const auto runs = [&names](std::string_view name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    const auto accessibility = session->accessibility();
    const Bus* const tree = accessibility ? &*accessibility : nullptr;
    const SentKeys keys;
    std::vector<Unreached> missed;
    if (runs("org.gnome.Nautilus"))
        refreshNautilus(*session, tree, folders, onlyWrong);
    if (runs("org.mate.Caja") && !refreshByReload(tree, "caja", keys, folders, onlyWrong))
        missed.push_back({"Caja", "F5"});
    if (runs("org.Nemo") && !refreshByReload(tree, "nemo", keys, folders, onlyWrong))
        missed.push_back({"Nemo", "F5"});
    if (runs(Thunar::service) && !refreshThunar(Thunar(*session), folders))
        missed.push_back({"Thunar", "Ctrl+H"});
    return missed;
}
