#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include "app/main_window.h"
#include "password/rd_password_view_controller.h"
#include "platform/application.h"
#include "platform/bundle.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "preferences/rd_two_window_controller.h"
#include "sandbox.h"
#include "state/preference_keys.h"
#include "ui_Main.h"

namespace {

/// The main window as the program builds it; only the open panel answers by itself.
struct Window {
    explicit Window(std::optional<QStringList> chosen = std::nullopt)
        : answer(std::move(chosen)),
          main([this](QWidget*, const OpenPanelRequest& asked) {
              request = asked;
              return answer;
          }),
          ui(main.outlets()) {
        main.load();
        main.show();
    }
    DragDropView* list() { return ui.fileListView; }
    void press(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void choose(QAction* item) {
        QVERIFY2(item->isEnabled(), qPrintable(item->text()));
        item->trigger();
    }

    std::optional<QStringList> answer;
    OpenPanelRequest request;
    MainWindow main;
    const Ui::Main& ui;
};

/// Answers a translation in place of a shipped table.
class OneTranslation final : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override {
        const bool mine = qstrcmp(context, "RDTwoWindowController") == 0 &&
                          qstrcmp(source, "Makevisibleallthelisteditemsatlaunch") == 0;
        return mine ? QStringLiteral("translatedKey") : QString();
    }
    bool isEmpty() const override { return false; }
};

/// Writes down the dialog's notifications with their user info.
class DialogObserver final : public QObject {
public:
    DialogObserver() {
        auto& center = NotificationCenter::defaultCenter();
        center.addObserver(this, &DialogObserver::note, notification_names::changePassword);
        center.addObserver(this, &DialogObserver::note, notification_names::verifyPassword);
    }
    void note(const Notification& n) {
        QStringList entries;
        for (auto entry = n.userInfo.cbegin(); entry != n.userInfo.cend(); ++entry) {
            entries << entry.key() + u'=' + entry.value().toString();
        }
        const auto stored = UserDefaults::standardUserDefaults().objectForKey(passwordKey);
        seen << n.name + u' ' + entries.join(u' ') + QStringLiteral(" stored=") + stored.toString();
    }
    QStringList seen;
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

