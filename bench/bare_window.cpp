#include <QListWidget>

#include "first_paint.h"

/// The floor of a start: a window with a list of one row, so that the fonts of the system are
/// needed as in every window with a text.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const FirstPaint firstPaint;
    QMainWindow window;
    auto* list = new QListWidget;
    list->addItem(QStringLiteral("Item"));
    window.setCentralWidget(list);
    window.resize(840, 540);  // as large as the program's
    window.show();
    return QApplication::exec();
}
