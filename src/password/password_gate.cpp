#include "password/password_gate.h"

#include <QAction>
#include <QTimer>

#include "controls/rd_custom_button.h"
#include "list/drag_drop_view.h"
#include "password/rd_password_view_controller.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "state/preference_keys.h"
#include "state/readings.h"
#include "state/user_defaults.h"

namespace {

constexpr int promptDelay = 1000;  // milliseconds

QVariant stored(const QString& key) {
    return UserDefaults::standardUserDefaults().objectForKey(key);
}

bool isPasswordStored() {
    return !storedPassword().isEmpty();
}

void storeProtection(bool on) {
    UserDefaults::standardUserDefaults().setObject(on ? QStringLiteral("1") : QStringLiteral("0"),
                                                   requirePasswordKey);
}

bool flag(const Notification& notification, const char* key) {
    return truthReading(notification.userInfo.value(QLatin1String(key)));
}

}  // namespace

PasswordGate::PasswordGate(const Outlets& outlets, QObject* parent)
    : QObject(parent), outlets_(outlets) {}

bool PasswordGate::canEditorItem() const {
    if (!UserDefaults::standardUserDefaults().isRead()) {
        return false;
    }
    return !isProtected() || canReSetRequirtPassword_;
}

void PasswordGate::require_password(RdCustomButton* sender) {
    if (!isPasswordStored()) {
        RDPasswordViewController* const dialog = makeDialog();
        dialog->setPassword = true;
        sender->setState(0);
        sender->setOn(0);
        presentAsModalWindow(dialog);
    } else if (canReSetRequirtPassword_) {
        storeProtection(sender->state() != 0);
    } else {
        inputRequire_password(sender);
    }
}

void PasswordGate::inputRequire_password(RdCustomButton* sender) {
    RDPasswordViewController* const dialog = makeDialog();
    dialog->yanzheng = true;
    if (sender != nullptr) {
        sender->setOn(1);
        sender->setState(1);
    }
    presentAsModalWindow(dialog);
}

void PasswordGate::changePasswordMeunItem(const Notification& /*notification*/) {
    RDPasswordViewController* const dialog = makeDialog();
    dialog->setPassword = true;
    dialog->setNewPassword = isPasswordStored();
    presentAsModalWindow(dialog);
}

void PasswordGate::askSoon() {
    QTimer::singleShot(promptDelay, this, &PasswordGate::askNow);
}

void PasswordGate::askNow() {
    // Whoever pressed the protection switch meanwhile has been asked, or is being asked, already.
    if (!canEditorItem() && isPasswordStored() &&
        outlets_.window->findChild<RDPasswordViewController*>() == nullptr) {
        inputRequire_password(nullptr);
    }
}

RDPasswordViewController* PasswordGate::makeDialog() const {
    auto* dialog = new RDPasswordViewController(outlets_.window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

void PasswordGate::presentAsModalWindow(RDPasswordViewController* dialog) const {
    dialog->viewDidLoad();
    Application::presentOver(dialog, outlets_.window);
}

void PasswordGate::changePassword(const Notification& notification) {
    const QVariant typed = notification.userInfo.value(QStringLiteral("passwordvalue"));
    if (flag(notification, "save")) {
        // Saving a password always turns protection on.
        outlets_.requirePassword->setState(1);
        storeProtection(true);
        outlets_.passwordMeunItem->setText(
            Bundle::localizedString(QStringLiteral("inPasswordMeunItem"), QStringLiteral("Main")));
    } else if (const QString password = storedPassword();
               !password.isNull() && password == typed.toString()) {
        outlets_.fileListView->loadStoredList();
    }
    Log::line(QStringLiteral("password:") + Log::describe(typed));
}

void PasswordGate::yanzhengPassword(const Notification& notification) {
    const QVariant required = stored(requirePasswordKey);
    if (flag(notification, "yanzheng") && flag(notification, "save")) {
        canReSetRequirtPassword_ = true;
        outlets_.fileListView->setCanDragDrop(true);
        storeProtection(outlets_.requirePassword->state() != 0);
        // A window that is unlocked without its list having been loaded would show an empty list,
        // and the next change would store it in place of the real one.
        if (!outlets_.fileListView->isLoaded()) {
            outlets_.fileListView->loadStoredList();
        }
    } else {
        canReSetRequirtPassword_ = false;
        outlets_.fileListView->setCanDragDrop(false);
        outlets_.requirePassword->setOn(integerReading(required));
        outlets_.requirePassword->setState(integerReading(required));
    }
    enableCommand();
}

void PasswordGate::titleCommand() const {
    outlets_.passwordMeunItem->setText(
        Bundle::localizedString(isPasswordStored() ? QStringLiteral("inPasswordMeunItem")
                                                   : QStringLiteral("unPasswordMeunItem"),
                                QStringLiteral("Main")));
}

void PasswordGate::enableCommand() {
    outlets_.passwordMeunItem->setEnabled(canEditorItem());
    emit changed();
}
