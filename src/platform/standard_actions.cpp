#include "platform/standard_actions.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QWidget>

namespace {

bool isReadOnly(const QWidget* widget) {
    const QVariant readOnly = widget->property("readOnly");
    return readOnly.isValid() && readOnly.toBool();
}

QStringList editCommands(const QWidget* widget) {
    return widget->property("editCommands").toStringList();
}

// Of what is neither a text field nor names its commands none is asked, also where it has one of
// them as a slot (a list can select all, but not copy).
bool canPerform(const QWidget* widget, const QByteArray& command) {
    if (widget != nullptr && editCommands(widget).contains(QLatin1String(command))) {
        return true;
    }
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

StandardActions::StandardActions(QObject* parent) : QObject(parent) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (qobject_cast<QMenuBar*>(now) == nullptr) {
            focus_ = now;
        }
    });
}

QWidget* StandardActions::performer(const QByteArray& command) const {
    for (QWidget* widget = focus_; widget != nullptr; widget = widget->parentWidget()) {
        if (editCommands(widget).contains(QLatin1String(command))) {
            return widget;
        }
    }
    return focus_;
}

void StandardActions::connectAction(QAction* action, const char* command, QMenu* menu) {
    const QByteArray name = command;
    connect(action, &QAction::triggered, this, [this, name] {
        QWidget* const widget = performer(name);
        if (canPerform(widget, name)) {
            perform(widget, name);
        }
    });
    connect(menu, &QMenu::aboutToShow, action,
            [this, action, name] { action->setEnabled(canPerform(performer(name), name)); });
    // Keys reach the command also while the menu is closed, whatever it last showed.
    connect(
        menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); },
        Qt::QueuedConnection);
}
