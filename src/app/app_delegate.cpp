#include "app/app_delegate.h"

#include <QAction>
#include <QApplication>
#include <QMessageBox>

#include "app/about_panel_controller.h"
#include "app/help_address.h"
#include "app/rd_show_message_text_window_controller.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "platform/workspace.h"
#include "preferences/rd_two_window_controller.h"

namespace {

void post(const QString& name, const QVariantMap& userInfo = {}) {
    NotificationCenter::defaultCenter().postNotification(name, userInfo);
}

void showDocument(bool licenseAgreement) {
    RDShowMessageTextWindowController controller;
    controller.licenseAgreement = licenseAgreement;
    controller.ackNowleDgments = !licenseAgreement;
    controller.runModal();
}

}  // namespace

AppDelegate::AppDelegate(const MenuOutlets& outlets, QObject* parent)
    : QObject(parent), outlets_(outlets) {
    connectActions();
}

void AppDelegate::connectActions() {
    using Command = void (AppDelegate::*)(QAction*);
    const std::pair<QAction*, Command> commands[] = {
        {outlets_.hideMenuItem, &AppDelegate::hidemeaunItem_touch},
        {outlets_.openMenuItem, &AppDelegate::openmeaunItem_touch},
        {outlets_.removeMenuItem, &AppDelegate::removemeaunItem_touch},
        {outlets_.revealInFinderMenuItem, &AppDelegate::revealInFinderMenuItem_touch},
        {outlets_.closeMenuItem, &AppDelegate::closemeaunItem_touch},
        {outlets_.velmoraHelpMenuItem, &AppDelegate::help},
    };
    const std::pair<QAction*, Command> windows[] = {
        {outlets_.addMenuItem, &AppDelegate::addmeaunItem_touch},
        {outlets_.passwordMeunItem, &AppDelegate::changePasswordAction},
        {outlets_.preferenceMenuItem, &AppDelegate::preferencesAction},
        {outlets_.aboutVelmoraMenuItem, &AppDelegate::ordeAboutPanelAction},
        {outlets_.ackNowleDgmentsMenuItem, &AppDelegate::ackNowleDgments_touch},
        {outlets_.licenseAgreementMenuItem, &AppDelegate::licenseAgreement_touch},
        {outlets_.checkforUpdatesMenuItem, &AppDelegate::checkForUpdates},
    };
    for (const auto& entry : commands) {
        connect(entry.first, &QAction::triggered, this,
                [this, entry] { (this->*entry.second)(entry.first); });
    }
    // Queued, so that assistive technology that chooses one of these is answered before the window
    // opens, and not only when it is closed. Of two that are chosen at once only the first opens.
    for (const auto& entry : windows) {
        connect(
            entry.first, &QAction::triggered, this,
            [this, entry] {
                if (QApplication::activeModalWidget() == nullptr) {
                    (this->*entry.second)(entry.first);
                }
            },
            Qt::QueuedConnection);
    }
    // Qt has flipped the check mark before it reports the choice; give hide_info() the state that
    // the user saw.
    connect(outlets_.hideInfoMenuItem, &QAction::triggered, this, [this](bool flipped) {
        outlets_.hideInfoMenuItem->setChecked(!flipped);
        hide_info(outlets_.hideInfoMenuItem);
    });
}

void AppDelegate::addmeaunItem_touch(QAction* /*sender*/) {
    post(notification_names::addItem, {{QStringLiteral("add"), true}});
}

void AppDelegate::hidemeaunItem_touch(QAction* /*sender*/) {
    post(notification_names::hideItem);
}

void AppDelegate::openmeaunItem_touch(QAction* /*sender*/) {
    post(notification_names::openItem);
}

void AppDelegate::removemeaunItem_touch(QAction* /*sender*/) {
    post(notification_names::removeItem);
}

void AppDelegate::revealInFinderMenuItem_touch(QAction* /*sender*/) {
    post(notification_names::revealInFinder);
}

void AppDelegate::closemeaunItem_touch(QAction* /*sender*/) {
    post(notification_names::closeItem);
}

void AppDelegate::hide_info(QAction* sender) {
    const bool hidden = sender->isChecked();
    sender->setChecked(!hidden);
    post(notification_names::showOrHideInformation, {{QStringLiteral("hidden"), hidden}});
}

void AppDelegate::changePasswordAction(QAction* /*sender*/) {
    post(notification_names::changePasswordItem);
}

void AppDelegate::preferencesAction(QAction* /*sender*/) {
    RDTwoWindowController controller;
    controller.setting = true;
    controller.settingH = true;
    controller.runModal();
}

void AppDelegate::ordeAboutPanelAction(QAction* /*sender*/) {
    AboutPanelController controller;
    controller.runModal();
}

void AppDelegate::ackNowleDgments_touch(QAction* /*sender*/) {
    showDocument(false);
}

void AppDelegate::licenseAgreement_touch(QAction* /*sender*/) {
    showDocument(true);
}

void AppDelegate::checkForUpdates(QAction* /*sender*/) {
    QMessageBox alert(QApplication::activeWindow());
    alert.setIcon(QMessageBox::Information);
    alert.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    alert.setText(QStringLiteral("You're up-to-date."));
    alert.setInformativeText(
        QStringLiteral("Velmora v1.5 is currently the newest version available."));
    alert.setStyleSheet(QStringLiteral("QLabel#qt_msgbox_informativelabel { min-width: 22em; }"));
    alert.exec();
}

void AppDelegate::help(QAction* /*sender*/) {
    Workspace::shared().openUrl(helpAddress());
}
