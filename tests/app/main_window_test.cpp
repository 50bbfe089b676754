#include <QLineEdit>

#include "platform/notification_center.h"
#include "state/preference_keys.h"
#include "window.h"

/// The main window while it is used.
class MainWindowTest final : public QObject {
    Q_OBJECT

private slots:
    void switchesTheCurrentItem() {
        ListWindow w({"a", "b"});
        w.list()->selectTableViewCellForRowIndex(1);
        const QStringList reset{"defaults|write|com.apple.finder|AppleShowAllFiles|NO",
                                "killall|Finder"};
        for (const char* says : {"YES\\n", "", "0", "\\377yes", "1"}) {  // only the word counts
            w.setCommand("defaults", QString("printf '%1'").arg(says));
            w.press(w.ui.switchButton);
            const QString change = w.ui.switchButton->on() ? "nohidden" : "hidden";
            QCOMPARE(w.commands(), QStringList{"defaults|read|com.apple.finder|AppleShowAllFiles"} +
                                       (QString(says).startsWith("YES") ? reset : QStringList()) +
                                       QStringList{"chflags|" + change + "|b"});
            QCOMPARE(w.told(), QStringList{"b"});
        }
    }

    void deletesOnlyWhereTheFocusIs() {
        ListWindow w({"a"});
        QLineEdit field("abc", &w.main.window());
        field.show();
        w.main.window().activateWindow();
        field.setFocus();
        QTRY_VERIFY(field.hasFocus());
        field.selectAll();
        w.choose(w.ui.deleteMenuItem);
        QCOMPARE(field.text(), QString());
        w.ui.switchButton->setFocus();
        QTest::keyClick(w.ui.switchButton, Qt::Key_Delete);
        QCOMPARE(w.list()->count(), 1);
    }

    void saysWhatBecameOfTheItem() {
        ListWindow w({"a"});
        const auto said = [&w] {
            w.press(w.ui.switchButton);
            return w.ui.quietLine->isVisible() ? w.ui.quietLine->text() : QString();
        };
        // The command of this test hides nothing.
        QCOMPARE(said(), QString("“a” is still visible: the change was not carried out."));
        write(w.folder() + "/files/.hidden", "A\n\na\nb");  // as a file manager reads it
        QCOMPARE(said(), QString("“a” is still hidden: the change was not carried out."));
        QCOMPARE(said(), QString());  // to be hidden, and it is
        QVERIFY(QFile::remove(w.paths.at(0)));
        QCOMPARE(said(), QString("“a” no longer exists."));
    }

    void showsDatesWithoutTheWeekday() {
        ListWindow w({"a"});
        for (const QLocale& locale : QLocale::matchingLocales(
                 QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
            QLocale::setDefault(locale);
            w.list()->reloadData();
            const QString date = w.ui.modifiedDescLabel->text();
            const QString weekday = locale.dayName(QDate::currentDate().dayOfWeek());
            QVERIFY2(!date.isEmpty() && !date.contains(weekday), qPrintable(date));
        }
        QLocale::setDefault(QLocale::system());
    }

    void storesNothingOverALockedList() {
        Stored sandbox({"a"});
        sandbox.defaults().setObject("x", passwordKey);
        sandbox.defaults().setObject("1", requirePasswordKey);
        Window w;
        w.main.delegate().removemeaunItem_touch(nullptr);
        w.main.delegate().addmeaunItem_touch(nullptr);
        w.list()->setCanDragDrop(true);
        drop(*w.list(), {sandbox.makeFile("b")});
        QCOMPARE(sandbox.stored(), QString("a:\"1\""));
    }

    void tellsWhatCannotBeSeen() {
        Stored sandbox({"a", "b", "c"});
        const QStringList& paths = sandbox.paths;
        write(sandbox.folder() + "/files/.hidden", "b");
        const auto told = [](Window& w) {
            return w.ui.quietLine->isVisible() ? w.ui.quietLine->text().section(u' ', 0, 4) : "";
        };
        Window w;
        drop(*w.list(), paths.mid(0, 1));
        QCOMPARE(told(w), QString("“a” was in the list"));
        w.list()->tableView()->selectRow(1);
        QCOMPARE(told(w), QString());
        sandbox.storeList(paths);
        setPreference(Preference::MakeVisibleAtLaunch, true);
        Window launched;
        QTRY_COMPARE(told(launched), QString("1 listed item could not"));
        sandbox.storeList(paths, VisibleForm::StringZero);
        setPreference(Preference::MakeVisibleAtLaunch, false);
        setPreference(Preference::MakeInvisibleOnQuit, true);
        Window again;
        QTRY_COMPARE(told(again), QString("2 listed items could not"));
    }

    void callsOnlyObserversThatAreThere() {
        struct Counter : QObject {
            void note(const Notification&) { ++calls; }
            int calls = 0;
        };
        auto& center = NotificationCenter::defaultCenter();
        Counter stays;
        center.addObserver(&stays, &Counter::note, "x");
        center.addObserver(std::make_unique<Counter>().get(), &Counter::note, "x");
        center.postNotification("x");
        center.removeObserver(&stays, "x");
        center.postNotification("x");
        QCOMPARE(stays.calls, 1);
    }
};

int main(int argc, char** argv) {
    return run<MainWindowTest>(argc, argv);
}

#include "main_window_test.moc"
