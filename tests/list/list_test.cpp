#include <QClipboard>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>

#include "controls/looks.h"
#include "controls/pane_button.h"
#include "window.h"

/// The list view with its header, rows and drops, driven through real events.
class ListTest final : public QObject {
    Q_OBJECT

private:
    struct Fixture : Stored {
        explicit Fixture(const QStringList& names) : Stored(names) {
            view.resize(400, 400);
            view.setCanDragDrop(true);
            view.setFileLists(defaults().itemList());
            view.selectTableViewCellForRowIndex(0);
            view.show();
        }
        DragDropTableView* table() { return view.tableView(); }
        QPoint inRow(int row, int x = 60) { return {x, row * table()->rowHeight() + 20}; }
        void hover(int row, int x) {
            const QPoint at = inRow(row, x);
            QMouseEvent move(QEvent::MouseMove, at, at, Qt::NoButton, Qt::NoButton, {});
            QCoreApplication::sendEvent(table()->viewport(), &move);
        }

        DragDropView view;
    };

private slots:
    void showsWhereADragLands() {
        Fixture f({"a", "b"});
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile("/a")});
        for (const bool can : {true, false}) {
            f.view.setCanDragDrop(can);
            QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&f.view, &enter);
            const QImage picture = f.table()->viewport()->grab().toImage();
            const QColor expected = can ? focusColor : Qt::white;
            QCOMPARE(picture.pixelColor(f.inRow(2) - QPoint(0, 19)), expected);
            QCOMPARE(picture.pixelColor(1, 300), expected);
            QDragLeaveEvent leave;
            QCoreApplication::sendEvent(&f.view, &leave);
        }
    }

    void takesNoClickForAnotherRow() {
        Fixture f({"a", "b"});
        f.view.selectTableViewCellForRowIndex(1);
        QTest::mouseClick(f.table()->viewport(), Qt::RightButton, {}, f.inRow(6));
        QCOMPARE(f.view.selectRowIndex(), 1);
        QSignalSpy opened(f.table(), &DragDropTableView::doubleAction);
        f.hover(0, 390);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(f.table()->viewport(), &leave);
        QVERIFY(!f.table()->deletedButton()->isVisible());
        f.hover(0, 390);
        QTest::mouseClick(f.table()->deletedButton(), Qt::LeftButton);
        QTest::mouseDClick(f.table()->viewport(), Qt::LeftButton, {}, f.inRow(0, 390));
        QCOMPARE(opened.count(), 0);
    }

    void takesDrops() {
        Fixture f({"a", "b", "c"});
        const QStringList fresh = f.makeFiles({"d", "e"});
        f.log();
        f.view.resize(300, 150);
        drop(f.view, {fresh.at(0), fresh.at(1), fresh.at(1), f.folder() + "/files/"});
        const QRect last = f.table()->visualRect(f.table()->model()->index(5, 0));
        QVERIFY(f.table()->viewport()->rect().contains(last));
        QCOMPARE(f.stored(), QString("a:\"1\" b:\"1\" c:\"1\" d:\"1\" e:\"1\" files:\"1\""));
        QVERIFY(f.log().first().startsWith(">>> ({filePath = "));
        const QMimeData promised;
        QCOMPARE(f.view.draggingEntered(&promised), Qt::CopyAction);
    }

    void refusesAddressesThatAreNoPlacesHere() {
        Fixture f({"a"});
        QSignalSpy refused(&f.view, &DragDropView::happened);
        QMimeData odd;
        odd.setData("text/uri-list",
                    "file:///tmp/cut%00short\r\nfile:relative\r\nfile:~/x\r\n"
                    "file://elsewhere.invalid/tmp\r\nhttp://x/y\r\nfile:///%FF\r\n");
        QVERIFY(f.view.prepareForDragOperation(&odd));
        QCOMPARE(f.view.count(), 1);
        QVERIFY(!refused.at(0).at(0).toString().isEmpty());
        drop(f.view, {f.makeFile("b")});
        QCOMPARE(f.stored(), QString("a:\"1\" b:\"1\""));
        QCOMPARE(refused.at(1).at(0).toString(), QString());
    }

    void copiesAndPastesByTheRulesOfADrop() {
        Fixture f({"a b", "c"});
        f.view.setCanDragDrop(false);
        f.view.copy();
        QCOMPARE(f.view.editCommands(), QStringList{"copy"});
        const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(copied->text(), f.paths.at(0));
        QCOMPARE(copied->data("x-special/gnome-copied-files"),
                 "copy\n" + copied->urls().at(0).toEncoded());
        for (const int left : {2, 1, 2}) {  // closed; listed with another behind it; not listed
            f.view.paste();
            QCoreApplication::processEvents();
            QCOMPARE(f.view.count(), left);
            f.view.setCanDragDrop(true);
            QCOMPARE(f.view.editCommands(), QStringList({"copy", "paste"}));
        }
    }

    void paintsWhatTurnsTheDirectionOfWriting() {
        const auto painted = [](const QString& title) {
            ListCell cell;
            cell.setCellTitle(title);
            QImage picture(300, 40, QImage::Format_RGB32);
            QPainter painter(&picture);
            cell.drawRect(painter, picture.rect());
            return picture;
        };
        QCOMPARE(painted("a\u202Eb\n\u2066"), painted("a<U+202E>b <U+2066>"));
        QVERIFY(painted("a\u202Eb") != painted("ab"));
    }
};

int main(int argc, char** argv) {
    return run<ListTest>(argc, argv);
}

#include "list_test.moc"