    void startsEmpty() {
        Sandbox sandbox;
        Window w;
        QCOMPARE(sandbox.stored(), QString("absent"));
        QVERIFY(w.ui.textScrollCiew->isVisible() && !w.ui.customInfoView->isVisible());
        QVERIFY(!w.ui.hideMenuItem->isEnabled() && !w.ui.removeMenuItem->isEnabled());
        sandbox.setShowAllOutput("Yes\n");
        w.press(w.ui.switchButton);  // asks and resets, and flips nothing
        QCOMPARE(sandbox.commands(),
                 QStringList({"defaults|read|com.apple.finder|AppleShowAllFiles",
                              "defaults|write|com.apple.finder|AppleShowAllFiles|NO",
                              "killall|Finder"}));
        QVERIFY(w.ui.switchButton->on());
        QCOMPARE(w.ui.switchButton->imageName(), QString("switch-pressed-right"));
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
        w.ui.fileListView->setCanDragDrop(true);
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
        QVERIFY(sandbox.defaults().objectForKey("translatedKey").toBool());
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
                for (const char* context : {"Main", "RDTwoWindowController"}) {
                    QCOMPARE(translator.translate(context, name.constData()), QString());
                }
            }
        }
    }

    void switchesTheCurrentItem() {
        Sandbox sandbox;
        const QStringList paths = sandbox.makeFiles({"a", "b"});
        sandbox.storeList(paths);
        Window w;
        QCOMPARE(sandbox.log().filter("removeMenuItem").size(), 2);
        w.list()->selectTableViewCellForRowIndex(1);
        sandbox.setShowAllOutput("1\n");
        w.press(w.ui.switchButton);
        QCOMPARE(
            sandbox.commands(),
            QStringList({"defaults|read|com.apple.finder|AppleShowAllFiles", "chflags|hidden|b"}));
        QCOMPARE(sandbox.told(), QStringList{"b"});
        QCOMPARE(sandbox.stored(), QString("a:\"1\" b:\"0\""));
        QCOMPARE(w.ui.hideMenuItem->text(), QString("Show"));
        QVERIFY(!w.ui.openMenuItem->isEnabled() && !w.ui.revealInFinderMenuItem->isEnabled() &&
                !w.ui.removeMenuItem->isEnabled());
        QCOMPARE(w.ui.switchButton->imageName(), QString("switch-left"));
        w.choose(w.ui.hideMenuItem);
        QCOMPARE(sandbox.commands().last(), QString("chflags|nohidden|b"));
        QCOMPARE(sandbox.told(), QStringList{"b"});
        QCOMPARE(w.ui.hideMenuItem->text(), QString("Hide"));
        QVERIFY(w.ui.removeMenuItem->isEnabled());
        QTest::keyClick(w.ui.switchButton, Qt::Key_Space);
        QCOMPARE(sandbox.stored(), QString("a:\"1\" b:\"0\""));
        w.ui.switchButton->setOn(true);  // leaves the picture to whoever sets the value
        QCOMPARE(w.ui.switchButton->imageName(), QString("switch-left"));
    }

    void foldsTheInformationByItsOwnValue() {
        Sandbox sandbox;
        QFile file(sandbox.makeFile("a"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(1'048'577));
        sandbox.storeList({file.fileName()});
        Window w;
        QCOMPARE(w.ui.sizeDescLabel->text(), QString("128.000122 K"));
        QCOMPARE(w.ui.whereDescLabel->text(), file.fileName());
        QVERIFY(w.ui.hideInfoMenuItem->isChecked());
        for (const bool folded : {true, false}) {
            NotificationCenter::defaultCenter().postNotification(
                notification_names::showOrHideInformation, {{"hidden", true}});
            QCOMPARE(w.ui.kinTitle->isVisible(), !folded);
            QCOMPARE(w.ui.sanjiao->isChecked(), !folded);
            QCOMPARE(w.ui.dianjibutton->text(),
                     QString(folded ? "       Show item Info" : "       Hide item Info"));
        }
        w.choose(w.ui.hideInfoMenuItem);
        QVERIFY(!w.ui.hideInfoMenuItem->isChecked() && !w.ui.kinTitle->isVisible());
        w.press(w.ui.dianjibutton);
        QVERIFY(w.ui.kinTitle->isVisible() && w.ui.filleTitle->isVisible());
    }

    void addsWhatThePanelGives() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a"}));
        Window w(sandbox.makeFiles({"c", "b"}));
        sandbox.log();
        w.choose(w.ui.addMenuItem);
        QCOMPARE(sandbox.stored(), QString("a:\"1\" c:1 b:1"));
        QCOMPARE(w.request.message + w.request.prompt, QString("select a fileOK"));
        QVERIFY(w.request.allowsMultipleSelection && !w.request.canChooseDirectories);
        QCOMPARE(w.list()->selectRowIndex(), 2);
        w.list()->selectTableViewCellForRowIndex(0);
        w.answer.reset();
        sandbox.log();
        w.press(w.ui.addButton);  // cancelled: the last row becomes current all the same
        QCOMPARE(w.list()->selectRowIndex(), 2);
        QCOMPARE(sandbox.log().at(1), QString("selectPaths:(null)"));
    }

    void removesByMenuWithoutEverLeavingTheList() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a", "b", "c"}));
        Window w;
        w.list()->selectTableViewCellForRowIndex(1);
        w.choose(w.ui.removeMenuItem);
        QCOMPARE(w.ui.filleTitle->text(), QString("c"));
        w.choose(w.ui.removeMenuItem);  // the last row: the pane keeps showing it
        QCOMPARE(w.ui.filleTitle->text(), QString("c"));
        QCOMPARE(w.list()->selectRowIndex(), 0);
        w.choose(w.ui.removeMenuItem);
        QCOMPARE(sandbox.stored(), QString());
        QVERIFY(!w.ui.removeMenuItem->isEnabled() && !w.ui.openMenuItem->isEnabled());
        w.choose(w.ui.hideMenuItem);
        w.choose(w.ui.closeMenuItem);
        QVERIFY(w.main.window().isVisible());
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
        for (const QWidget* control : std::initializer_list<const QWidget*>{
                 w.ui.switchButton, w.ui.addButton, w.ui.requirePassword, w.ui.settingButton}) {
            QVERIFY(!control->isEnabled());
        }
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

    void endsFromOutsideWithoutTheQuitPass() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a"}));
        setPreference(Preference::MakeInvisibleOnQuit, true);
        Window w;
        QEvent quit(QEvent::Quit);  // what a session manager's end comes as
        QCoreApplication::sendEvent(qApp, &quit);
        QCOMPARE(sandbox.commands(), QStringList());
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

    void hidesAtQuitUnquotedAndOnce() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a", "b c", "d"}));
        setPreference(Preference::MakeInvisibleOnQuit, true);
        Window w;
        w.main.window().close();
        w.choose(w.ui.quitVelmoraMenuItem);
        QCOMPARE(sandbox.commands(),
                 QStringList({"chflags|hidden|a", "chflags|hidden|b|c", "chflags|hidden|d"}));
        QCOMPARE(sandbox.stored(), QString("a:\"0\" b c:\"0\" d:\"0\""));
        QCOMPARE(sandbox.told(), QStringList({"a", "b c", "d"}));
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
        const auto quit = [&w](const QString& answer) {
            bool asked = false;
            QTimer::singleShot(0, [&] {
                auto* alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                asked = alert != nullptr && alert->text().contains("could not be saved");
                for (auto* button : alert->buttons()) {
                    if (button->text() == answer) {
                        button->click();
                    }
                }
            });
            w.main.window().close();
            return asked;
        };
        QVERIFY(quit("Stay"));
        // What the pass has done is seen in the list, in its own order.
        QCOMPARE(Sandbox::describe(*w.list()->fileLists()), QString("a:\"0\" b:\"0\""));
        QVERIFY(!w.ui.switchButton->on() && w.ui.hideMenuItem->text() == "Show");
        QVERIFY(quit("Quit"));
    }

    void saysWhatBecameOfTheItem() {
        Sandbox sandbox;
        const QStringList paths = sandbox.makeFiles({"a", "it's", "line\nbreak"});
        sandbox.storeList(paths);
        Window w;
        const auto said = [&w](int row) {
            w.list()->selectTableViewCellForRowIndex(row);
            w.press(w.ui.switchButton);
            return w.ui.quietLine->isVisible() ? w.ui.quietLine->text() : QString();
        };
        // The command of this test hides nothing.
        QCOMPARE(said(0), QString("“a” is still visible: the change was not carried out."));
        QVERIFY(said(1).endsWith("its path holds an apostrophe, which the command cannot take."));
        QVERIFY(said(2).startsWith("“line break” is still visible: its name holds a line break"));
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
            Window w;
            QDir::setCurrent("/");
            QCOMPARE(odd.stored(), QString("a:\"1\""));
            QCOMPARE(odd.missing().count("a"), 3);
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

    void reportsFromThePasswordDialogInOrder() {
        Sandbox sandbox;
        DialogObserver observer;
        const auto run = [&](bool set, const QStringList& typed, auto... steps) {
            auto* dialog = new RDPasswordViewController;
            dialog->setAttribute(Qt::WA_DeleteOnClose);
            dialog->setPassword = set;
            dialog->yanzheng = !set;
            dialog->show();
            auto* field = dialog->findChild<QLineEdit*>("passwordFilde");
            int step = 0;
            (
                [&] {
                    field->setText(typed.value(step++));
                    (dialog->*steps)();
                }(),
                ...);
            return std::exchange(observer.seen, {});
        };
        using Dialog = RDPasswordViewController;
        QCOMPARE(run(true, {""}, &Dialog::save),
                 QStringList{"yanzhengPassword save=true yanzheng=false stored="});
        QCOMPARE(run(true, {" abc"}, &Dialog::save),
                 QStringList({"changePassword passwordvalue= abc save=true yanzheng=false stored=",
                              "yanzhengPassword save=true yanzheng=true stored= abc"}));
        QTimer::singleShot(0, [] {
            auto* alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(alert != nullptr && alert->informativeText().startsWith(u'\n'));
            alert->buttons().first()->click();
        });
        QCOMPARE(run(false, {" Abc", " abc"}, &Dialog::save, &Dialog::cancel),
                 QStringList({"changePassword passwordvalue= abc yanzheng=true stored= abc",
                              "yanzhengPassword save=true yanzheng=true stored= abc"}));
        QCOMPARE(
            run(true, {" abc"}, &Dialog::reject),
            QStringList({"changePassword changePassword=true passwordvalue= abc yanzheng=false "
                         "stored= abc",
                         "yanzhengPassword save=false yanzheng=true stored= abc"}));
        QCOMPARE(run(false, {" abc"}, &Dialog::save),
                 QStringList({"changePassword passwordvalue= abc stored= abc",
                              "yanzhengPassword save=true yanzheng=true stored= abc"}));
    }

    void loadsTheListThatAnUnlockWouldOtherwiseLose() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a"}));
        sandbox.defaults().setObject("x", passwordKey);
        sandbox.defaults().setObject("1", requirePasswordKey);
        Window w;
        auto& center = NotificationCenter::defaultCenter();
        center.postNotification(notification_names::changePassword, {{"passwordvalue", "x"}});
        QCOMPARE(w.list()->count(), 1);  // right text, never saved: loaded, but locked
        center.postNotification(notification_names::verifyPassword, {{"yanzheng", true}});
        QVERIFY(!w.main.viewController().canEditorItem() && !w.list()->canDragDrop());
        w.press(w.ui.switchButton);
        QCOMPARE(sandbox.stored(), QString("a:\"0\""));

        Window other;
        center.postNotification(notification_names::verifyPassword,
                                {{"yanzheng", true}, {"save", true}});
        QCOMPARE(other.list()->count(), 1);
        QVERIFY(other.ui.passwordMeunItem->isEnabled());
    }

    void writesPreferencesAtOnce() {
        Sandbox sandbox;
        QObject observer;
        RDTwoWindowController preferences;
        QWidget* window = preferences.window();
        window->show();
        sandbox.log();
        const auto boxes = window->findChildren<QCheckBox*>();
        QCOMPARE(boxes.size(), 4);
        for (QCheckBox* box : boxes) {
            QVERIFY(!box->isChecked());
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
            QCOMPARE(sandbox.defaults().objectForKey(box->objectName()), QVariant(true));
        }
        QCOMPARE(sandbox.log(), QStringList({"1 state:1", "2 state:1", "3 state:1", "4 state:1"}));
        RDTwoWindowController again;
        QVERIFY(again.window()->findChildren<QCheckBox*>().first()->isChecked());
    }

    void cutsNoPreferenceOffWithALargeFont() {
        Sandbox sandbox;
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPointSize(usual.pointSize() * 2);
        QApplication::setFont(large);
        RDTwoWindowController preferences;
        preferences.window()->show();
        for (const QCheckBox* box : preferences.window()->findChildren<QCheckBox*>()) {
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
        Counter stays;
        {
            Counter goes;
            center.addObserver(&goes, &Counter::note, "x");
        }
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
