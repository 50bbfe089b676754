#include <unistd.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include "app/main_window.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "platform/shell.h"
#include "preferences/rd_two_window_controller.h"
#include "sandbox.h"
#include "state/preference_keys.h"
#include "ui_Main.h"

namespace {

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

/// Answers a translation in place of a shipped table.
class OneTranslation final : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override {
        const QByteArray asked = QByteArray(context) + '/' + source;
        return asked == "RDTwoWindowController/Makevisibleallthelisteditemsatlaunch"
                   ? QString("key")
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

}  // namespace

class MainWindowTest final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { Bundle::loadTranslations(); }

    // A test that ended the program's event loop must not end the next one's.
    void init() {
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }

    void revealsAtLaunchFromTheLastToTheFirstAlsoWhileLocked() {
        Sandbox sandbox;
        const QStringList paths = sandbox.makeFiles({"a", "b c"});
        sandbox.storeList({paths.at(0), "/nowhere/x", paths.at(1)}, VisibleForm::StringZero);
        setPreference(Preference::MakeVisibleAtLaunch, true);
        sandbox.defaults().setObject("secret", passwordKey);
        sandbox.defaults().setObject("1", requirePasswordKey);
        Window w;
        QCOMPARE(sandbox.commands(),
                 QStringList({"chflags|nohidden|b c", "chflags|nohidden|/nowhere/x",
                              "chflags|nohidden|a"}));
        QCOMPARE(sandbox.told(), QStringList({"b c", "/nowhere/x", "a"}));
        QCOMPARE(sandbox.stored(), QString("a:\"1\" b c:\"1\""));
        QCOMPARE(sandbox.missing(), QString("x:\"1\""));
        QCOMPARE(w.list()->count(), 0);
        QCOMPARE(w.ui.requirePassword->state(), 1);
        QVERIFY(!w.ui.passwordMeunItem->isEnabled());
        // No way in may write the empty working copy over the stored list.
        w.list()->setCanDragDrop(true);
        drop(*w.list(), {paths.at(0)});
        w.main.delegate().removemeaunItem_touch(nullptr);
        w.main.delegate().addmeaunItem_touch(nullptr);
        QCOMPARE(sandbox.stored(), QString("a:\"1\" b c:\"1\""));
    }

