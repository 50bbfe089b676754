#include <algorithm>
#include <cstdlib>
#include <functional>

#include <QThread>

#include "main_window.h"
#include "work.h"

namespace {

constexpr unsigned long toldWithin = 120;  // milliseconds

// The same number of the shortest command there is.
double floorOf(qsizetype count) {
    return milliseconds([count] {
        for (qsizetype i = 0; i < count; ++i) {
            [[maybe_unused]] const int status = std::system("/bin/true");
        }
    });
}

ItemList storedList() {
    const UserDefaults defaults(UserDefaults::standardFile());
    return defaults.itemList().value_or(ItemList());
}

// A pass over a part of the list, and the floor after it: a machine that is busy for a while does
// not take one for the other. All parts together do what one pass over the whole list does.
void measureInParts(const char* name, qsizetype part,
                    const std::function<void(MainWindow&)>& pass) {
    const ItemList whole = storedList();
    for (qsizetype begin = 0; begin < whole.size(); begin += part) {
        // After a pass the file managers are told, once; that belongs to no part.
        QThread::msleep(toldWithin);
        ItemList list;
        for (qsizetype i = begin; i < std::min(begin + part, whole.size()); ++i) {
            list.append(whole.at(i));
        }
        MainWindow window;
        UserDefaults& defaults = UserDefaults::standardUserDefaults();
        defaults.setItemList(list);
        defaults.synchronize();
        const double time = milliseconds([&] { pass(window); });
        const auto count = static_cast<double>(list.size());
        tell(name, time / count, floorOf(list.size()) / count);
    }
}

}  // namespace

void measureLaunchPass(int part) {
    measureInParts("launch", part, [](MainWindow& window) { window.load(); });
}

void measureQuitPass(int part) {
    measureInParts("quit", part, [](MainWindow& window) {
        RDWindowController controller(&window.window());
        controller.closeApplication();
    });
}
