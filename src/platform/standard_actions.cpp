#include "platform/standard_actions.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMetaMethod>
#include <QWidget>

namespace {

bool isReadOnly(const QWidget* widget) {
    const QVariant readOnly = widget->property("readOnly");
    return readOnly.isValid() && readOnly.toBool();
}

// The text fields name these commands as their slots; of anything else none is asked, also where
// it has one of them (a list can select all, but not copy).
bool canPerform(const QWidget* widget, const QByteArray& command) {
    if (widget == nullptr || widget->metaObject()->indexOfSlot("copy()") < 0) {
        return false;
    }
    if (command == "del") {
        const auto* field = qobject_cast<const QLineEdit*>(widget);
        return field != nullptr && !field->isReadOnly();
    }
    const int slot = widget->metaObject()->indexOfSlot(command + "()");
    const bool changes = command != "copy" && command != "selectAll";
    return slot >= 0 && !(changes && isReadOnly(widget));
}

void perform(QWidget* widget, const QByteArray& command) {
    // The one command that is no slot.
    if (auto* field = qobject_cast<QLineEdit*>(widget); field != nullptr && command == "del") {
        field->del();
        return;
    }
    QMetaObject::invokeMethod(widget, command.constData());
}

}  // namespace

StandardActions::StandardActions(QObject* parent) : QObject(parent) {}

void StandardActions::connectAction(QAction* action, const char* command, QMenu* menu) {
    const QByteArray name = command;
    connect(action, &QAction::triggered, this, [name] {
        QWidget* focus = QApplication::focusWidget();
        if (canPerform(focus, name)) {
            perform(focus, name);
        }
    });
    connect(menu, &QMenu::aboutToShow, action,
            [action, name] { action->setEnabled(canPerform(QApplication::focusWidget(), name)); });
    // Keys reach the command also while the menu is closed, whatever it last showed.
    connect(
        menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); },
        Qt::QueuedConnection);
}
