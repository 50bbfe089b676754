#include "first_paint.h"

#include <cinttypes>
#include <cstdio>
#include <ctime>

#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>

FirstPaint::FirstPaint(const QStringList& arguments)
    : stay_(arguments.contains(QStringLiteral("--stay"))) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject* object, QEvent* event) {
    if (!seen_ && event->type() == QEvent::Paint && object->isWidgetType() &&
        qobject_cast<QMainWindow*>(static_cast<QWidget*>(object)->window()) != nullptr) {
        seen_ = true;
        // Next after the whole window was painted and flushed.
        QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
    }
    return false;
}

void FirstPaint::customEvent(QEvent* /*event*/) {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::printf("%" PRId64 "\n", std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec);
    std::fflush(stdout);
    if (!stay_) {
        _exit(0);
    }
    QCoreApplication::instance()->removeEventFilter(this);
}
