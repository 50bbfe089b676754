#include <QMainWindow>

#include "app/view_controller.h"
#include "controls/rd_custom_button.h"
#include "password/rd_password_view_controller.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "state/preference_keys.h"
#include "state/readings.h"
#include "state/user_defaults.h"
#include "ui_Main.h"

namespace {

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

bool ViewController::canEditorItem() const {
    if (isPasswordStored() && integerReading(stored(requirePasswordKey)) == 1) {
        return canReSetRequirtPassword_;
    }
    return true;
}

void ViewController::require_password(RdCustomButton* sender) {
    if (!isPasswordStored()) {
        auto* dialog = new RDPasswordViewController(window_);
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

void ViewController::inputRequire_password(RdCustomButton* sender) {
    auto* dialog = new RDPasswordViewController(window_);
    dialog->yanzheng = true;
    if (sender != nullptr) {
        sender->setOn(1);
        sender->setState(1);
    }
    presentAsModalWindow(dialog);
}

void ViewController::changePasswordMeunItem(const Notification& /*notification*/) {
    auto* dialog = new RDPasswordViewController(window_);
    dialog->setPassword = true;
    dialog->setNewPassword = isPasswordStored();
    presentAsModalWindow(dialog);
}

void ViewController::promptAtLaunch() {
    // Whoever pressed the protection switch meanwhile has been asked, or is being asked, already.
    if (!canEditorItem() && window_->findChild<RDPasswordViewController*>() == nullptr) {
        inputRequire_password(nullptr);
    }
}

void ViewController::presentAsModalWindow(RDPasswordViewController* dialog) {
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->viewDidLoad();
    Application::presentOver(dialog, window_);
}

void ViewController::changePassword(const Notification& notification) {
    const QVariant typed = notification.userInfo.value(QStringLiteral("passwordvalue"));
    if (flag(notification, "save")) {
        // Saving a password always turns protection on.
        ui_.requirePassword->setState(1);
        storeProtection(true);
        ui_.passwordMeunItem->setText(
            Bundle::localizedString(QStringLiteral("inPasswordMeunItem"), QStringLiteral("Main")));
    } else if (const QString password = storedPassword();
               !password.isNull() && password == typed.toString()) {
        loadList();
    }
    Log::line(QStringLiteral("password:") + Log::describe(typed));
}

void ViewController::yanzhengPassword(const Notification& notification) {
    const QVariant required = stored(requirePasswordKey);
    if (flag(notification, "yanzheng") && flag(notification, "save")) {
        canReSetRequirtPassword_ = true;
        ui_.fileListView->setCanDragDrop(true);
        storeProtection(ui_.requirePassword->state() != 0);
        // A window that is unlocked without its list having been loaded would show an empty list,
        // and the next change would store it in place of the real one.
        if (!ui_.fileListView->isLoaded()) {
            loadList();
        }
    } else {
        canReSetRequirtPassword_ = false;
        ui_.fileListView->setCanDragDrop(false);
        ui_.requirePassword->setOn(integerReading(required));
        ui_.requirePassword->setState(integerReading(required));
    }
    updatePasswordCommand();
}

void ViewController::updatePasswordCommand() {
    // Changing the password asks for no old one: while the list is locked, anyone could set a new
    // password and be in.
    ui_.passwordMeunItem->setEnabled(canEditorItem());
}
