#pragma once

#include <functional>
#include <memory>

/// What every start needs and what nobody must wait for in a row, on a thread of its own: the
/// system's font configuration is read while the application object finds its display, and the
/// fonts are listed while the first controls are made. It has to outlive the application object.
class HeadStart final {
public:
    /// `preparation`: what else the start needs and any thread can do. It may be left out: do it
    /// where it is needed then.
    explicit HeadStart(const std::function<void()>& preparation);
    ~HeadStart();

    /// Call it when the application object is there, before the first text is measured. Returns
    /// when the font configuration is read, by whichever thread.
    void applicationIsThere();
    /// Waits for the thread. Call it while the application object is still there.
    void finish();

private:
    class Work;
    std::unique_ptr<Work> work_;
};
