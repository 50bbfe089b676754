#include "password/rd_password_view_controller.h"

#include <QMessageBox>
#include <QPushButton>

#include "platform/bundle.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "state/preference_keys.h"
#include "state/user_defaults.h"
#include "ui_RDPasswordViewController.h"

namespace {

QString text(const char* key) {
    return Bundle::localizedString(QLatin1String(key), QStringLiteral("RDPasswordViewController"));
}

// Exact equality; a password that is not stored equals nothing, not even an empty text.
bool equalsStoredPassword(const QString& typed) {
    const QString stored = storedPassword();
    return !stored.isNull() && stored == typed;
}

void postChangePassword(const QVariantMap& userInfo) {
    NotificationCenter::defaultCenter().postNotification(notification_names::changePassword,
                                                         userInfo);
}

}  // namespace

RDPasswordViewController::RDPasswordViewController(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::RDPasswordViewController>()) {
    ui_->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    ui_->showPassword->setAppearance(PaneButton::Appearance::Framed);
    ui_->showPassword->setAccessibleName(tr("Show password"));
    ui_->showPassword->setToolTip(ui_->showPassword->accessibleName());
    connect(ui_->showPassword, &QAbstractButton::toggled, this,
            &RDPasswordViewController::showTypedText);
    showTypedText(false);
    connect(ui_->yanzhengSave, &QPushButton::clicked, this, &RDPasswordViewController::save);
    connect(ui_->yanzhengCancel, &QPushButton::clicked, this, &RDPasswordViewController::cancel);
}

RDPasswordViewController::~RDPasswordViewController() = default;

void RDPasswordViewController::showEvent(QShowEvent* event) {
    if (!loaded_) {
        viewDidLoad();
    }
    ui_->passwordFilde->setFocus(Qt::OtherFocusReason);
    QDialog::showEvent(event);
}

void RDPasswordViewController::viewDidLoad() {
    loaded_ = true;
    constexpr QSize pictureSize(64, 64);
    setWindowTitle(text("1.title"));
    ui_->yanzhengCancel->setText(text("cancelTitle"));
    ui_->yanzhengSave->setText(text("saveTitle"));
    ui_->appIconView->setPicture(Bundle::imageNamed(text("appImageName")), pictureSize);
    ui_->velmoraImageView->setPicture(Bundle::imageNamed(text("lockImageName")), pictureSize);
    ui_->passwordTitle->setText(text("1.labelTitle"));
    if (setPassword) {
        ui_->yanzhengSave->setText(text("1.alertButtonTitle"));
        if (setNewPassword) {
            setWindowTitle(text("1.titleChange"));
            ui_->passwordTitle->setText(text("1.labelTitlenew"));
        }
    } else if (!yanzheng) {
        ui_->yanzhengCancel->setVisible(true);
        ui_->yanzhengSave->setText(text("1.alertButtonTitle"));
        ui_->yanzhengSave->setDefault(true);
    } else {
        ui_->yanzhengSave->setText(text("1.alertButtonTitle"));
    }
    ui_->passwordHint->setText(hint());
    ui_->passwordFilde->setAccessibleName(ui_->passwordTitle->text());
    ui_->passwordFilde->setAccessibleDescription(hint());
}

QString RDPasswordViewController::hint() const {
    if (!setPassword) {
        return tr("Enter the password that you have set.");
    }
    return setNewPassword ? tr("The new password takes the place of the old one. From now on, only "
                               "this one unlocks the list.")
                          : tr("Choose a password. From now on, the list stays locked at each "
                               "start until you type it exactly as you do here.");
}

void RDPasswordViewController::showTypedText(bool shown) {
    ui_->passwordFilde->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
    ui_->showPassword->setIcon(
        Bundle::imageNamed(shown ? QStringLiteral("eye-closed") : QStringLiteral("eye")));
}

void RDPasswordViewController::save() {
    touchDownSave_ = true;
    if (!setPassword && yanzheng) {
        verify();
        return;
    }
    saveNewPassword();
    dismissController();
}

void RDPasswordViewController::saveNewPassword() {
    const QString typed = ui_->passwordFilde->text();
    if (typed.isEmpty()) {
        return;
    }
    QVariantMap userInfo{{QStringLiteral("passwordvalue"), typed},
                         {QStringLiteral("yanzheng"), yanzheng}};
    if (setPassword) {
        userInfo.insert(QStringLiteral("save"), true);
    }
    // The report goes out first; its observer does not read the stored password here.
    postChangePassword(userInfo);
    UserDefaults::standardUserDefaults().setObject(typed, passwordKey);
}

void RDPasswordViewController::verify() {
    const QString typed = ui_->passwordFilde->text();
    if (!equalsStoredPassword(typed)) {
        QMessageBox alert(this);
        alert.setIcon(QMessageBox::Warning);
        alert.setText(text("1.alertTitle"));
        alert.setInformativeText(u'\n' + text("1.messageContent"));
        alert.addButton(text("1.alertButtonTitle"), QMessageBox::AcceptRole);
        alert.setStyleSheet(
            QStringLiteral("QLabel#qt_msgbox_informativelabel { min-width: 18em; }"));
        alert.exec();
        ui_->passwordFilde->setFocus(Qt::OtherFocusReason);
        ui_->passwordFilde->selectAll();
        return;
    }
    postChangePassword({{QStringLiteral("passwordvalue"), typed}});
    dismissController();
}

void RDPasswordViewController::cancel() {
    QVariantMap userInfo{{QStringLiteral("passwordvalue"), ui_->passwordFilde->text()},
                         {QStringLiteral("yanzheng"), yanzheng}};
    if (setPassword) {
        userInfo.insert(QStringLiteral("changePassword"), setPassword);
    }
    postChangePassword(userInfo);
    dismissController();
}

void RDPasswordViewController::dismissController() {
    if (dismissed_) {
        return;
    }
    dismissed_ = true;
    viewWillDisappear();
    done(Accepted);
}

void RDPasswordViewController::viewWillDisappear() {
    NotificationCenter::defaultCenter().postNotification(
        notification_names::verifyPassword,
        {{QStringLiteral("yanzheng"), equalsStoredPassword(ui_->passwordFilde->text())},
         {QStringLiteral("save"), touchDownSave_}});
}
