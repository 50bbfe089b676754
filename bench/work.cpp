#include "work.h"

#include <functional>
#include <map>
#include <string>

#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/shell.h"

/// bench_work KIND ROUNDS [COUNT]
int main(int argc, char** argv) {
    Log::install();
    Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("velmora"));
    Bundle::loadTranslations();
    Shell::setCompanionsFolder(Shell::defaultCompanionsFolder());
    // The floors run the same commands.
    qputenv("PATH", Shell::defaultCompanionsFolder().toLocal8Bit() + ':' + qgetenv("PATH"));

    const int rounds = argc > 2 ? std::atoi(argv[2]) : 1;
    const int count = argc > 3 ? std::atoi(argv[3]) : 0;
    const std::map<std::string, std::function<void()>> kinds{
        {"press", [&] { measurePress(rounds); }},
        {"scroll", [&] { measureScroll(rounds); }},
        {"sort", [&] { measureSort(rounds); }},
        {"drop", [&] { measureDrop(rounds, count); }},
        {"launch", [&] { measureLaunchPass(rounds); }},
        {"quit", [&] { measureQuitPass(rounds); }},
    };
    const auto kind = kinds.find(argc > 1 ? argv[1] : "");
    if (kind == kinds.cend()) {
        std::fprintf(stderr, "usage: bench_work KIND ROUNDS [COUNT]\n");
        return 2;
    }
    kind->second();
    return 0;
}
