#include <QMessageBox>
#include <QTimer>
#include <QTranslator>

#include "platform/shell.h"
#include "state/preference_keys.h"
#include "window.h"

namespace {

/// Answers a translation in place of a shipped table.
class OneTranslation final : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override {
        return qstrcmp(context, "RDTwoWindowController") == 0 && source[0] == 'M' ? "key" : "";
    }
    bool isEmpty() const override { return false; }
};

}  // namespace

/// What happens to the stored list and its files when the program starts and ends.
class StartAndEndTest final : public QObject {
    Q_OBJECT

private slots:
    // A test that ended the program's event loop must not end the next one's.
    void init() {
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
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
        const QImage lock = w.ui.invitationPicture->grab().toImage();
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
        w.choose(w.ui.removeMenuItem);
        QVERIFY(w.list()->count() == 0 && w.ui.invitationPicture->grab().toImage() != lock);
    }

    void asksBeforeChangesAreLost() {
        Stored sandbox({"b", "a"});
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
        QFile zero("/dev/zero");  // as the end of a pipe into which a signal has written
        QVERIFY(zero.open(QIODevice::ReadOnly));
        Shell::setInterruption(zero.handle());  // an end that asks nobody
        QVERIFY(!quit(ended, "Quit"));
        Shell::setInterruption(-1);
    }

    void remembersWhatCannotBeFound() {
        Stored sandbox({"a"});
        const auto start = [] { Window w; };
        start();
        QVERIFY(!sandbox.defaults().objectForKey(missingItemsKey).isValid());
        const QString a = sandbox.paths.at(0);
        QDir::setCurrent(sandbox.folder() + "/files");
        sandbox.storeList({a + QChar::Null + "b", "a", "./a", a});
        sandbox.defaults().setObject(QVariantList{"no path"}, missingItemsKey);
        start();
        QDir::setCurrent("/");
        QCOMPARE(sandbox.stored(), QString("a:\"1\""));
        QCOMPARE(sandbox.defaults().objectForKey(missingItemsKey).toList().size(), 4);
    }
};

int main(int argc, char** argv) {
    return run<StartAndEndTest>(argc, argv);
}

#include "start_and_end_test.moc"
