#include <QApplication>
#include <QListWidget>
#include <QMainWindow>

#include "first_paint.h"

/// The floor of a start: a window with one list widget. With "--text" the list has one row, so that
/// the fonts of the system are needed as in every window with a text.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const FirstPaint firstPaint(QCoreApplication::arguments());
    QMainWindow window;
    auto* list = new QListWidget;
    if (QCoreApplication::arguments().contains(QStringLiteral("--text"))) {
        list->addItem(QStringLiteral("Item"));
    }
    window.setCentralWidget(list);
    window.resize(840, 540);  // as large as the program's
    window.show();
    return QApplication::exec();
}
