#include <cstdlib>

#include <QCoreApplication>

#include "controls/rd_switch_button.h"
#include "main_window.h"
#include "work.h"

namespace {

void run(const QString& commandLine) {
    [[maybe_unused]] const int status = std::system(commandLine.toUtf8().constData());
}

}  // namespace

void measurePress(int rounds) {
    MainWindow window;
    window.load();
    window.show(10);
    const QString path = window.list().fileLists()->at(0).filePath();
    for (int round = 0; round < 2 * rounds; ++round) {
        // From the press until the window has shown the new state and takes the next event. The
        // floor does next what the press has done, the other way round.
        const char* word = window.outlets().switchButton->on() ? "nohidden" : "hidden";
        const double press = milliseconds([&] {
            window.outlets().switchButton->click();
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        });
        comeToRest();
        const double commands = milliseconds([&] {
            run(QStringLiteral("defaults read com.apple.finder AppleShowAllFiles"));
            run(QStringLiteral("chflags %1 '%2'").arg(QLatin1String(word), path));
        });
        run(QStringLiteral("chflags %1 '%2'")
                .arg(QLatin1String(window.outlets().switchButton->on() ? "nohidden" : "hidden"),
                     path));
        if (round >= 2) {
            tell("press", press, commands);
        }
    }
}
