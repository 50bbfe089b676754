#include "work.h"

#include <cerrno>
#include <cstdlib>
#include <map>
#include <string>

#include <sys/wait.h>

#include <QThread>

#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/shell.h"

namespace {

bool anyCommandRuns() {
    siginfo_t child{};
    return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}

}  // namespace

void comeToRest() {
    UserDefaults::standardUserDefaults().synchronize();
    for (int quiet = 0; quiet < 5;) {
        QCoreApplication::processEvents();
        QThread::msleep(5);
        quiet = anyCommandRuns() ? 0 : quiet + 1;
    }
}

ShownWindow::ShownWindow(int rows) {
    main.load();
    main.show();
    comeToRest();
    const int missing = rows * table().rowHeight() - table().viewport()->height();
    main.window().resize(main.window().width(), main.window().height() + missing);
    comeToRest();
}

/// bench_work KIND ROUNDS, as measure.py runs it.
int main(int argc, char** argv) {
    Application application(argc, argv);
    Bundle::loadTranslations();
    Shell::setCompanionsFolder(Shell::defaultCompanionsFolder());
    // The floors run the same commands.
    qputenv("PATH", Shell::defaultCompanionsFolder().toLocal8Bit() + ':' + qgetenv("PATH"));

    const std::map<std::string, void (*)(int)> kinds{
        {"press", measurePress},
        {"scroll", measureScroll},
        {"sort", measureSort},
        {"drop", measureDrop},
        {"quit", [](int) { measurePass(true); }},
        {"launch", [](int) { measurePass(false); }},
    };
    kinds.at(argv[1])(std::atoi(argv[2]));
    return 0;
}
