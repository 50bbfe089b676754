#include "platform/application.h"

#include <algorithm>
#include <exception>
#include <utility>

#include <QEventLoop>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include "platform/log.h"
#include "platform/termination_signals.h"

namespace {

QList<QEventLoop*>& modalLoops() {
    static QList<QEventLoop*> loops;
    return loops;
}

// The window that a modal one belongs to: the one in use, or the first that is shown.
QWidget* owner() {
    if (QWidget* active = QApplication::activeWindow()) {
        return active;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->isWindow() && window->parentWidget() == nullptr) {
            return window;
        }
    }
    return nullptr;
}

// Ends the loop also when the window is closed without anybody calling stopModal().
class CloseWatcher final : public QObject {
public:
    CloseWatcher(QWidget* window, QEventLoop* loop) : loop_(loop) {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* /*window*/, QEvent* event) override {
        if (event->type() == QEvent::Hide && !event->spontaneous()) {
            loop_->quit();
        }
        return false;
    }

private:
    QEventLoop* loop_;
};

bool isInput(const QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::NonClientAreaMouseButtonPress:
        case QEvent::ContextMenu:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
            return true;
        default:
            return false;
    }
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    if (discardsInput_ && isInput(*event)) {
        return true;
    }
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& exception) {
        Log::line(QStringLiteral("An uncaught exception was raised: %1")
                      .arg(QString::fromUtf8(exception.what())));
    }
    // Queued: the views may still stand in the middle of the call that failed.
    QMetaObject::invokeMethod(this, &Application::exceptionReported, Qt::QueuedConnection);
    return false;
}

bool Application::event(QEvent* event) {
    if (event->type() == QEvent::Quit) {
        TerminationSignals::request();  // a command line that is waited for is to end too
        terminate();
        return true;
    }
    return QApplication::event(event);
}

void Application::runModalForWindow(QWidget* window) {
    QEventLoop loop;
    CloseWatcher watcher(window, &loop);
    const QPointer<QWidget> guard(window);
    window->setWindowModality(Qt::ApplicationModal);
    presentOver(window, owner());
    modalLoops().append(&loop);
    loop.exec(QEventLoop::DialogExec);
    modalLoops().removeOne(&loop);
    if (guard) {
        guard->hide();
    }
}

void Application::presentOver(QWidget* window, const QWidget* below) {
    if (below != nullptr && below != window) {
        window->winId();
        window->windowHandle()->setTransientParent(below->window()->windowHandle());
        if (!window->testAttribute(Qt::WA_Resized)) {
            window->adjustSize();
        }
        QRect frame(QPoint(), window->size());
        frame.moveCenter(below->window()->geometry().center());
        // All of it on the screen, where that is large enough.
        const QRect screen = below->screen()->availableGeometry();
        const QPoint last = screen.bottomRight() - frame.bottomRight() + frame.topLeft();
        window->move(std::max(screen.left(), std::min(frame.left(), last.x())),
                     std::max(screen.top(), std::min(frame.top(), last.y())));
    }
    window->show();
    window->raise();
    window->activateWindow();
}

void Application::stopModal() {
    if (!modalLoops().isEmpty()) {
        modalLoops().constLast()->quit();
    }
}

void Application::discardPendingInput() {
    if (std::exchange(discardsInput_, true)) {
        return;
    }
    // What waits comes with the first turn of the event loop; the time counts from there.
    constexpr int longestTurn = 50;  // milliseconds
    QMetaObject::invokeMethod(
        this, [this] { QTimer::singleShot(longestTurn, this, [this] { discardsInput_ = false; }); },
        Qt::QueuedConnection);
}

void Application::terminate() {
    QCoreApplication::exit(0);
}
