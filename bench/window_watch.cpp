#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

bool shows(xcb_connection_t* display, const xcb_generic_event_t& event) {
    constexpr int large = 200;
    if ((event.response_type & 0x7f) != XCB_MAP_NOTIFY) {
        return false;
    }
    const auto window = reinterpret_cast<const xcb_map_notify_event_t&>(event).window;
    const std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)> geometry(
        xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr), &std::free);
    return geometry && geometry->width >= large && geometry->height >= large;
}

}  // namespace

/// window_watch PROGRAM [ARGUMENT...]: starts the program, prints the milliseconds until it has a
/// large window on the display, and ends it.
int main(int argc, char** argv) {
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    const xcb_setup_t* setup = xcb_get_setup(display);
    if (argc < 2 || setup == nullptr) {
        return 2;
    }
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(display, xcb_setup_roots_iterator(setup).data->root,
                                 XCB_CW_EVENT_MASK, &mask);
    xcb_flush(display);
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    if (posix_spawnp(&child, argv[1], nullptr, nullptr, argv + 1, environ) != 0) {
        return 1;
    }
    xcb_generic_event_t* event = xcb_wait_for_event(display);
    while (event != nullptr && !shows(display, *event)) {
        event = xcb_wait_for_event(display);
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::printf("%.3f\n", time.count());
    return event != nullptr ? 0 : 1;
}
