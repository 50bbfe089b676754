#include "places.h"

#include <filesystem>
#include <stdexcept>
#include <utility>

#include <gio/gio.h>

#include "glib_pointer.h"
#include "ini_file.h"
#include "xfconf_place.h"

namespace {

class SettingsPlace final : public Place {
public:
    SettingsPlace(const char* schema, const char* key) : name_(schema), key_(key) {
        auto* source = g_settings_schema_source_get_default();
        // Asking for settings whose schema is missing ends the process, so look first.
        const SchemaPointer found(
            source != nullptr ? g_settings_schema_source_lookup(source, schema, TRUE) : nullptr);
        if (found && g_settings_schema_has_key(found.get(), key))
            settings_.reset(g_settings_new_full(found.get(), nullptr, nullptr));
    }

    State state() const override {
        if (!settings_)
            return State::Absent;
        return g_settings_get_boolean(settings_.get(), key_) ? State::On : State::Off;
    }

    void turnOff() override {
        const bool accepted = g_settings_set_boolean(settings_.get(), key_, FALSE);
        // The store is written by a service: only what it says afterwards counts.
        g_settings_sync();
        if (!accepted || state() == State::On)
            throw std::runtime_error(name_ + " " + key_ +
                                     ": the settings service did not store it");
    }

private:
    std::string name_;
    const char* key_;
    ObjectPointer<GSettings> settings_;
};

class IniPlace final : public Place {
public:
    IniPlace(std::filesystem::path file, std::string section, std::string key)
        : file_(std::move(file)), section_(std::move(section)), key_(std::move(key)) {}

    State state() const override {
        switch (readIniSwitch(file_, section_, key_)) {
            case IniSwitch::Absent:
                return State::Absent;
            case IniSwitch::Off:
                return State::Off;
            case IniSwitch::On:
                break;
        }
        return State::On;
    }

    void turnOff() override { turnIniSwitchOff(file_, section_, key_); }

private:
    std::filesystem::path file_;
    std::string section_;
    std::string key_;
};

/// The file of every profile of a manager that has profiles, each in a folder of its own.
std::vector<std::filesystem::path> profileFiles(const std::filesystem::path& folder,
                                                const char* name) {
    std::vector<std::filesystem::path> files;
    std::error_code ignored;
    for (const auto& profile : std::filesystem::directory_iterator(folder, ignored)) {
        if (std::filesystem::exists(profile.path() / name, ignored))
            files.push_back(profile.path() / name);
    }
    return files;
}

}  // namespace

std::vector<std::unique_ptr<Place>> pcmanfmQtPlaces() {
    const auto folder = std::filesystem::path(g_get_user_config_dir()) / "pcmanfm-qt";
    std::vector<std::unique_ptr<Place>> places;
    for (const auto& file : profileFiles(folder, "settings.conf"))
        places.push_back(std::make_unique<IniPlace>(file, "FolderView", "ShowHidden"));
    return places;
}

std::vector<std::unique_ptr<Place>> allPlaces() {
    const std::filesystem::path configuration = g_get_user_config_dir();
    const std::filesystem::path data = g_get_user_data_dir();
    auto places = pcmanfmQtPlaces();
    const auto addFile = [&places](const std::filesystem::path& file, const char* section,
                                   const char* key) {
        places.push_back(std::make_unique<IniPlace>(file, section, key));
    };
    for (const auto& file : profileFiles(configuration / "pcmanfm", "pcmanfm.conf"))
        addFile(file, "ui", "show_hidden");
    addFile(data / "dolphin/view_properties/global/.directory", "Settings", "HiddenFilesShown");
    // Nautilus 43 uses the setting of the GTK 4 file dialogs; others of its releases their own.
    for (const auto& [schema, key] : {std::pair{"org.gtk.gtk4.Settings.FileChooser", "show-hidden"},
                                      {"org.gnome.nautilus.preferences", "show-hidden-files"},
                                      {"org.mate.caja.preferences", "show-hidden-files"},
                                      {"org.nemo.preferences", "show-hidden-files"}})
        places.push_back(std::make_unique<SettingsPlace>(schema, key));
    places.push_back(std::make_unique<XfconfPlace>("thunar", "last-show-hidden"));
    return places;
}
