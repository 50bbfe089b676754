#include "folder.h"

#include <algorithm>
#include <fstream>
#include <system_error>

#include <sys/stat.h>

#include "managers/glib_pointer.h"

namespace {

using Text = GlibPointer<char>;

std::string displayName(const std::filesystem::path& path) {
    return Text(g_filename_display_basename(path.c_str())).get();
}

bool isMountPoint(const std::filesystem::path& path) {
    struct stat own {};
    struct stat above {};
    return stat(path.c_str(), &own) == 0 && stat((path / "..").c_str(), &above) == 0 &&
           own.st_dev != above.st_dev;
}

bool isSame(const std::filesystem::path& path, const char* other) {
    std::error_code failed;
    return other != nullptr && std::filesystem::equivalent(path, other, failed) && !failed;
}

}  // namespace

Folder::Folder(std::filesystem::path path) {
    const Text uri(g_filename_to_uri(path.c_str(), nullptr, nullptr));
    uri_ = uri ? uri.get() : "";
    name_ = displayName(path);
    hasOtherNames_ = !path.has_relative_path() || isSame(path, g_get_home_dir()) ||
                     isSame(path, g_get_user_special_dir(G_USER_DIRECTORY_DESKTOP)) ||
                     isMountPoint(path);
    path_ = std::move(path);
}

void Folder::addItem(const std::filesystem::path& item) {
    items_.insert(item.filename());
}

bool Folder::mayBeIn(const std::string& title) const {
    return hasOtherNames_ || title.find(name_) != std::string::npos;
}

bool Folder::isShownRightBy(const std::set<std::string>& names) const {
    std::set<std::string> hidden;
    std::ifstream list(path_ / ".hidden");
    for (std::string line; std::getline(list, line);) {
        hidden.insert(line);
    }
    return std::all_of(items_.begin(), items_.end(), [&](const std::string& item) {
        return names.contains(displayName(item)) != hidden.contains(item);
    });
}
