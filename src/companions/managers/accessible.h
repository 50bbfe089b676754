#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "bus.h"

/// One object (application, window, menu command) as assistive technology sees it. Its commands
/// can be chosen from outside without opening a menu and without touching the keyboard focus.
/// Valid as long as the accessibility bus that it was made with.
class Accessible final {
public:
    /// The windows of the running programs of that name (compared without regard to case).
    static std::vector<Accessible> windowsOf(const Bus& accessibility, std::string_view program);

    std::string name() const;
    bool isChecked() const;
    /// The commands in the window's menu bar, one level deep, that have this key equivalent as
    /// GTK ("<Primary>h") or Qt ("Ctrl+H") writes it. Keys are the same in every language.
    std::vector<Accessible> commandsWithKey(std::string_view gtkKey, std::string_view qtKey) const;
    /// The names of what the window shows, without its menus, bars and side pane; none when there
    /// are too many to ask for each.
    std::optional<std::set<std::string>> contentNames() const;
    /// Does what a click on it would do. False when it has no action.
    bool activate() const;

private:
    Accessible(const Bus& bus, std::string service, std::string path);

    std::vector<Accessible> children() const;
    unsigned role() const;
    std::string keyEquivalents() const;
    bool hasKey(std::string_view gtkKey, std::string_view qtKey) const;
    VariantPointer call(const char* interface, const char* method,
                        GVariant* arguments = nullptr) const;
    std::vector<Accessible> menus() const;

    const Bus* bus_;
    std::string service_;
    std::string path_;
};
