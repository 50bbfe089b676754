#include <cstdlib>

#include <QCoreApplication>

#include "controls/rd_switch_button.h"
#include "work.h"

namespace {

void run(const QString& commandLine) {
    [[maybe_unused]] const int status = std::system(commandLine.toUtf8().constData());
}

// Milliseconds for the shortest command. Measured before and after a pass, so that a machine that
// is busy for a while affects the floor as well.
double floorOfOne() {
    constexpr int times = 250;
    const auto work = [] {
        for (int i = 0; i < times; ++i) {
            run(QStringLiteral("/bin/true"));
        }
    };
    return milliseconds(work) / times;
}

}  // namespace

void measurePass(bool quit) {
    const UserDefaults defaults(UserDefaults::standardFile());
    const auto count = static_cast<double>(defaults.itemList().value_or(ItemList()).size());
    MainWindow window;
    const double before = floorOfOne();
    const double time = milliseconds([&window, quit] {
        if (quit) {
            window.windowController().closeApplication();
        } else {
            window.load();
        }
    });
    tell(time / count, (before + floorOfOne()) / 2);
    comeToRest();
}

void measurePress(int rounds) {
    ShownWindow window(10);
    RDSwitchButton& button = *window.main.outlets().switchButton;
    const QString path = window.list().fileLists()->at(0).filePath();
    const auto change = [&path](bool visible) {
        run(QStringLiteral("chflags %1 '%2'")
                .arg(visible ? QStringLiteral("nohidden") : QStringLiteral("hidden"), path));
    };
    for (int round = 0; round < rounds + 2; ++round) {
        // From the press until the window has shown the new state and takes the next event. The
        // floor does next what the press has done, the other way round.
        const bool before = button.on();
        const double press = milliseconds([&] {
            button.click();
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        });
        comeToRest();
        const double commands = milliseconds([&] {
            run(QStringLiteral("defaults read com.apple.finder AppleShowAllFiles >/dev/null"));
            change(before);
        });
        change(!before);
        if (round >= 2) {
            tell(press, commands);
        }
    }
}
