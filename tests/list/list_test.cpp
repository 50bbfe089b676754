#include <QMimeData>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include "controls/pane_button.h"
#include "list/drag_drop_view.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/geometry.h"
#include "platform/notification_center.h"
#include "sandbox.h"
#include "state/preference_keys.h"

/// The list view with its header, rows and drops, driven through real events.
class ListTest final : public QObject {
    Q_OBJECT

private:
    struct Fixture {
        explicit Fixture(const QStringList& names) : paths(sandbox.makeFiles(names)) {
            sandbox.storeList(paths);
            view.resize(400, 400);
            view.setDelegate(&delegate);
            view.setCanDragDrop(true);
            view.setFileLists(sandbox.defaults().itemList());
            view.topViw()->activateLeftButton();
            view.selectTableViewCellForRowIndex(0);
            view.show();
            delegate.take();
        }
        DragDropTableView* table() { return view.tableView(); }
        QPoint inRow(int row, int x = 60) { return {x, row * table()->rowHeight() + 20}; }
        void click(int row) {
            QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, inRow(row));
        }
        void hover(int row, int x) {
            const QPoint at = inRow(row, x);
            QMouseEvent move(QEvent::MouseMove, at, table()->viewport()->mapToGlobal(at),
                             Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(table()->viewport(), &move);
        }
        QString shown() { return Sandbox::describe(view.fileLists().value_or(ItemList())); }

        Sandbox sandbox;
        RecordingDelegate delegate;
        QStringList paths;
        DragDropView view;
    };

private slots:
    void initTestCase() { Bundle::loadTranslations(); }

    void reportsTheRowThatIsChosen() {
        Fixture f({"a", "b", "c"});
        f.click(1);
        QCOMPARE(f.delegate.take(), QStringList{"b"});
        f.click(1);  // nothing changes, nothing is reported
        QCOMPARE(f.delegate.take(), QStringList());
        QTest::keyClick(f.table(), Qt::Key_End);
        f.click(6);  // below the last row
        QCOMPARE(f.delegate.take(), QStringList({"c", "a"}));
        QCOMPARE(f.view.selectRowIndex(), 0);

        f.view.selectTableViewCellForRowIndex(9);  // unchecked, and not reported
        QCOMPARE(f.view.selectRowIndex(), 9);
        f.view.addFileList({});
        QCOMPARE(f.delegate.take(), QStringList({"c", "c"}));
        f.view.addFileList({ItemRecord::forPath(f.paths.first(), VisibleForm::NumberOne)});
        QCOMPARE(f.delegate.take(), QStringList({"a", "a"}));
        QCOMPARE(f.sandbox.stored(), QString("a:\"1\" b:\"1\" c:\"1\" a:1"));
    }

    void reportsRemovalsOnlyWhereTheCurrentRowIsConcerned() {
        Fixture f({"a", "b", "c", "d", "e", "f"});
        const auto remove = [&f](int current, int removed) {
            f.view.selectTableViewCellForRowIndex(current);
            f.delegate.take();
            f.hover(removed, 380);
            f.sandbox.log();
            const QString path = f.view.fileLists()->at(removed).filePath();
            QTest::mouseClick(f.table()->deletedButton(), Qt::LeftButton);
            return f.sandbox.log() == QStringList{"delated:" + path}
                       ? f.delegate.take().join(u' ') + QString::number(f.view.selectRowIndex())
                       : "not logged";
        };
        QCOMPARE(remove(1, 1), QString("c1"));  // the current row, with others behind it
        QCOMPARE(remove(4, 3), QString("f3"));  // before the last row, which is current
        QCOMPARE(remove(2, 0), QString("2"));   // before the current row
        QCOMPARE(remove(0, 2), QString("0"));   // behind it
        QCOMPARE(remove(1, 1), QString("0"));   // the current row, which is the last
        QCOMPARE(f.sandbox.stored(), QString("c:\"1\""));
        QCOMPARE(remove(0, 0), QString("nil-1"));
        QCOMPARE(f.sandbox.stored(), QString());
    }

    void hoverOffersWhatTheItemAllows() {
        Fixture f({"a", "b"});
        ItemRecord hidden = f.view.fileLists()->at(1);
        hidden.setVisible(VisibleForm::StringZero);
        f.view.replaceRecord(1, hidden);
        f.view.reloadData();
        f.hover(0, 200);
        QVERIFY(f.table()->checkButton()->isVisible() && f.table()->deletedButton()->isVisible());
        QVERIFY(f.table()->checkButton()->y() < f.table()->deletedButton()->y());
        f.hover(1, 200);
        QVERIFY(!f.table()->checkButton()->isVisible() && f.table()->deletedButton()->isVisible());
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(f.table()->viewport(), &leave);
        QVERIFY(!f.table()->deletedButton()->isVisible());
    }

