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

constexpr uint32_t longEnough = 4096;  // of a property, in units of four bytes

struct Key {
    xcb_keycode_t code;
    uint16_t group;  // as it stands in an event's state: the keyboard layout the letter is in
};

std::optional<Key> keyOf(xcb_connection_t* connection, xcb_keysym_t symbol) {
    const auto* setup = xcb_get_setup(connection);
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const ReplyPointer<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
        connection, xcb_get_keyboard_mapping(connection, setup->min_keycode, count), nullptr));
    if (!mapping)
        return {};
    const auto* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const int columns = mapping->keysyms_per_keycode;
    // Two columns for each of the first two layouts; what follows is ordered differently.
    for (int column = 0; column < std::min(columns, 4); ++column) {
        for (int key = 0; key < count; ++key) {
            if (symbols[key * columns + column] == symbol)
                return Key{static_cast<xcb_keycode_t>(setup->min_keycode + key),
                           static_cast<uint16_t>((column / 2) << 13)};
        }
    }
    return {};
}

}  // namespace

SentKeys::SentKeys() {
    int number = 0;
    connection_.reset(xcb_connect(nullptr, &number));
    if (!isConnected())
        return;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    for (; screens.rem > 0 && number > 0; --number)
        xcb_screen_next(&screens);
    if (screens.rem > 0)
        root_ = screens.data->root;
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

std::string SentKeys::textProperty(xcb_window_t window, xcb_atom_t property) const {
    const ReplyPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.get(),
                               xcb_get_property(connection_.get(), 0, window, property,
                                                XCB_GET_PROPERTY_TYPE_ANY, 0, longEnough),
                               nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<size_t>(xcb_get_property_value_length(reply.get()))};
}

xcb_atom_t SentKeys::firstAtom(xcb_window_t window, xcb_atom_t property) const {
    const ReplyPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection_.get(),
        xcb_get_property(connection_.get(), 0, window, property, XCB_ATOM_ATOM, 0, 1), nullptr));
    return reply && reply->format == 32 && reply->value_len == 1
               ? *static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()))
               : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::vector<SentKeys::Window> SentKeys::windowsOf(std::string_view windowClass, Kind kind) const {
    std::vector<Window> windows;
    if (!isConnected())
        return windows;
    const ReplyPointer<xcb_get_property_reply_t> list(xcb_get_property_reply(
        connection_.get(),
        xcb_get_property(connection_.get(), 0, root_, atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 0,
                         longEnough),
        nullptr));
    if (!list || list->format != 32)
        return windows;
    const auto* ids = static_cast<const xcb_window_t*>(xcb_get_property_value(list.get()));
    const auto title = atom("_NET_WM_NAME");
    const auto type = atom("_NET_WM_WINDOW_TYPE");
    const auto wanted =
        atom(kind == Kind::Normal ? "_NET_WM_WINDOW_TYPE_NORMAL" : "_NET_WM_WINDOW_TYPE_DIALOG");
    for (uint32_t number = 0; number < list->value_len; ++number) {
        if (firstAtom(ids[number], type) != wanted)
            continue;
        // Two texts, each with a zero byte at its end: the instance and the class.
        const auto names = textProperty(ids[number], XCB_ATOM_WM_CLASS);
        const auto start = names.find('\0');
        if (start != std::string::npos &&
            g_ascii_strcasecmp(names.c_str() + start + 1, std::string(windowClass).c_str()) == 0)
            windows.push_back({ids[number], textProperty(ids[number], title)});
    }
    return windows;
}

bool SentKeys::send(const Window& window, xcb_keysym_t symbol, bool withControl) const {
    const auto key = keyOf(connection_.get(), symbol);
    if (!key)
        return false;
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
