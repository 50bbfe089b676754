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
    /// The windows of the running programs of that name (compared without regard to case); none
    /// without a bus.
    static std::vector<Accessible> windowsOf(const Bus* accessibility, const char* program);

    std::string name() const;
    bool isChecked() const;
    /// The commands in the window's menu bar, one level deep, that have this key equivalent as
    /// GTK ("<Primary>h") or Qt ("Ctrl+H") writes it. Keys are the same in every language.
    std::vector<Accessible> commandsWithKey(std::string_view gtkKey, std::string_view qtKey) const;
    /// The names of what the window shows, without its menus, bars and side pane; none when there
    /// are too many to ask for each.
    std::optional<std::set<std::string>> contentNames() const;
    /// Does what a click on it would do.
    void activate() const;
    /// Does the first of its actions whose name ends so; does nothing when none does.
    void activate(std::string_view nameEnd) const;

private:
    Accessible(const Bus& bus, std::string service, std::string path);

    std::vector<Accessible> children() const;
    unsigned role() const;
    bool hasKey(std::string_view gtkKey, std::string_view qtKey) const;
    std::vector<Accessible> menus() const;
    VariantPointer call(const char* method, const char* answerType) const;
    VariantPointer callAction(const char* method, int action, const char* answerType) const;

    const Bus* bus_;
    std::string service_;
    std::string path_;
};