    void sortsByTitleFromBothButtonsWithoutStoring() {
        Fixture f({"b", "C", "a"});
        TopView* header = f.view.topViw();
        QTest::mouseClick(header->leftButton(), Qt::LeftButton);  // active: flips to ascending
        QCOMPARE(f.shown(), QString("C:\"1\" a:\"1\" b:\"1\""));
        QTest::mouseClick(header->rightButton(), Qt::LeftButton);  // inactive: does not flip
        QCOMPARE(f.shown(), QString("b:\"1\" a:\"1\" C:\"1\""));
        QVERIFY(header->leftButton()->isPaixuImageHidden());
        QTest::mouseClick(header->rightButton(), Qt::LeftButton);
        QVERIFY(header->rightButton()->on());
        QCOMPARE(f.delegate.take(), QStringList());
        QCOMPARE(f.sandbox.stored(), QString("b:\"1\" C:\"1\" a:\"1\""));
        drop(f.view, {f.sandbox.makeFile("d")});  // any write carries the order
        QCOMPARE(f.sandbox.stored(), QString("C:\"1\" a:\"1\" b:\"1\" d:\"1\""));
        QCOMPARE(fromBottomLeft({0, 1, 80, 30}, 30), QRect(0, -1, 80, 30));
    }

    void takesDrops() {
        Fixture f({"a", "b", "c"});
        f.click(1);
        f.delegate.take();
        const QStringList fresh = f.sandbox.makeFiles({"d", "e"});
        f.sandbox.log();
        drop(f.view, {fresh.at(0), fresh.at(1), fresh.at(1), f.sandbox.folder() + "/files/"});
        QCOMPARE(f.sandbox.stored(),
                 QString("a:\"1\" b:\"1\" c:\"1\" d:\"1\" e:\"1\" files:\"1\""));
        QVERIFY(f.sandbox.log().first().startsWith(">>> ({filePath = "));
        QCOMPARE(f.delegate.take(), QStringList{"b"});  // the table's selection survives
        QCOMPARE(f.view.selectRowIndex(), 1);

        f.view.setCanDragDrop(false);
        drop(f.view, {f.sandbox.makeFile("f")});
        f.view.setCanDragDrop(true);
        QMimeData promised;
        promised.setData("application/x-promise", "f");
        QVERIFY(f.view.prepareForDragOperation(&promised));
        QCOMPARE(f.view.draggingEntered(&promised), Qt::CopyAction);
        QCOMPARE(f.view.count(), 6);
        QCOMPARE(f.delegate.take(), QStringList());
    }

    void refusesAddressesThatAreNoPlacesHere() {
        Fixture f({"a"});
        QSignalSpy refused(&f.view, &DragDropView::dropRefused);
        QMimeData odd;
        odd.setData("text/uri-list",
                    "file:///tmp/cut%00short\r\nfile:relative\r\nfile:~/x\r\n"
                    "file://elsewhere.invalid/tmp\r\nhttp://x/y\r\nfile:///%FF\r\n");
        QVERIFY(f.view.prepareForDragOperation(&odd));
        QCOMPARE(f.view.count(), 1);
        QVERIFY(!refused.at(0).at(0).toString().isEmpty());
        drop(f.view, {f.sandbox.makeFile("b")});
        QCOMPARE(f.sandbox.stored(), QString("a:\"1\" b:\"1\""));
        QCOMPARE(refused.at(1).at(0).toString(), QString());
    }

    void failsOnADropOfAPathWithRecordsBehindIt() {
        Fixture f({"a", "b", "c"});
        f.view.addFileList({ItemRecord::forPath(f.paths.at(0), VisibleForm::StringOne)});
        f.delegate.take();
        const QString before = f.sandbox.stored();
        f.sandbox.log();
        QSignalSpy reported(qApp, SIGNAL(exceptionReported()));
        drop(f.view, {f.sandbox.makeFile("d"), f.paths.at(0), f.sandbox.makeFile("e")});
        QCOMPARE(f.shown(), QString("b:\"1\" c:\"1\" d:\"1\""));  // every equal record is gone
        QCOMPARE(f.sandbox.stored(), before);
        QCOMPARE(f.delegate.take(), QStringList());
        QVERIFY(f.sandbox.log().join(u'\n').contains("uncaught exception"));
        QTRY_COMPARE(reported.count(), 1);
        drop(f.view, {f.sandbox.folder() + "/files/d"});  // the last one: replaced
        QCOMPARE(f.sandbox.stored(), QString("b:\"1\" c:\"1\" d:\"1\""));
    }

    void fillsInTheColumnsOfATableFromAnInterfaceFile() {
        DragDropTableView table;
        table.tableColumns().append(TableColumn());
        table.initWithInterfaceFile();
        QCOMPARE(table.tableColumns().size(), 2);
        QCOMPARE(table.tableColumns().first().width, 265);
        QCOMPARE(table.tableColumns().last().identifier, QString("2"));
        QCOMPARE(table.tableColumns().last().title, QString("statues"));
    }
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    ListTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "list_test.moc"
