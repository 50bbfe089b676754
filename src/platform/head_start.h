#pragma once

#include <functional>
#include <semaphore>
#include <thread>

/// What every start needs and what nobody must wait for in a row, on a thread of its own: the
/// system's font configuration is read while the application object finds its display, and the
/// fonts are listed while the first controls are made. It has to outlive the application object.
class HeadStart final {
public:
    /// `preparation`: what else the start needs and any thread can do. It may be left out: do it
    /// where it is needed then.
    explicit HeadStart(const std::function<void()>& preparation);
    ~HeadStart();
    HeadStart(const HeadStart&) = delete;
    HeadStart& operator=(const HeadStart&) = delete;

    /// Call it when the application object is there, before the first text is measured. Returns
    /// when the font configuration is read, by whichever thread.
    void applicationIsThere();
    /// Waits for the thread. Call it while the application object is still there.
    void finish();

private:
    void run(const std::function<void()>& preparation);

    std::binary_semaphore configured_{0};
    std::counting_semaphore<2> application_{0};
    bool ahead_ = false;  // whether the thread still is, once the application object is there
    std::thread thread_;
};
