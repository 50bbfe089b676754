#include <QMainWindow>

#include "app/app_delegate.h"
#include "app/view_controller.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "platform/standard_actions.h"
#include "platform/workspace.h"
#include "preferences/rd_two_window_controller.h"
#include "state/preference_keys.h"
#include "ui_Main.h"

namespace {

QString mainText(const char* key) {
    return Bundle::localizedString(QLatin1String(key), QStringLiteral("Main"));
}

}  // namespace

void ViewController::addNotification() {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    namespace names = notification_names;
    center.addObserver(this, &ViewController::revealInFinderMenuItem, names::revealInFinder);
    center.addObserver(this, &ViewController::showOrHideInfomation, names::showOrHideInformation);
    center.addObserver(this, &ViewController::changePassword, names::changePassword);
    center.addObserver(this, &ViewController::yanzhengPassword, names::verifyPassword);
    center.addObserver(this, &ViewController::addmeaunItem, names::addItem);
    center.addObserver(this, &ViewController::hidemeaunItem, names::hideItem);
    center.addObserver(this, &ViewController::openmeaunItem, names::openItem);
    center.addObserver(this, &ViewController::removemeaunItem, names::removeItem);
    center.addObserver(this, &ViewController::closemeaunItem, names::closeItem);
    center.addObserver(this, &ViewController::changePasswordMeunItem, names::changePasswordItem);
}

void ViewController::addLocal() {
    // The menus never enable or disable their items by themselves here: the program does.
    appDelegate_ = &delegate_;
    setMenuTitles();
    setMenuKeys();
    connectStandardActions();
}

void ViewController::setMenuTitles() {
    const std::pair<QMenu*, const char*> menus[] = {
        {ui_.file, "fileTitle"},     {ui_.edit, "editTitle"}, {ui_.view, "viewTitle"},
        {ui_.window, "windowTitle"}, {ui_.help, "helpTitle"},
    };
    for (const auto& [menu, key] : menus) {
        menu->setTitle(mainText(key));
    }
    const std::pair<QAction*, const char*> items[] = {
        {ui_.hideMenuItem, "hideMenuItem"},
        {ui_.addMenuItem, "addMenuItem"},
        {ui_.openMenuItem, "openMenuItem"},
        {ui_.removeMenuItem, "removeMenuItem"},
        {ui_.closeMenuItem, "closeMenuItem"},
        {ui_.revealInFinderMenuItem, "revealInFinderMenuItem"},
        {ui_.aboutVelmoraMenuItem, "aboutVelmoraMenuItem"},
        {ui_.preferenceMenuItem, "preferenceMenuItem"},
        {ui_.checkforUpdatesMenuItem, "checkforUpdatesMenuItem"},
        {ui_.hideVelmoraMenuItem, "hideVelmoraMenuItem"},
        {ui_.hideOthersMenuItem, "hideOthersMenuItem"},
        {ui_.showAllMenuItem, "showAllMenuItem"},
        {ui_.quitVelmoraMenuItem, "quitVelmoraMenuItem"},
        {ui_.serviceMenuItem, "serviceMenuItem"},
        {ui_.undoMenuItem, "undo"},
        {ui_.redoMenuItem, "redo"},
        {ui_.cutMenuItem, "cut"},
        {ui_.copysMenuItem, "copy"},
        {ui_.pasteMenuItem, "paste"},
        {ui_.deleteMenuItem, "delete"},
        {ui_.selectAllMenuItem, "selectAll"},
        {ui_.hideInfoMenuItem, "hideInfo"},
        {ui_.minimizeMenuItem, "minimize"},
        {ui_.zoomMenuItem, "zoom"},
        {ui_.bringAllToFrontMenuItem, "bringAllToFront"},
        {ui_.velmoraHelpMenuItem, "velmoraHelp"},
        {ui_.licenseAgreementMenuItem, "licenseAgreement"},
        {ui_.ackNowleDgmentsMenuItem, "ackNowleDgments"},
    };
    for (const auto& [item, key] : items) {
        item->setText(mainText(key));
    }
    setPasswordItemTitle();
}

void ViewController::setPasswordItemTitle() {
    const bool stored = !storedPassword().isEmpty();
    ui_.passwordMeunItem->setText(mainText(stored ? "inPasswordMeunItem" : "unPasswordMeunItem"));
}

