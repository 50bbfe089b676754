#include <cstdlib>

#include "main_window.h"
#include "work.h"

namespace {

// The same number of the shortest command there is.
double floorOf(qsizetype count) {
    return milliseconds([count] {
        for (qsizetype i = 0; i < count; ++i) {
            [[maybe_unused]] const int status = std::system("/bin/true");
        }
    });
}

qsizetype storedCount() {
    return UserDefaults::standardUserDefaults().itemList().value_or(ItemList()).size();
}

}  // namespace

void measureLaunchPass(int rounds) {
    for (int round = 0; round < rounds; ++round) {
        MainWindow window;
        const auto count = static_cast<double>(storedCount());
        const double pass = milliseconds([&] { window.load(); });
        tell("launch", pass / count, floorOf(storedCount()) / count);
    }
}

void measureQuitPass(int rounds) {
    for (int round = 0; round < rounds; ++round) {
        MainWindow window;
        RDWindowController controller(&window.window());
        const auto count = static_cast<double>(storedCount());
        const double pass = milliseconds([&] {
            controller.closeApplication();
            UserDefaults::standardUserDefaults().synchronize();
        });
        tell("quit", pass / count, floorOf(storedCount()) / count);
    }
}
