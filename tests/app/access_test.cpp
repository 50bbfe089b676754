#include <QAccessible>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTimer>
#include <QTranslator>

#include "app/about_panel_controller.h"
#include "app/rd_show_message_text_window_controller.h"
#include "controls/accessible_buttons.h"
#include "controls/accessible_labels.h"
#include "controls/pane_button.h"
#include "list/accessible_items.h"
#include "password/rd_password_view_controller.h"
#include "preferences/rd_two_window_controller.h"
#include "state/preference_keys.h"
#include "window.h"

namespace {

/// The controls that the key leads through, from where the focus is and back to it.
QList<QWidget*> reachedBy(Qt::Key key) {
    QList<QWidget*> reached;
    for (QWidget* next = QApplication::focusWidget(); next != nullptr && !reached.contains(next);
         next = QApplication::focusWidget()) {
        reached << next;
        QTest::keyClick(next, key);
    }
    return reached;
}

/// What assistive technology meets without a name or a role, and what can be worked and is not
/// among the controls that were reached.
QStringList faultsIn(QAccessibleInterface* node, const QList<QWidget*>& reached) {
    const QAccessible::Role role = node->role();
    const auto isOneOf = [role](const QList<QAccessible::Role>& roles) {
        return roles.contains(role);
    };
    if (node->state().invisible || isOneOf({QAccessible::MenuBar, QAccessible::ScrollBar})) {
        return {};
    }
    auto* widget = qobject_cast<QWidget*>(node->object());
    const bool worked = isOneOf(
        {QAccessible::Button, QAccessible::CheckBox, QAccessible::EditableText, QAccessible::List});
    const bool named = isOneOf({QAccessible::Client, QAccessible::ToolBar}) ||
                       !node->text(QAccessible::Name).isEmpty();
    QStringList faults;
    if (role == QAccessible::NoRole || !named ||
        (widget != nullptr && (worked || node->state().focusable) && !reached.contains(widget))) {
        faults << QString::number(role) + node->text(QAccessible::Name);
    }
    for (int child = 0; child < node->childCount(); ++child) {
        faults << faultsIn(node->child(child), reached);
    }
    return faults;
}

}  // namespace

/// The windows as they are met by keyboard and through assistive technology.
class AccessTest final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        installAccessibleButtons();
        installAccessibleItems();
        installAccessibleLabels();
    }

    void showsWhatIsTypedAndWhatWillHappen() {
        Sandbox sandbox;
        QSet<QString> hints{QString()};
        for (const int mode : {0, 1, 2}) {
            RDPasswordViewController dialog;
            dialog.setPassword = mode > 0;
            dialog.setNewPassword = mode > 1;
            dialog.show();
            hints << dialog.findChild<QLabel*>("passwordHint")->text();
            QTest::mouseClick(dialog.findChild<PaneButton*>(), Qt::LeftButton);
            QCOMPARE(dialog.findChild<QLineEdit*>()->echoMode(), QLineEdit::Normal);
        }
        QCOMPARE(hints.size(), 4);
    }

    void clicksWhereAssistiveTechnologyActs() {
        ListWindow w({"a\u202E\nb"});
        RDTwoWindowController preferences;
        AboutPanelController about;
        RDShowMessageTextWindowController document;
        document.licenseAgreement = true;
        RDPasswordViewController password;
        const auto* items = QAccessible::queryAccessibleInterface(w.list()->tableView());
        QCOMPARE(items->child(0)->text(QAccessible::Name), QString("a<U+202E>\nb, Visible"));
        QCOMPARE(w.ui.filleTitle->text(), QString("a<U+202E>\nb"));
        int closed = 0;
        QTimer closing;
        connect(&closing, &QTimer::timeout, &closing, [&] {
            QWidget* modal = QApplication::activeModalWidget();
            closed += modal != nullptr && modal != &password && modal->close() ? 1 : 0;
        });
        closing.start(0);
        QStringList walked, order;
        for (QWidget* window :
             {preferences.window(), about.window(), document.window(),
              static_cast<QWidget*>(&password), static_cast<QWidget*>(&w.main.window())}) {
            window->show();
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));
            const QList<QWidget*> reached = reachedBy(Qt::Key_Tab);
            QList<QWidget*> back = reachedBy(Qt::Key_Backtab);
            std::reverse(back.begin() + std::min<qsizetype>(1, back.size()), back.end());
            QCOMPARE(back, reached);
            order.clear();
            for (const QWidget* control : reached) {
                order << control->objectName();
            }
            auto* const seen = QAccessible::queryAccessibleInterface(window);
            QCOMPARE(faultsIn(seen, reached).join(u'|'), QString());
            for (auto* button : window->findChildren<QAbstractButton*>()) {
                if (!button->isVisible() || !button->isEnabled()) {
                    continue;
                }
                auto* interface = QAccessible::queryAccessibleInterface(button);
                walked << interface->text(QAccessible::Name);
                for (const QString& action : interface->actionInterface()->actionNames()) {
                    QSignalSpy clicked(button, &QAbstractButton::clicked);
                    interface->actionInterface()->doAction(action);
                    QCOMPARE(clicked.count(), 0);  // whoever asked is answered first
                    QTRY_COMPARE(clicked.count(), action == "SetFocus" ? 0 : 1);
                    QTRY_VERIFY(window == &password || !QApplication::activeModalWidget());
                }
                window->show();
            }
            window->hide();
        }
        QCOMPARE(order.join(u' '),
                 QString("tableView dianjibutton addButton switchButton requirePassword "
                         "settingButton leftButton rightButton"));
        QVERIFY2(walked.size() == 16 && !walked.contains(QString()), qPrintable(walked.join(u'|')));
        closed = 0;
        w.choose(w.ui.preferenceMenuItem);
        w.choose(w.ui.aboutVelmoraMenuItem);  // which comes too late
        QCOMPARE(closed, 0);
        QTRY_COMPARE(closed, 1);
        QCoreApplication::processEvents();
        QCOMPARE(closed, 1);
    }

    // What a preference is stored under goes through the tables too.
    void speaksEveryLanguageAndShipsNoTextForThePreferenceKeys() {
        Sandbox sandbox;
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
            QCoreApplication::installTranslator(&translator);
            Window w;
            QList<const QWidget*> menus{w.ui.mainMenu};
            for (const QMenu* menu : w.ui.mainMenu->findChildren<QMenu*>()) {
                menus << menu;
            }
            for (const QWidget* menu : std::as_const(menus)) {
                QSet<QKeySequence> keys{QKeySequence()};  // each letter once
                for (const QAction* item : menu->actions()) {
                    const QKeySequence key = QKeySequence::mnemonic(item->text());
                    QVERIFY2(
                        item->isSeparator() || item == w.ui.hideMenuItem || !keys.contains(key),
                        qPrintable(table + item->text()));
                    keys << key;
                }
            }
            for (const QWidget* named : QList<QWidget*>{w.list()->tableView(), w.ui.addButton,
                                                        w.list()->topViw()->leftButton()}) {
                const QStringList english{"Items", "Add", "Item"};
                QCOMPARE(english.contains(named->accessibleName()), table == "velmora_en.qm");
                QVERIFY(!named->toolTip().contains('&'));
            }
        }
    }
};

int main(int argc, char** argv) {
    return run<AccessTest>(argc, argv);
}

#include "access_test.moc"
