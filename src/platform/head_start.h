#pragma once

#include <future>

/// What every start needs and what nobody must wait for in a row: the list of the fonts of the
/// system is read on a thread of its own while the application object finds its display. Make it
/// before that object, and let it finish afterwards, before the first text is measured.
class HeadStart final {
public:
    HeadStart();

    void finish();

private:
    std::future<void> fonts_;
};
