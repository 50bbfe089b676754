#include <csignal>

#include <unistd.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include "hiding/hiding.h"
#include "platform/application.h"
#include "sandbox.h"

Q_DECLARE_METATYPE(Hiding::Obstacle)

/// What the owner of hiding does with odd names and with commands that do not end.
class HidingTest final : public QObject {
    Q_OBJECT

private:
    static constexpr std::chrono::milliseconds usualPatience{30000};

    static ItemList listOf(Sandbox& sandbox, const QStringList& paths) {
        sandbox.storeList(paths);
        return *sandbox.defaults().itemList();
    }
    /// Whether the process that a command noted still runs.
    static bool runs(const QString& noted) {
        QFile file(noted);
        const bool open = file.open(QIODevice::ReadOnly);
        return open && kill(file.readAll().trimmed().toInt(), 0) == 0;
    }

private slots:
    void cleanup() {
        Shell::setPatience(usualPatience);
        Shell::setInterruption(-1);
    }

    void givesTheShellNoMoreThanWords() {
        using namespace command_lines;
        for (const char* word : {"/a", "/a b", "/a [b] {c,d} #1 ~ 100% ü", "/a*?!=:@^+-_.,"}) {
            QVERIFY2(isHarmless(QString::fromUtf8(word), Quoting::SingleQuotes), word);
            QVERIFY2(isHarmless(QString::fromUtf8(word), Quoting::None), word);
        }
        for (const char metacharacter : QByteArray(";&|<>()$`\\\"\n\r'")) {
            const QString path = QString("/a%1b").arg(QLatin1Char(metacharacter));
            QCOMPARE(isHarmless(path, Quoting::SingleQuotes), metacharacter != '\'');
            QVERIFY2(!isHarmless(path, Quoting::None), qPrintable(path));
        }
    }

    void runsNothingButTheCommand() {
        Sandbox sandbox;
        const QString mark = sandbox.folder() + "/ran";
        Hiding hiding;
        for (const char* armed :
             {"/a';touch '%1", "/a;touch %1", "/a\ntouch %1", "/a$(touch %1)", "/a`touch %1`",
              "/a|touch %1", "/a>%1", "/a&touch %1", "/a\"$(touch %1)\""}) {
            const QString path = QString(armed).arg(mark);
            ItemList list = listOf(sandbox, {path, sandbox.makeFile("plain")});
            hiding.showAtLaunch(list);
            hiding.hideAtQuit(list);
            ItemRecord record = list.at(0);
            hiding.switchItem(record, true);
            QVERIFY2(!QFile::exists(mark), qPrintable(path));
            QCOMPARE(record.visible(), QVariant("1"));
            const QString commands = sandbox.commands().join(u'\n');
            QVERIFY(commands.contains("chflags|hidden|plain"));
            QVERIFY(!commands.contains("chflags|hidden|/a"));
            QCOMPARE(commands.count("chflags|nohidden|/a"), path.contains(u'\'') ? 0 : 2);
        }
    }

    void endsACommandThatDoesNot() {
        Sandbox sandbox;
        const QString noted = sandbox.folder() + "/process";
        sandbox.setCommand("chflags", "sleep 60 & echo $! >'" + noted + "'; wait");
        Shell::setPatience(std::chrono::milliseconds(500));
        Hiding hiding;
        QSignalSpy switched(&hiding, &Hiding::switched);
        ItemRecord record = ItemRecord::forPath(sandbox.makeFile("a"), VisibleForm::StringOne);
        QElapsedTimer timer;
        timer.start();
        hiding.switchItem(record, false);
        QVERIFY(timer.elapsed() < 5000);
        QTRY_VERIFY(!runs(noted));  // with all that it started
        QCOMPARE(switched.at(0).at(2).value<Hiding::Obstacle>(), Hiding::Obstacle::TimeUp);
        QCOMPARE(record.visible(), QVariant("0"));
    }

    void endsAPassAfterTheItemAtHandWhenAskedToEnd() {
        Sandbox sandbox;
        int ends[2];
        QVERIFY(pipe(ends) == 0);
        Shell::setInterruption(ends[0]);
        // The second item's command asks for the end, as a signal would, and goes on for long.
        sandbox.setCommand(
            "chflags", QStringLiteral("case $2 in *b) echo >&%1; sleep 60;; esac").arg(ends[1]));
        Hiding hiding;
        ItemList list = listOf(sandbox, sandbox.makeFiles({"a", "b", "c"}));
        QElapsedTimer timer;
        timer.start();
        hiding.hideAtQuit(list);
        QVERIFY(timer.elapsed() < 30000);
        QCOMPARE(Sandbox::describe(list), QString("a:\"0\" b:\"0\" c:\"1\""));
        hiding.showAtLaunch(list);
        QCOMPARE(Sandbox::describe(list), QString("a:\"0\" b:\"0\" c:\"1\""));
        ::close(ends[0]);
        ::close(ends[1]);
    }
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    HidingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "hiding_test.moc"
