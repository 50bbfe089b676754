#include <QApplication>
#include <QListWidget>
#include <QMainWindow>

#include "first_paint.h"

/// The floor of a start: a window with one list widget.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const FirstPaint firstPaint(QCoreApplication::arguments());
    QMainWindow window;
    window.setCentralWidget(new QListWidget);
    window.resize(780, 540);
    window.show();
    return QApplication::exec();
}
