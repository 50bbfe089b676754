#pragma once

#include <optional>
#include <vector>

#include "bus.h"
#include "sent_keys.h"
#include "xfconf.h"

/// Thunar's windows and the "show hidden files" command in them. Thunar makes its menus when they
/// are opened, and offers nothing of the kind to other programs, but each window takes the
/// command's key, and stores what it shows after it as the setting for new windows.
class Thunar final {
public:
    static constexpr const char* service = "org.xfce.Thunar";

    explicit Thunar(const Bus& session) : session_(session) {}

    /// Whether keys reach its windows: there is an X display, and the user has not given the
    /// command another key.
    bool isReachable() const;
    std::vector<SentKeys::Window> windows() const { return keys_.windowsOf("Thunar"); }
    /// Toggles the display of hidden files in one window. False when the key cannot be sent; what
    /// the window shows then can be read from setting().
    bool toggle(const SentKeys::Window& window) const { return keys_.send(window, 'h', true); }

    /// The setting for new windows; none when it was never stored.
    std::optional<bool> setting() const { return setting_.value(); }
    /// Stores it, or removes it when there is none, and returns when Thunar knows.
    void setSetting(std::optional<bool> shown) const;

private:
    const Bus& session_;
    SentKeys keys_;
    Xfconf setting_{&session_, "thunar", "last-show-hidden"};
};
