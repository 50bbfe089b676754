#pragma once

class QAction;
class QMenu;
class QMenuBar;
namespace Ui {
class Main;
}

/// The menu bar, its menus and their items, as the interface file "Main" names them. Not owned: the
/// main window has them.
struct MenuOutlets {
    /// Those of a loaded interface file.
    explicit MenuOutlets(const Ui::Main& interface);

    QMenuBar* mainMenu;
    QMenu* velmora;
    QMenu* file;
    QMenu* edit;
    QMenu* view;
    QMenu* window;
    QMenu* help;
    QAction* passwordMeunItem;
    QAction* hideMenuItem;
    QAction* addMenuItem;
    QAction* openMenuItem;
    QAction* revealInFinderMenuItem;
    QAction* removeMenuItem;
    QAction* closeMenuItem;
    QAction* aboutVelmoraMenuItem;
    QAction* preferenceMenuItem;
    QAction* checkforUpdatesMenuItem;
    QAction* hideVelmoraMenuItem;
    QAction* hideOthersMenuItem;
    QAction* showAllMenuItem;
    QAction* quitVelmoraMenuItem;
    QAction* serviceMenuItem;
    QAction* undoMenuItem;
    QAction* redoMenuItem;
    QAction* cutMenuItem;
    QAction* copysMenuItem;
    QAction* pasteMenuItem;
    QAction* deleteMenuItem;
    QAction* selectAllMenuItem;
    QAction* hideInfoMenuItem;
    QAction* minimizeMenuItem;
    QAction* zoomMenuItem;
    QAction* bringAllToFrontMenuItem;
    QAction* ackNowleDgmentsMenuItem;
    QAction* velmoraHelpMenuItem;
    QAction* licenseAgreementMenuItem;
};
