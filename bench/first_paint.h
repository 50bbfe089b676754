#pragma once

#include <chrono>
#include <cstdio>

#include <unistd.h>

#include <QApplication>
#include <QMainWindow>

/// Prints on standard output, in nanoseconds of the monotonic clock, when the first main window of
/// this process was painted and handed to the display. Then ends the process, unless STAY is in the
/// environment, so that its memory can be measured.
class FirstPaint final : public QObject {
public:
    FirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (!seen_ && event->type() == QEvent::Paint && object->isWidgetType() &&
            qobject_cast<QMainWindow*>(static_cast<QWidget*>(object)->window()) != nullptr) {
            seen_ = true;
            // Delivered once the whole window was painted and flushed.
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        }
        return false;
    }

protected:
    void customEvent(QEvent* /*event*/) override {
        const std::chrono::nanoseconds now = std::chrono::steady_clock::now().time_since_epoch();
        std::printf("%lld\n", static_cast<long long>(now.count()));
        std::fflush(stdout);
        if (!qEnvironmentVariableIsSet("STAY")) {
            _exit(0);
        }
    }

private:
    bool seen_ = false;
};
