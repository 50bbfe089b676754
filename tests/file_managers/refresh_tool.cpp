// Tells the file managers about one item through the program's own class, at the times at which
// the program does, then prints the managers that were not reached. For scripts/file-managers.
#include <QCoreApplication>
#include <QTextStream>
#include <QTimer>

#include "platform/file_manager_refresh.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 3)
        return 1;
    FileManagerRefresh refresh(QString::fromLocal8Bit(argv[1]));
    refresh.itemChanged(QString::fromLocal8Bit(argv[2]));
    QTimer::singleShot(std::chrono::seconds(16), qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    QTextStream output(stdout);
    for (const auto& [manager, keys] : refresh.unreached())
        output << manager << '\t' << keys << '\n';
    return 0;
}
