#include "main_window.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

namespace {

Ui::Main setUp(QMainWindow& window) {
    Ui::Main outlets;
    outlets.setupUi(&window);
    return outlets;
}

bool anythingRuns() {
    const QList<QProcess*> processes = qApp->findChildren<QProcess*>();
    return std::any_of(processes.cbegin(), processes.cend(), [](const QProcess* process) {
        return process->state() != QProcess::NotRunning;
    });
}

}  // namespace

MainWindow::MainWindow()
    : defaults_(UserDefaults::standardFile()),
      outlets_(setUp(window_)),
      delegate_(outlets_),
      viewController_(&window_, delegate_) {}

void MainWindow::load() {
    viewController_.viewDidLoad();
}

void MainWindow::show(int rows) {
    window_.show();
    comeToRest();
    const int missing = rows * table().rowHeight() - table().viewport()->height();
    window_.resize(window_.width(), window_.height() + missing);
    comeToRest();
}

void comeToRest() {
    UserDefaults::standardUserDefaults().synchronize();
    constexpr int quietTurns = 5;
    const QDeadlineTimer latest(10'000);
    for (int quiet = 0; quiet < quietTurns && !latest.hasExpired();) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        QThread::msleep(5);
        quiet = anythingRuns() ? 0 : quiet + 1;
    }
}
