#include "controls/rd_custom_button.h"

#include <QAccessible>
#include <QKeyEvent>

RdCustomButton::RdCustomButton(QWidget* parent) : QPushButton(parent) {
    setCheckable(true);
    setAutoDefault(false);
}

void RdCustomButton::setOn(qint64 on) {
    if (on_ == on) {
        return;
    }
    on_ = on;
    QAccessible::State changed;
    changed.checked = true;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void RdCustomButton::setState(qint64 state) {
    setChecked(state != 0);
}

void RdCustomButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        animateClick();
        return;
    }
    QPushButton::keyPressEvent(event);
}
