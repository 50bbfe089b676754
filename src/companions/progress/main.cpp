// progress launch|quit TOTAL [WINDOW]
//
// Shows how far a pass over TOTAL items is, above the X11 window with that identifier. Standard
// input is a socket: progress comes in as "DONE\tNAME\0", one byte goes back when the user stops
// the pass, and the window closes at the end of the input.

#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>

#include <QApplication>
#include <QElapsedTimer>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>
#include <QWindow>

#include "platform/bundle.h"
#include "progress_dialog.h"

namespace {

constexpr int shortestShowing = 400;  // milliseconds; less is a flash
constexpr int niceness = 10;          // the pass comes first

/// What comes in, and what the window is to do about it.
class Follower final : public QObject {
public:
    explicit Follower(ProgressDialog& dialog)
        : dialog_(dialog), notifier_(STDIN_FILENO, QSocketNotifier::Read) {
        connect(&notifier_, &QSocketNotifier::activated, this, [this] { read(); });
        connect(&dialog_, &ProgressDialog::stopRequested, this,
                [this] { stopped_ = ::write(STDIN_FILENO, "s", 1) == 1; });
    }

private:
    void read() {
        char buffer[4096];
        const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0) {
            end();
            return;
        }
        input_.append(buffer, count);
        const qsizetype last = input_.lastIndexOf('\0');
        if (last < 0) {
            return;
        }
        const QByteArray record = input_.left(last).split('\0').constLast();
        input_.remove(0, last + 1);
        const qsizetype tab = record.indexOf('\t');
        dialog_.follow(record.left(tab).toInt(), QString::fromUtf8(record.mid(tab + 1)));
        if (!shown_.isValid()) {
            dialog_.show();
            shown_.start();
        }
    }
    void end() {
        notifier_.setEnabled(false);
        const qint64 rest = stopped_ || !shown_.isValid() ? 0 : shortestShowing - shown_.elapsed();
        QTimer::singleShot(static_cast<int>(qMax(rest, qint64(0))), qApp,
                           [] { QCoreApplication::exit(); });
    }

    ProgressDialog& dialog_;
    QSocketNotifier notifier_;
    QByteArray input_;
    QElapsedTimer shown_;
    bool stopped_ = false;
};

void putAbove(QWidget& dialog, WId window) {
    if (window != 0 && QGuiApplication::platformName() == QLatin1String("xcb")) {
        dialog.winId();
        dialog.windowHandle()->setTransientParent(QWindow::fromWinId(window));
    }
}

}  // namespace

int main(int argc, char** argv) {
    setpriority(PRIO_PROCESS, 0, niceness);
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int total = arguments.value(2).toInt();
    if (total <= 0 ||
        (arguments.at(1) != QLatin1String("launch") && arguments.at(1) != QLatin1String("quit"))) {
        std::fputs("usage: progress launch|quit total [window]\n", stderr);
        return 1;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setDesktopFileName(QStringLiteral("com.velmora.Velmora"));
    Bundle::loadTranslations();
    QApplication::setWindowIcon(Bundle::imageNamed(QStringLiteral("velmora")));
    // A session that is restored starts the program itself, not this.
    QObject::connect(
        &application, &QGuiApplication::saveStateRequest, &application,
        [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); });
    ProgressDialog dialog(arguments.at(1) == QLatin1String("launch") ? ProgressDialog::Pass::Launch
                                                                     : ProgressDialog::Pass::Quit,
                          total);
    putAbove(dialog, arguments.value(3).toULongLong());
    const Follower follower(dialog);
    return QApplication::exec();
}
