#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <xcb/xcb.h>

/// The windows on an X display, and keys sent to one of them alone: the keyboard focus, the
/// pointer and all other windows stay as they are. GTK 3 takes such keys also in the background.
class SentKeys final {
public:
    struct Window {
        xcb_window_t id = XCB_NONE;
        std::string title;
    };

    /// Connects to the display of the environment; isConnected() says whether there is one.
    SentKeys();

    bool isConnected() const;
    /// The normal windows, dialogs and desktops left out, of the programs of that class (compared
    /// without regard to case).
    std::vector<Window> windowsOf(const char* windowClass) const;
    /// Sends a press and a release of the key that gives the symbol, alone or with the control
    /// key. False when no key of the keyboard gives it.
    bool send(const Window& window, xcb_keysym_t symbol, bool withControl) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    xcb_atom_t atom(std::string_view name) const;
    std::string text(xcb_window_t window, xcb_atom_t property) const;
    std::vector<uint32_t> numbers(xcb_window_t window, xcb_atom_t property) const;

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t root_ = XCB_NONE;
};
