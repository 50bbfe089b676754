#include <csignal>

#include <QDirIterator>
#include <QElapsedTimer>
#include <QSignalSpy>

#include "hiding/hiding.h"
#include "window.h"

Q_DECLARE_METATYPE(Hiding::Obstacle)

/// What the owner of hiding does with odd names and with commands that do not end.
class HidingTest final : public QObject {
    Q_OBJECT

private:
    static constexpr std::chrono::milliseconds usualPatience{30000};

    /// Modes and contents of all below the folder but the lists of hidden names.
    static QMap<QString, QByteArray> stateOf(const QString& folder) {
        QMap<QString, QByteArray> state;
        QDirIterator files(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const int modes = files.fileInfo().permissions();
            if (files.fileName() != ".hidden") {
                state[path] = QByteArray::number(modes) + contentOf(path);
            }
        }
        return state;
    }

private slots:
    void cleanup() {
        Shell::setPatience(usualPatience);
        QDir::setCurrent("/");
    }

    void runsNothingButTheCommand() {
#ifdef HOSTILE_NAMES
        Sandbox sandbox;
        Hiding hiding;
        const QString place = sandbox.folder() + "/files";
        const QString beyond = sandbox.folder() + "/beyond";
        qputenv("LD_PRELOAD", SHELL_RECORDER);
        qputenv("SHELL_RECORD", beyond.toUtf8());
        qputenv("HOME", place.toUtf8());
        Shell::setCompanionsFolder(Shell::defaultCompanionsFolder());
        qunsetenv("LD_PRELOAD");
        Shell::run("kill -0 $$; true >/; true | true");
        Shell::run("exec /none");
        QCOMPARE(contentOf(beyond), QByteArray("kill \nopen /\nfork \nexecve /none\n"));
        QFile::remove(beyond);

        for (const QByteArray& line : contentOf(HOSTILE_NAMES).split('\n')) {
            if (line.isEmpty() || line.startsWith('#')) {
                continue;
            }
            QDir(place).removeRecursively();
            QVERIFY(QDir().mkpath(place) && QDir::setCurrent(place));
            sandbox.makeFiles({"keep", "plain", "run"});
            QFile::setPermissions("run", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            const QByteArray outcome = line.split(' ').first();
            const QString name =
                QString::fromUtf8(QByteArray::fromPercentEncoding(line.mid(outcome.size() + 1)));
            const bool isMade = outcome != "path";
            const QString path = isMade ? place + '/' + name : name;
            const QFileInfo item(path);
            QVERIFY2(!isMade || item.dir().mkpath("."), line);
            QVERIFY2(!isMade || sandbox.makeFile(name) == path, line);
            const auto isListed = [&item] {
                const QByteArrayList lines = contentOf(item.path() + "/.hidden").split('\n');
                return lines.contains(item.fileName().toUtf8());
            };
            const auto before = stateOf(place);
            ItemList list;
            list.append(ItemRecord::forPath(path, VisibleForm::StringOne));
            ItemRecord record = list.at(0);
            QElapsedTimer timer;
            timer.start();
            hiding.switchItem(record, false);
            const bool bySwitch = isListed();
            hiding.showAtLaunch(list);
            const bool atLaunch = isListed();
            hiding.hideAtQuit(list);
            QVERIFY2(timer.elapsed() < 10000, line);
            QVERIFY2(!QFile::exists(beyond), line + " did " + contentOf(beyond));
            QVERIFY2(stateOf(place) == before, line);
            QVERIFY2(!isMade || (bySwitch == (outcome != "neither") && !atLaunch), line);
            QVERIFY2(!isMade || isListed() == (outcome == "both"), line);
            QCOMPARE(list.at(0).visible(), QVariant("0"));
        }
        sandbox.told();
#endif
    }

    void endsACommandThatDoesNot() {
        Sandbox sandbox;
        const QString noted = sandbox.folder() + "/process";
        sandbox.setCommand("chflags", "sleep 60 & echo $! >'" + noted + "'; wait");
        Shell::setPatience(std::chrono::milliseconds(500));
        Hiding hiding;
        QSignalSpy switched(&hiding, &Hiding::switched);
        ItemRecord record = ItemRecord::forPath(sandbox.makeFile("a"), VisibleForm::StringOne);
        hiding.switchItem(record, false);
        // With all that it started.
        QTRY_COMPARE(kill(contentOf(noted).trimmed().toInt(), 0), -1);
        QCOMPARE(switched.at(0).at(2).value<Hiding::Obstacle>(), Hiding::Obstacle::TimeUp);
        QCOMPARE(record.visible(), QVariant("0"));
    }

    void showsLongPasses() {
        Sandbox sandbox;
        const QString log = sandbox.folder() + "/shown";
        sandbox.setCommand("progress", "cat >'" + log + "'");
        Hiding hiding;
        sandbox.storeList(sandbox.makeFiles({"a", "b", "c"}));
        ItemList list = *sandbox.defaults().itemList();
        hiding.showAtLaunch(list, Hiding::Names::Shown);
        QVERIFY(hiding.hideAtQuit(list, Hiding::Names::Shown));
        QVERIFY(!sandbox.commands().join(u' ').contains("progress"));  // they were short
        sandbox.setCommand("chflags", "sleep 0.3");
        hiding.showAtLaunch(list);
        QTRY_COMPARE(contentOf(log), QByteArray("1\t\0002\t\0", 6));
        QVERIFY(sandbox.commands().contains("progress|launch|3|0"));
        QVERIFY(hiding.hideAtQuit(list, Hiding::Names::Shown, 7));
        QTRY_COMPARE(contentOf(log), QByteArray("1\tb\0002\tc\0", 8));
        QVERIFY(sandbox.commands().contains("progress|quit|3|7"));
        // Stopped at the last item, whose command hangs.
        sandbox.setCommand("chflags", "case $2 in *c) sleep 60;; esac");
        sandbox.setCommand("progress", "{ printf s >&0; cat; } >'" + log + "'");
        Shell::setPatience(std::chrono::seconds(20));
        QVERIFY(!hiding.hideAtQuit(list));
    }
};

int main(int argc, char** argv) {
    return run<HidingTest>(argc, argv);
}

#include "hiding_test.moc"
