#include "places.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

#include "bus.h"
#include "glib_pointer.h"
#include "xfconf.h"

namespace {

using namespace std::chrono_literals;

class SettingsPlace final : public Place {
public:
    SettingsPlace(const char* schema, const char* key) : name_(schema), key_(key) {
        auto* source = g_settings_schema_source_get_default();
        // Asking for settings whose schema is missing ends the process, so look first.
        const GlibPointer<GSettingsSchema> found(
            source != nullptr ? g_settings_schema_source_lookup(source, schema, TRUE) : nullptr);
        if (found && g_settings_schema_has_key(found.get(), key)) {
            settings_.reset(g_settings_new_full(found.get(), nullptr, nullptr));
        }
    }

    State state() const override {
        if (!settings_) {
            return State::Absent;
        }
        return g_settings_get_boolean(settings_.get(), key_) ? State::On : State::Off;
    }

    void turnOff() override {
        if (state() != State::On) {
            return;
        }
        const bool accepted = g_settings_set_boolean(settings_.get(), key_, FALSE);
        // The store is written by a service: only what it says afterwards counts.
        g_settings_sync();
        if (!accepted || state() == State::On) {
            throw std::runtime_error(name_ + " " + key_ +
                                     ": the settings service did not store it");
        }
    }

private:
    std::string name_;
    const char* key_;
    GlibPointer<GSettings> settings_;
};

/// A key in a file with `[Group]` and `Key=value` lines.
class KeyFilePlace final : public Place {
public:
    KeyFilePlace(std::filesystem::path path, const char* group, const char* key)
        : path_(std::move(path)), group_(group), key_(key) {}

    State state() const override {
        const GlibPointer<GKeyFile> file(g_key_file_new());
        if (!load(file.get(), nullptr) || !g_key_file_has_key(file.get(), group_, key_, nullptr)) {
            return State::Absent;
        }
        return g_key_file_get_boolean(file.get(), group_, key_, nullptr) ? State::On : State::Off;
    }

    void turnOff() override {
        if (!std::filesystem::exists(path_)) {
            return;
        }
        const GlibPointer<GKeyFile> file(g_key_file_new());
        GError* error = nullptr;
        if (!load(file.get(), &error)) {
            fail(error);
        }
        if (!g_key_file_get_boolean(file.get(), group_, key_, nullptr)) {
            return;
        }
        const GlibPointer<char> value(g_key_file_get_value(file.get(), group_, key_, nullptr));
        g_key_file_set_value(file.get(), group_, key_, *value == '1' ? "0" : "false");
        gsize length = 0;
        const GlibPointer<char> content(g_key_file_to_data(file.get(), &length, nullptr));
        // Replaced in one step, with its mode; of a symbolic link, the file that it leads to is.
        const GlibPointer<GFile> target(
            g_file_new_for_path(std::filesystem::canonical(path_).c_str()));
        if (!g_file_replace_contents(target.get(), content.get(), length, nullptr, FALSE,
                                     G_FILE_CREATE_NONE, nullptr, nullptr, &error)) {
            fail(error);
        }
    }

private:
    bool load(GKeyFile* file, GError** error) const {
        constexpr auto everything =
            static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
        return g_key_file_load_from_file(file, path_.c_str(), everything, error) != FALSE;
    }

    [[noreturn]] void fail(GError* error) const {
        const GlibPointer<GError> owned(error);
        throw std::runtime_error(path_.string() + ": " + error->message);
    }

    std::filesystem::path path_;
    const char* group_;
    const char* key_;
};

class ThunarPlace final : public Place {
public:
    State state() const override {
        const auto session = Bus::session(300ms);  // a busy daemon must not hold up the window
        const auto value = setting(session).value();
        return !value ? State::Absent : *value ? State::On : State::Off;
    }

    void turnOff() override {
        const auto session = Bus::session(10s);  // the daemon may have to be started
        if (state() == State::On && !setting(session).store(false)) {
            throw std::runtime_error(
                "thunar /last-show-hidden: Xfce's settings service did not "
                "store it");
        }
    }

private:
    static Xfconf setting(const std::optional<Bus>& session) {
        return {session ? &*session : nullptr, "thunar", "last-show-hidden"};
    }
};

/// The file of every profile of a manager that has profiles, each in a folder of its own.
std::vector<std::filesystem::path> profileFiles(const std::filesystem::path& folder,
                                                const char* name) {
    std::vector<std::filesystem::path> files;
    std::error_code ignored;
    for (const auto& profile : std::filesystem::directory_iterator(folder, ignored)) {
        if (std::filesystem::exists(profile.path() / name, ignored)) {
            files.push_back(profile.path() / name);
        }
    }
    return files;
}

}  // namespace

std::vector<std::unique_ptr<Place>> allPlaces() {
    const std::filesystem::path configuration = g_get_user_config_dir();
    const std::filesystem::path data = g_get_user_data_dir();
    std::vector<std::unique_ptr<Place>> places;
    for (const auto& file : profileFiles(configuration / "pcmanfm-qt", "settings.conf")) {
        places.push_back(std::make_unique<KeyFilePlace>(file, "FolderView", "ShowHidden"));
    }
    for (const auto& file : profileFiles(configuration / "pcmanfm", "pcmanfm.conf")) {
        places.push_back(std::make_unique<KeyFilePlace>(file, "ui", "show_hidden"));
    }
    places.push_back(std::make_unique<KeyFilePlace>(
        data / "dolphin/view_properties/global/.directory", "Settings", "HiddenFilesShown"));
    // Nautilus uses the setting of the GTK 4 file dialogs; others of its releases had their own.
    for (const auto& [schema, key] : {std::pair{"org.gtk.gtk4.Settings.FileChooser", "show-hidden"},
                                      {"org.gnome.nautilus.preferences", "show-hidden-files"},
                                      {"org.mate.caja.preferences", "show-hidden-files"},
                                      {"org.nemo.preferences", "show-hidden-files"}}) {
        places.push_back(std::make_unique<SettingsPlace>(schema, key));
    }
    places.push_back(std::make_unique<ThunarPlace>());
    return places;
}