    void ignoresALaunchPreferenceThatTheTablesResolveDifferently() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a"}), VisibleForm::StringZero);
        OneTranslation translation;
        QCoreApplication::installTranslator(&translation);
        setPreference(Preference::MakeVisibleAtLaunch, true);
        Window w;
        QCOMPARE(sandbox.commands(), QStringList());
        QCOMPARE(sandbox.stored(), QString("a:\"0\""));
        QVERIFY(sandbox.defaults().objectForKey("key").toBool());
    }

    void shipsNoTextForThePreferenceKeys() {
        const QStringList tables = QDir(":/translations").entryList({"*.qm"});
        QVERIFY(tables.size() >= 2);
        for (const QString& table : tables) {
            QTranslator translator;
            QVERIFY(translator.load(":/translations/" + table));
            for (const auto key :
                 {Preference::MakeVisibleAtLaunch, Preference::MakeInvisibleOnQuit,
                  Preference::OpenOnDoubleClick, Preference::AlternatingRowColors}) {
                const QByteArray name = preferenceName(key).toUtf8();
                QCOMPARE(translator.translate("Main", name), QString());
                QCOMPARE(translator.translate("RDTwoWindowController", name), QString());
            }
        }
    }

    void switchesTheCurrentItem() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a", "b"}));
        Window w;
        w.list()->selectTableViewCellForRowIndex(1);
        const QStringList reset{"defaults|write|com.apple.finder|AppleShowAllFiles|NO",
                                "killall|Finder"};
        for (const char* says : {"YES\\n", "", "0", "\\377yes", "1"}) {  // only the word counts
            sandbox.setCommand("defaults", QString("printf '%1'").arg(says));
            w.press(w.ui.switchButton);
            const QString change = w.ui.switchButton->on() ? "nohidden" : "hidden";
            QCOMPARE(sandbox.commands(),
                     QStringList{"defaults|read|com.apple.finder|AppleShowAllFiles"} +
                         (QString(says).startsWith("YES") ? reset : QStringList()) +
                         QStringList{"chflags|" + change + "|b"});
            QCOMPARE(sandbox.told(), QStringList{"b"});
        }
        QCOMPARE(sandbox.stored(), QString("a:\"1\" b:\"0\""));
        QCOMPARE(w.ui.switchButton->imageName(), QString("switch-left"));
        w.choose(w.ui.hideMenuItem);
        QCOMPARE(sandbox.commands().last(), QString("chflags|nohidden|b"));
        QCOMPARE(sandbox.told(), QStringList{"b"});
        w.press(w.ui.switchButton);
        w.ui.switchButton->setOn(true);  // leaves the picture to whoever sets the value
        QCOMPARE(w.ui.switchButton->imageName(), QString("switch-left"));
    }

    void staysClosedUntilTheStoreIsRead() {
        Sandbox sandbox;
        const QString file = UserDefaults::standardFile();
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QVERIFY(QFile::link("gone/disk.json", file));
        UserDefaults defaults(file);
        Window w;
        QVERIFY(w.ui.quietLine->text().contains("cannot be read"));
        QVERIFY(!w.main.viewController().canEditorItem() && !w.list()->canDragDrop());
        QVERIFY(!w.ui.switchButton->isEnabled() && !w.ui.addButton->isEnabled());
        QVERIFY(!w.ui.requirePassword->isEnabled() && !w.ui.settingButton->isEnabled());
        drop(*w.list(), {sandbox.makeFile("b")});
        w.main.readStoreAgain();
        QVERIFY(!defaults.isRead());
        // Now the disk is there, with a list that is shown at each start.
        QVERIFY(QFile::remove(file));
        {
            UserDefaults there(file);
            ItemList list;
            list.append(ItemRecord::forPath(sandbox.makeFile("a"), VisibleForm::StringZero));
            there.setItemList(list);
            setPreference(Preference::MakeVisibleAtLaunch, true);
        }
        w.main.readStoreAgain();
        QCOMPARE(sandbox.commands(), QStringList{"chflags|nohidden|a"});
        QCOMPARE(Sandbox::describe(*w.list()->fileLists()), QString("a:\"1\""));
        QVERIFY(w.ui.quietLine->isHidden() && w.ui.switchButton->isEnabled());
        QVERIFY(w.list()->canDragDrop() && w.ui.addMenuItem->isEnabled());
    }

    void staysUsableAfterADropThatFailed() {
        Sandbox sandbox;
        const QStringList paths = sandbox.makeFiles({"a", "b", "c"});
        sandbox.storeList(paths);
        Window w;
        w.list()->selectTableViewCellForRowIndex(2);
        drop(*w.list(), {paths.first()});
        QTRY_COMPARE(w.list()->selectRowIndex(), 1);
        w.press(w.ui.switchButton);
        QCOMPARE(sandbox.stored(), QString("b:\"1\" c:\"0\""));
    }

    void deletesInATextField() {
        Sandbox sandbox;
        Window w;
        QLineEdit field("abc", &w.main.window());
        field.show();
        w.main.window().activateWindow();
        field.setFocus();
        QTRY_VERIFY(field.hasFocus());
        field.selectAll();
        w.choose(w.ui.deleteMenuItem);
        QCOMPARE(field.text(), QString());
    }

    void endsFromOutsideWithoutTheQuitPass() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a"}));
        setPreference(Preference::MakeInvisibleOnQuit, true);
        Window w;
        QEvent quit(QEvent::Quit);  // what a session manager's end comes as
        QCoreApplication::sendEvent(qApp, &quit);
        QCOMPARE(sandbox.commands(), QStringList());
    }

    void asksBeforeChangesAreLost() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"b", "a"}));
        QVERIFY(sandbox.defaults().synchronize());
        Window w;
        w.press(w.list()->topViw()->leftButton());  // sorted in memory alone: a, b
        setPreference(Preference::MakeInvisibleOnQuit, true);
        QVERIFY(sandbox.defaults().synchronize());
        const QString folder = QFileInfo(UserDefaults::standardFile()).path();
        QVERIFY(QFile::rename(folder, folder + "-away"));
        QFile inTheWay(folder);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        const auto quit = [](Window& window, const QString& answer) {
            bool asked = false;
            QTimer::singleShot(0, [&] {
                auto* alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                asked = alert != nullptr && alert->text().contains("could not be saved");
                for (auto* button : asked ? alert->buttons() : QList<QAbstractButton*>()) {
                    if (button->text() == answer) {
                        button->click();
                    }
                }
            });
            window.main.window().close();
            QCoreApplication::processEvents();
            return asked;
        };
        QVERIFY(quit(w, "Stay"));
        // What the pass has done is seen in the list, in its own order.
        QCOMPARE(Sandbox::describe(*w.list()->fileLists()), QString("a:\"0\" b:\"0\""));
        QVERIFY(!w.ui.switchButton->on() && w.ui.hideMenuItem->text() == "Show");
        QVERIFY(quit(w, "Quit"));
        init();
        Window ended;
        int ends[2];
        QVERIFY(pipe(ends) == 0 && write(ends[1], "", 1) == 1);
        Shell::setInterruption(ends[0]);  // by a signal, which asks nobody
        QVERIFY(!quit(ended, "Quit"));
        Shell::setInterruption(-1);
        ::close(ends[0]);
        ::close(ends[1]);
    }

    void saysWhatBecameOfTheItem() {
        Sandbox sandbox;
        const QStringList paths = sandbox.makeFiles({"a", "line\nbreak"});
        sandbox.storeList(paths);
        Window w;
        const auto said = [&w](int row) {
            w.list()->selectTableViewCellForRowIndex(row);
            w.press(w.ui.switchButton);
            return w.ui.quietLine->isVisible() ? w.ui.quietLine->text() : QString();
        };
        // The command of this test hides nothing.
        QCOMPARE(said(0), QString("“a” is still visible: the change was not carried out."));
        QVERIFY(said(1).startsWith("“line break” is still visible: its name holds a line break"));
        QCOMPARE(said(0), QString());  // to be shown, and it is
        QVERIFY(w.ui.quietLine->isHidden());
        QFile hidden(sandbox.folder() + "/files/.hidden");
        QVERIFY(hidden.open(QIODevice::WriteOnly) && hidden.write("A\n\na\nb") == 6);
        hidden.close();
        QCOMPARE(said(0), QString());  // to be hidden, and it is
        QCOMPARE(said(0), QString("“a” is still hidden: the change was not carried out."));
        QVERIFY(QFile::remove(paths.at(0)));
        QCOMPARE(said(0), QString("“a” no longer exists."));
    }

    void remembersWhatIsMissingUntilItIsListedAgain() {
        {
            Sandbox odd;
            const QString path = odd.makeFile("a");
            QDir::setCurrent(odd.folder() + "/files");
            odd.storeList({path + QChar::Null + "b", "a", "./a", path});
            ItemList list = *odd.defaults().itemList();
            list.append(ItemRecord::fromVariant("no path"));
            odd.defaults().setItemList(list);
            odd.defaults().setObject(QVariantList{"no path either"}, missingItemsKey);
            Window w;
            QDir::setCurrent("/");
            QCOMPARE(odd.stored(), QString("a:\"1\""));
            QCOMPARE(odd.defaults().objectForKey(missingItemsKey).toList().size(), 5);
        }
        Sandbox sandbox;
        const QStringList paths = sandbox.makeFiles({"a", "b"});
        const auto start = [&] { Window w; };
        sandbox.storeList(paths);
        start();
        QVERIFY(!sandbox.defaults().objectForKey(missingItemsKey).isValid());
        QVERIFY(QFile::remove(paths.at(0)));
        start();
        QCOMPARE(sandbox.stored(), QString("b:\"1\""));
        QCOMPARE(sandbox.missing(), QString("a:\"1\""));
        start();  // once
        QCOMPARE(sandbox.missing(), QString("a:\"1\""));
        sandbox.makeFile("a");
        sandbox.storeList(paths, VisibleForm::StringZero);
        QVERIFY(QFile::remove(paths.at(1)));
        start();
        QCOMPARE(sandbox.stored(), QString("a:\"0\""));
        QCOMPARE(sandbox.missing(), QString("b:\"0\""));
    }

    void loadsTheListThatAnUnlockWouldOtherwiseLose() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a"}));
        sandbox.defaults().setObject("x", passwordKey);
        sandbox.defaults().setObject("1", requirePasswordKey);
        Window w;
        NotificationCenter::defaultCenter().postNotification(notification_names::verifyPassword,
                                                             {{"yanzheng", true}, {"save", true}});
        QCOMPARE(w.list()->count(), 1);
        QVERIFY(w.ui.passwordMeunItem->isEnabled());
    }

    void cutsNoPreferenceOffWithALargeFont() {
        Sandbox sandbox;
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPointSize(usual.pointSize() * 2);
        QApplication::setFont(large);
        RDTwoWindowController preferences;
        preferences.window()->show();
        const auto boxes = preferences.window()->findChildren<QCheckBox*>();
        QCOMPARE(boxes.size(), 4);
        for (const QCheckBox* box : boxes) {
            QVERIFY(box->width() >= box->fontMetrics().horizontalAdvance(box->text()));
        }
        QApplication::setFont(usual);
    }

    void callsOnlyObserversThatAreThere() {
        struct Counter : QObject {
            void note(const Notification&) { ++calls; }
            int calls = 0;
        };
        auto& center = NotificationCenter::defaultCenter();
        center.addObserver(std::make_unique<Counter>().get(), &Counter::note, "x");
        Counter stays;
        center.addObserver(&stays, &Counter::note, "x");
        center.postNotification("x");
        center.removeObserver(&stays, "x");
        center.postNotification("x");
        QCOMPARE(stays.calls, 1);
    }
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    MainWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "main_window_test.moc"
