#pragma once

#include <QTest>

#include "app/main_window.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "sandbox.h"
#include "ui_Main.h"

/// The main function of a test of widgets.
template <typename Test>
int run(int argc, char** argv) {
    Application application(argc, argv);
    Bundle::loadTranslations();
    Test test;
    return QTest::qExec(&test, argc, argv);
}

/// The main window as the program builds it.
struct Window {
    Window() : ui(main.outlets()) {
        main.load();
        main.show();
    }
    DragDropView* list() { return ui.fileListView; }
    void press(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void choose(QAction* item) {
        QVERIFY2(item->isEnabled(), qPrintable(item->text()));
        item->trigger();
    }

    MainWindow main;
    const Ui::Main& ui;
};

/// A sandbox with these files, which its list holds.
struct Stored : Sandbox {
    explicit Stored(const QStringList& names) : paths(makeFiles(names)) { storeList(paths); }

    QStringList paths;
};

/// The main window with these files in the list.
struct ListWindow : Stored, Window {
    using Stored::Stored;
};