void ViewController::setMenuKeys() {
    // Each system's own keys. Close has none: it does nothing, on purpose.
    const std::pair<QAction*, QKeySequence> keys[] = {
        {ui_.addMenuItem, QKeySequence::Open},
        {ui_.hideMenuItem, QKeySequence(Qt::CTRL | Qt::Key_H)},
        {ui_.openMenuItem, QKeySequence(Qt::CTRL | Qt::Key_Return)},
        {ui_.revealInFinderMenuItem, QKeySequence(Qt::CTRL | Qt::Key_R)},
        {ui_.removeMenuItem, QKeySequence::Delete},
        {ui_.preferenceMenuItem, QKeySequence(Qt::CTRL | Qt::Key_Comma)},
        {ui_.quitVelmoraMenuItem, QKeySequence(Qt::CTRL | Qt::Key_Q)},
        {ui_.undoMenuItem, QKeySequence::Undo},
        {ui_.redoMenuItem, QKeySequence::Redo},
        {ui_.cutMenuItem, QKeySequence::Cut},
        {ui_.copysMenuItem, QKeySequence::Copy},
        {ui_.pasteMenuItem, QKeySequence::Paste},
        {ui_.selectAllMenuItem, QKeySequence::SelectAll},
        {ui_.hideInfoMenuItem, QKeySequence(Qt::CTRL | Qt::Key_I)},
        {ui_.minimizeMenuItem, QKeySequence(Qt::CTRL | Qt::Key_M)},
        {ui_.velmoraHelpMenuItem, QKeySequence::HelpContents},
    };
    for (const auto& [item, key] : keys) {
        item->setShortcut(key);
    }
}

void ViewController::connectStandardActions() {
    auto* standard = new StandardActions(this);
    const std::pair<QAction*, const char*> commands[] = {
        {ui_.undoMenuItem, "undo"},
        {ui_.redoMenuItem, "redo"},
        {ui_.cutMenuItem, "cut"},
        {ui_.copysMenuItem, "copy"},
        {ui_.pasteMenuItem, "paste"},
        {ui_.deleteMenuItem, "del"},
        {ui_.selectAllMenuItem, "selectAll"},
    };
    for (const auto& [item, command] : commands) {
        standard->connectAction(item, command, ui_.edit);
    }
    connect(ui_.minimizeMenuItem, &QAction::triggered, window_, &QWidget::showMinimized);
    connect(ui_.zoomMenuItem, &QAction::triggered, window_,
            [this] { window_->isMaximized() ? window_->showNormal() : window_->showMaximized(); });
    connect(ui_.bringAllToFrontMenuItem, &QAction::triggered, window_, [this] {
        window_->raise();
        window_->activateWindow();
    });
    // Quitting takes the same path as the close button.
    connect(ui_.quitVelmoraMenuItem, &QAction::triggered, window_, &QWidget::close);
}

void ViewController::settingButtonTouch() {
    RDTwoWindowController controller;
    Application::runModalForWindow(controller.window());
}

void ViewController::addmeaunItem(const Notification& /*notification*/) {
    addfileList(nullptr);
}

void ViewController::hidemeaunItem(const Notification& /*notification*/) {
    touchSwitch(ui_.switchButton);
}

void ViewController::openmeaunItem(const Notification& /*notification*/) {
    Workspace::shared().openFile(selectPath_);
}

void ViewController::removemeaunItem(const Notification& /*notification*/) {
    DragDropView* list = ui_.fileListView;
    const int row = list->selectRowIndex();
    // Before anything is stored: on a list that was never loaded this would store an empty one.
    if (row < 0 || row >= list->count()) {
        return;
    }
    list->removeRecord(row);
    list->reloadData();
    list->storeFileLists();
    if (list->selectRowIndex() >= list->count()) {
        list->setSelectRowIndex(static_cast<int>(list->count()) - 1);
        list->tableView()->reloadData();
    }
    if (list->count() == 0) {
        for (QAction* item : {ui_.openMenuItem, ui_.revealInFinderMenuItem, ui_.removeMenuItem}) {
            item->setEnabled(false);
        }
    }
}

void ViewController::revealInFinderMenuItem(const Notification& /*notification*/) {
    Workspace::shared().selectFile(selectPath_);
}

void ViewController::closemeaunItem(const Notification& /*notification*/) {
    // Empty on purpose: the Close command has no effect.
}
