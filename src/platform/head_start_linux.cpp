#include <fontconfig/fontconfig.h>
#include <malloc.h>
#include <pthread.h>
#include <sched.h>

#include <chrono>

#include <QFontDatabase>
#include <QStringList>

#include "platform/head_start.h"

namespace {

// A new thread waits on its parent's core until the scheduler moves it, which can take longer than
// all of its work. On another core it begins at once.
void moveToAnotherCore(std::thread& thread) {
    cpu_set_t cores;
    CPU_ZERO(&cores);
    if (sched_getaffinity(0, sizeof cores, &cores) != 0) {
        return;
    }
    CPU_CLR(sched_getcpu(), &cores);
    if (CPU_COUNT(&cores) > 0) {
        pthread_setaffinity_np(thread.native_handle(), sizeof cores, &cores);
    }
}

}  // namespace

HeadStart::HeadStart(const std::function<void()>& preparation) {
    // A heap that grows by the page stops all threads of the process at each step.
    constexpr int heapStep = 1 << 20;
    mallopt(M_TOP_PAD, heapStep);
    thread_ = std::thread([this, preparation] { run(preparation); });
    moveToAnotherCore(thread_);
}

HeadStart::~HeadStart() {
    finish();
}

void HeadStart::run(const std::function<void()>& preparation) {
    // The display, the bus and the main thread come first.
    const sched_param none{};
    pthread_setschedparam(pthread_self(), SCHED_IDLE, &none);
    FcInit();
    configured_.release();
    // Nothing of Qt before this: the first thread that it meets counts as the main one.
    application_.acquire();
    if (ahead_) {
        QFontDatabase::families();
        preparation();
    }
}

void HeadStart::applicationIsThere() {
    // Where all cores are busy, the thread gets next to no time.
    constexpr std::chrono::milliseconds longestWait{3};
    ahead_ = configured_.try_acquire_for(longestWait);
    if (!ahead_) {
        FcInit();
    }
    application_.release();
}

void HeadStart::finish() {
    if (thread_.joinable()) {
        application_.release();
        thread_.join();
    }
}
