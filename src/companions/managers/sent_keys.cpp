#include "sent_keys.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>

#include <glib.h>

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

struct Key {
    xcb_keycode_t code;
    uint16_t group;  // as it stands in an event's state: the keyboard layout the letter is in
};

std::optional<Key> keyOf(xcb_connection_t* connection, xcb_keysym_t symbol) {
    const auto* setup = xcb_get_setup(connection);
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const ReplyPointer<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
        connection, xcb_get_keyboard_mapping(connection, setup->min_keycode, count), nullptr));
    if (!mapping) {
        return {};
    }
    const auto* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const int columns = mapping->keysyms_per_keycode;
    // Two columns for each of the first two layouts; what follows is ordered differently.
    for (int column = 0; column < std::min(columns, 4); ++column) {
        for (int key = 0; key < count; ++key) {
            if (symbols[key * columns + column] == symbol) {
                return Key{static_cast<xcb_keycode_t>(setup->min_keycode + key),
                           static_cast<uint16_t>((column / 2) << 13)};
            }
        }
    }
    return {};
}

}  // namespace

SentKeys::SentKeys() {
    int number = 0;
    connection_.reset(xcb_connect(nullptr, &number));
    if (!isConnected()) {
        return;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    for (; screens.rem > 0 && number > 0; --number) {
        xcb_screen_next(&screens);
    }
    if (screens.rem > 0) {
        root_ = screens.data->root;
    }
}

bool SentKeys::isConnected() const {
    return xcb_connection_has_error(connection_.get()) == 0;
}

xcb_atom_t SentKeys::atom(std::string_view name) const {
    const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection_.get(),
        xcb_intern_atom(connection_.get(), 1, static_cast<uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::string SentKeys::text(xcb_window_t window, xcb_atom_t property) const {
    constexpr uint32_t longEnough = 4096;  // in units of four bytes
    const ReplyPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.get(),
                               xcb_get_property(connection_.get(), 0, window, property,
                                                XCB_GET_PROPERTY_TYPE_ANY, 0, longEnough),
                               nullptr));
    if (!reply) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<size_t>(xcb_get_property_value_length(reply.get()))};
}

std::vector<uint32_t> SentKeys::numbers(xcb_window_t window, xcb_atom_t property) const {
    const auto bytes = text(window, property);
    std::vector<uint32_t> numbers(bytes.size() / sizeof(uint32_t));
    std::memcpy(numbers.data(), bytes.data(), numbers.size() * sizeof(uint32_t));
    return numbers;
}

std::vector<SentKeys::Window> SentKeys::windowsOf(const char* windowClass) const {
    std::vector<Window> windows;
    if (!isConnected()) {
        return windows;
    }
    const auto title = atom("_NET_WM_NAME");
    const auto type = atom("_NET_WM_WINDOW_TYPE");
    const auto normal = atom("_NET_WM_WINDOW_TYPE_NORMAL");
    for (const auto window : numbers(root_, atom("_NET_CLIENT_LIST"))) {
        const auto types = numbers(window, type);
        // Two texts, each with a zero byte at its end: the instance and the class.
        const auto names = text(window, XCB_ATOM_WM_CLASS);
        const auto start = names.find('\0');
        if (!types.empty() && types.front() == normal && start != std::string::npos &&
            g_ascii_strcasecmp(names.c_str() + start + 1, windowClass) == 0) {
            windows.push_back({window, text(window, title)});
        }
    }
    return windows;
}

bool SentKeys::send(const Window& window, xcb_keysym_t symbol, bool withControl) const {
    const auto key = keyOf(connection_.get(), symbol);
    if (!key) {
        return false;
    }
    xcb_key_press_event_t event{};
    event.detail = key->code;
    event.root = root_;
    event.event = window.id;
    event.state = static_cast<uint16_t>((withControl ? XCB_MOD_MASK_CONTROL : 0) | key->group);
    event.same_screen = 1;
    for (const auto type : {XCB_KEY_PRESS, XCB_KEY_RELEASE}) {
        event.response_type = static_cast<uint8_t>(type);
        // With an empty event mask it goes to the program that made the window, always.
        xcb_send_event(connection_.get(), 0, window.id, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char*>(&event));
    }
    xcb_flush(connection_.get());
    return isConnected();
}
