#include <fontconfig/fontconfig.h>
#include <malloc.h>
#include <pthread.h>
#include <sched.h>

#include <chrono>
#include <semaphore>
#include <thread>

#include <QFontDatabase>
#include <QStringList>
#include <QThread>

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

class HeadStart::Work final {
public:
    explicit Work(const std::function<void()>& preparation) {
        // Qt takes the first thread that it meets for the main one.
        QThread::currentThread();
        // A heap that grows by the page stops all threads of the process at each step.
        constexpr int heapStep = 1 << 20;
        mallopt(M_TOP_PAD, heapStep);
        thread_ = std::thread([this, preparation] { run(preparation); });
        moveToAnotherCore(thread_);
    }
    ~Work() { finish(); }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    void proceed() {
        // Where all cores are busy, the thread gets next to no time.
        ahead_ = configured_.try_acquire_for(longestWait);
        if (!ahead_) {
            FcInit();
        }
        application_.release();
    }
    void finish() {
        if (thread_.joinable()) {
            application_.release();
            thread_.join();
        }
    }

private:
    void run(const std::function<void()>& preparation) {
        // The display, the bus and the main thread come first.
        const sched_param none{};
        pthread_setschedparam(pthread_self(), SCHED_IDLE, &none);
        FcInit();
        configured_.release();
        application_.acquire();
        if (ahead_) {
            QFontDatabase::families();
            preparation();
        }
    }

    static constexpr std::chrono::milliseconds longestWait{3};

    std::binary_semaphore configured_{0};
    std::counting_semaphore<2> application_{0};
    bool ahead_ = false;
    std::thread thread_;
};

HeadStart::HeadStart(const std::function<void()>& preparation)
    : work_(std::make_unique<Work>(preparation)) {}

HeadStart::~HeadStart() = default;

void HeadStart::applicationIsThere() {
    work_->proceed();
}

void HeadStart::finish() {
    work_->finish();
}
