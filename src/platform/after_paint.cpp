#include "platform/after_paint.h"

#include <QEvent>
#include <QWidget>

AfterPaint::AfterPaint(QWidget* widget, std::function<void()> work) : widget_(widget) {
    widget->installEventFilter(this);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, std::move(work));
}

void AfterPaint::request() {
    requested_ = true;
    widget_->update();
}

void AfterPaint::cancel() {
    requested_ = false;
    timer_.stop();
}

bool AfterPaint::eventFilter(QObject* /*object*/, QEvent* event) {
    if (requested_ && event->type() == QEvent::Paint) {
        requested_ = false;
        timer_.start(0);
    }
    return false;
}
