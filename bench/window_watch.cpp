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

bool isLarge(xcb_connection_t* display, xcb_window_t window) {
    constexpr int least = 200;
    const std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)> geometry(
        xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr), &std::free);
    return geometry && geometry->width >= least && geometry->height >= least;
}

bool waitForWindow(xcb_connection_t* display) {
    while (xcb_generic_event_t* event = xcb_wait_for_event(display)) {
        const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> owner(event, &std::free);
        if ((event->response_type & 0x7f) == XCB_MAP_NOTIFY &&
            isLarge(display, reinterpret_cast<xcb_map_notify_event_t*>(event)->window)) {
            return true;
        }
    }
    return false;
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
    const bool seen = waitForWindow(display);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::printf("%.3f\n", time.count());
    return seen ? 0 : 1;
}
