#pragma once

#include <QObject>

#include "app/menu_outlets.h"

/// The application's delegate: it owns the menu outlets and turns each menu command into a
/// notification that the main view controller handles, or into a window of its own.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(const MenuOutlets& outlets, QObject* parent = nullptr);

    const MenuOutlets& outlets() const { return outlets_; }

    void addmeaunItem_touch(QAction* sender);
    void hidemeaunItem_touch(QAction* sender);
    void openmeaunItem_touch(QAction* sender);
    void removemeaunItem_touch(QAction* sender);
    void revealInFinderMenuItem_touch(QAction* sender);
    void closemeaunItem_touch(QAction* sender);
    /// Flips the item's check mark and posts whether the information is to be hidden; the state is
    /// read before it flips.
    void hide_info(QAction* sender);
    void changePasswordAction(QAction* sender);
    void preferencesAction(QAction* sender);
    void ordeAboutPanelAction(QAction* sender);
    void ackNowleDgments_touch(QAction* sender);
    void licenseAgreement_touch(QAction* sender);
    /// Shows the fixed notice; nothing is fetched and no version compared.
    void checkForUpdates(QAction* sender);
    /// Opens the guide in the user's browser.
    void help(QAction* sender);

    // Start-up is the view controller's work and quitting the window controller's; these stay
    // empty.
    void applicationDidFinishLaunching() {}
    void applicationWillTerminate() {}
    void applicationWillUnhide() {}
    void applicationDidResignActive() {}
    void applicationDidHide() {}
    void removeItem(QAction* /*sender*/) {}

private:
    void connectActions();

    MenuOutlets outlets_;
};
