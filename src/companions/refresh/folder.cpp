#include "folder.h"

#include <memory>
#include <system_error>

#include <glib.h>
#include <sys/stat.h>

namespace {

struct GlibFree {
    void operator()(char* text) const { g_free(text); }
};
using Text = std::unique_ptr<char, GlibFree>;

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
    if (path.empty())
        path = ".";
    path = std::filesystem::absolute(path).lexically_normal();
    const Text uri(g_filename_to_uri(path.c_str(), nullptr, nullptr));
    const Text name(g_filename_display_basename(path.c_str()));
    uri_ = uri ? uri.get() : "";
    name_ = name.get();
    hasOtherNames_ = !path.has_relative_path() || isSame(path, g_get_home_dir()) ||
                     isSame(path, g_get_user_special_dir(G_USER_DIRECTORY_DESKTOP)) ||
                     isMountPoint(path);
}

bool Folder::mayBeIn(const std::string& title) const {
    return hasOtherNames_ || title.find(name_) != std::string::npos;
}
