#include "app/main_menu.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

#include "app/menu_outlets.h"
#include "platform/bundle.h"
#include "platform/standard_actions.h"

namespace {

QString mainText(const char* key) {
    return Bundle::localizedString(QLatin1String(key), QStringLiteral("Main"));
}

}  // namespace

void titleMenus(const MenuOutlets& menu) {
    const std::pair<QMenu*, const char*> menus[] = {
        {menu.file, "fileTitle"},     {menu.edit, "editTitle"}, {menu.view, "viewTitle"},
        {menu.window, "windowTitle"}, {menu.help, "helpTitle"},
    };
    for (const auto& [submenu, key] : menus) {
        submenu->setTitle(mainText(key));
    }
    const std::pair<QAction*, const char*> items[] = {
        {menu.hideMenuItem, "hideMenuItem"},
        {menu.addMenuItem, "addMenuItem"},
        {menu.openMenuItem, "openMenuItem"},
        {menu.removeMenuItem, "removeMenuItem"},
        {menu.closeMenuItem, "closeMenuItem"},
        {menu.revealInFinderMenuItem, "revealInFinderMenuItem"},
        {menu.aboutVelmoraMenuItem, "aboutVelmoraMenuItem"},
        {menu.preferenceMenuItem, "preferenceMenuItem"},
        {menu.checkforUpdatesMenuItem, "checkforUpdatesMenuItem"},
        {menu.hideVelmoraMenuItem, "hideVelmoraMenuItem"},
        {menu.hideOthersMenuItem, "hideOthersMenuItem"},
        {menu.showAllMenuItem, "showAllMenuItem"},
        {menu.quitVelmoraMenuItem, "quitVelmoraMenuItem"},
        {menu.serviceMenuItem, "serviceMenuItem"},
        {menu.undoMenuItem, "undo"},
        {menu.redoMenuItem, "redo"},
        {menu.cutMenuItem, "cut"},
        {menu.copysMenuItem, "copy"},
        {menu.pasteMenuItem, "paste"},
        {menu.deleteMenuItem, "delete"},
        {menu.selectAllMenuItem, "selectAll"},
        {menu.hideInfoMenuItem, "hideInfo"},
        {menu.minimizeMenuItem, "minimize"},
        {menu.zoomMenuItem, "zoom"},
        {menu.bringAllToFrontMenuItem, "bringAllToFront"},
        {menu.velmoraHelpMenuItem, "velmoraHelp"},
        {menu.licenseAgreementMenuItem, "licenseAgreement"},
        {menu.ackNowleDgmentsMenuItem, "ackNowleDgments"},
    };
    for (const auto& [item, key] : items) {
        item->setText(mainText(key));
    }
}

void setMenuKeys(const MenuOutlets& menu) {
    const std::pair<QAction*, QKeySequence> keys[] = {
        {menu.addMenuItem, QKeySequence::Open},
        {menu.hideMenuItem, QKeySequence(Qt::CTRL | Qt::Key_H)},
        {menu.openMenuItem, QKeySequence(Qt::CTRL | Qt::Key_Return)},
        {menu.revealInFinderMenuItem, QKeySequence(Qt::CTRL | Qt::Key_R)},
        {menu.removeMenuItem, QKeySequence::Delete},
        {menu.preferenceMenuItem, QKeySequence(Qt::CTRL | Qt::Key_Comma)},
        {menu.quitVelmoraMenuItem, QKeySequence(Qt::CTRL | Qt::Key_Q)},
        {menu.undoMenuItem, QKeySequence::Undo},
        {menu.redoMenuItem, QKeySequence::Redo},
        {menu.cutMenuItem, QKeySequence::Cut},
        {menu.copysMenuItem, QKeySequence::Copy},
        {menu.pasteMenuItem, QKeySequence::Paste},
        {menu.selectAllMenuItem, QKeySequence::SelectAll},
        {menu.hideInfoMenuItem, QKeySequence(Qt::CTRL | Qt::Key_I)},
        {menu.minimizeMenuItem, QKeySequence(Qt::CTRL | Qt::Key_M)},
        {menu.velmoraHelpMenuItem, QKeySequence::HelpContents},
    };
    for (const auto& [item, key] : keys) {
        item->setShortcut(key);
    }
}

void keepRemoveKeyIn(QWidget& list, const MenuOutlets& menu) {
    menu.removeMenuItem->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    list.addAction(menu.removeMenuItem);
}

void openByKey(QMenuBar& bar, QMainWindow& window) {
    auto* key = new QShortcut(Qt::Key_F10, &window);
    QObject::connect(key, &QShortcut::activated, &bar,
                     [&bar] { bar.setActiveAction(bar.actions().constFirst()); });
}

void connectStandardCommands(const MenuOutlets& menu, QMainWindow& window) {
    auto* standard = new StandardActions(&window);
    const std::pair<QAction*, const char*> commands[] = {
        {menu.undoMenuItem, "undo"},
        {menu.redoMenuItem, "redo"},
        {menu.cutMenuItem, "cut"},
        {menu.copysMenuItem, "copy"},
        {menu.pasteMenuItem, "paste"},
        {menu.deleteMenuItem, "del"},
        {menu.selectAllMenuItem, "selectAll"},
    };
    for (const auto& [item, command] : commands) {
        standard->connectAction(item, command, menu.edit);
    }
    QObject::connect(menu.minimizeMenuItem, &QAction::triggered, &window, &QWidget::showMinimized);
    QObject::connect(menu.zoomMenuItem, &QAction::triggered, &window, [&window] {
        window.isMaximized() ? window.showNormal() : window.showMaximized();
    });
    QObject::connect(menu.bringAllToFrontMenuItem, &QAction::triggered, &window, [&window] {
        window.raise();
        window.activateWindow();
    });
    QObject::connect(menu.quitVelmoraMenuItem, &QAction::triggered, &window, &QWidget::close);
}
