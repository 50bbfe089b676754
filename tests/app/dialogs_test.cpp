#include <QCheckBox>
#include <QLineEdit>
#include <QTest>

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

/// Writes down the password dialog's notifications with their user info.
class DialogObserver final : public QObject {
public:
    DialogObserver() {
        auto& center = NotificationCenter::defaultCenter();
        center.addObserver(this, &DialogObserver::note, notification_names::changePassword);
        center.addObserver(this, &DialogObserver::note, notification_names::verifyPassword);
    }
    void note(const Notification& n) {
        QString line = n.name;
        for (auto entry = n.userInfo.cbegin(); entry != n.userInfo.cend(); ++entry) {
            line += u' ' + entry.key() + u'=' + entry.value().toString();
        }
        seen << line + " stored=" + storedPassword();
    }
    QStringList seen;
};

}  // namespace

class DialogsTest final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { Bundle::loadTranslations(); }

    void passwordDialogReportsInOrder() {
        Sandbox sandbox;
        DialogObserver observer;
        using Dialog = RDPasswordViewController;
        const auto run = [&](bool set, const QString& typed, auto end) {
            Dialog dialog;
            dialog.setPassword = set;
            dialog.yanzheng = !set;
            dialog.show();
            dialog.findChild<QLineEdit*>("passwordFilde")->setText(typed);
            (dialog.*end)();
            return std::exchange(observer.seen, {});
        };
        QCOMPARE(run(true, " abc", &Dialog::save),
                 QStringList({"changePassword passwordvalue= abc save=true yanzheng=false stored=",
                              "yanzhengPassword save=true yanzheng=true stored= abc"}));
        QCOMPARE(run(true, " abc", &Dialog::reject),
                 QStringList({"changePassword changePassword=true passwordvalue= abc "
                              "yanzheng=false stored= abc",
                              "yanzhengPassword save=false yanzheng=true stored= abc"}));
        QCOMPARE(run(false, " abc", &Dialog::save),
                 QStringList({"changePassword passwordvalue= abc stored= abc",
                              "yanzhengPassword save=true yanzheng=true stored= abc"}));
    }

    void loadsTheListThatAnUnlockWouldOtherwiseLose() {
        Sandbox sandbox;
        sandbox.storeList(sandbox.makeFiles({"a"}));
        sandbox.defaults().setObject("x", passwordKey);
        sandbox.defaults().setObject("1", requirePasswordKey);
        MainWindow window;
        window.load();
        NotificationCenter::defaultCenter().postNotification(notification_names::verifyPassword,
                                                             {{"yanzheng", true}, {"save", true}});
        QCOMPARE(window.outlets().fileListView->count(), 1);
        QVERIFY(window.outlets().passwordMeunItem->isEnabled());
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
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    DialogsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "dialogs_test.moc"
