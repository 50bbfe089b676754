#include "store_test.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include <QDirIterator>
#include <QProcess>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QSignalSpy>

#include "state/preference_keys.h"
#include "state/store_file.h"
#include "state/user_defaults.h"

namespace {

/// The other process of the test that kills: saves one generation of records after the other.
[[noreturn]] void saveForever(const QString& file) {
    UserDefaults defaults(file);
    for (qlonglong generation = 0;; ++generation) {
        defaults.setItemList(listOf(3000, QString::number(generation)));
        defaults.setObject(generation, QStringLiteral("generation"));
        defaults.synchronize();
    }
}

bool isOneGeneration(const StoreReading& reading) {
    const QString name = reading.contents.value("generation").toString();
    return reading.state == StoreReading::State::Good &&
           reading.contents.value(itemListKey).value<ItemList>() == listOf(3000, name);
}

}  // namespace

class StoreTroubleTest final : public StoreFolder {
    Q_OBJECT

private:
    /// Does it as one whom permissions bind, to whom all that is in the folder belongs.
    void asOrdinaryUser(mode_t folderMode, const std::function<void()>& action) const {
        constexpr uid_t nobody = 65534;
        const QByteArray folder = QFile::encodeName(folder_->path());
        const bool root = ::geteuid() == 0;
        if (root) {
            QVERIFY(::chown(folder.constData(), nobody, nobody) == 0);
            for (QDirIterator entry(folder, QDir::NoDotAndDotDot | QDir::AllEntries,
                                    QDirIterator::Subdirectories);
                 entry.hasNext();) {
                QVERIFY(::chown(QFile::encodeName(entry.next()).constData(), nobody, nobody) == 0);
            }
            QVERIFY(::seteuid(nobody) == 0);
        }
        QVERIFY(::chmod(folder.constData(), folderMode) == 0);
        action();
        QVERIFY(::chmod(folder.constData(), S_IRWXU) == 0);
        QVERIFY(!root || ::seteuid(0) == 0);
    }

private slots:
    void damagedFileIsSetAside_data() {
        QTest::addColumn<QByteArray>("damage");
        const QByteArray good = R"({"password":"old"})";
        const auto damages = QByteArrayList() << ""
                                              << " \n"
                                              << QByteArray(4096, '\0')
                                              << good + QByteArray(10, '\0') << good.chopped(1)
                                              << good.chopped(4) << good + good << "[" + good + "]"
                                              << "1"
                                              << "{\"password\":\"\xfc\"}"
                                              << "{\"password\":\"\xf4"
                                              << "{\"password\":\"\xed\xa0\x80\"}"
                                              << R"({"password":"\ud800"})"
                                              << R"({"password":"old",})"
                                              << "{\"a\":1.7976931348623159e308}"
                                              << "{\"a\":" + QByteArray(1'000'000, '[')
                                              << "{\"a\":" + QByteArray(300'000, '[') +
                                                     QByteArray(300'000, ']') + '}';
        for (const QByteArray& damage : damages) {
            QTest::addRow("%s (%d)", damage.left(22).toPercentEncoding().constData(),
                          static_cast<int>(damage.size()))
                << damage;
        }
    }
    void damagedFileIsSetAside() {
        QFETCH(const QByteArray, damage);
        // Often enough for two in one second.
        for (int round = 1; round <= 3; ++round) {
            const QString expected = round > 1 ? "copy" : "";
            write(file_, damage);
            if (round > 1) {
                write(file_ + ".bak", R"({"password":"copy"})");
            }
            {
                const UserDefaults defaults(file_);
                QCOMPARE(defaults.objectForKey(passwordKey).toString(), expected);
                QCOMPARE(otherFiles().size(), round);
                QVERIFY(!defaults.problem().isEmpty());
                // Until the next save is done, a crash would leave it all as it was.
                QCOMPARE(read(file_), damage);
            }
            for (const QString& name : otherFiles()) {
                QVERIFY(name.startsWith("defaults.json.2"));
                QCOMPARE(read(folder_->filePath(name)), damage);
            }
            const UserDefaults next(file_);
            QCOMPARE(next.problem(), QString());
            QCOMPARE(next.objectForKey(passwordKey).toString(), expected);
        }
        write(file_, damage);
        write(file_ + ".bak", damage);
        QCOMPARE(UserDefaults(file_).objectForKey(passwordKey), QVariant());
        QCOMPARE(otherFiles().filter("defaults.json.bak.2").size(), 1);
    }

    void unreadableStoreIsLeftAlone_data() {
        QTest::addColumn<QString>("closed");
        // The link is one to a disk that is not there.
        for (const char* closed : {"defaults.json", "defaults.json.bak", ".", "link"}) {
            QTest::newRow(closed) << closed;
        }
    }
    void unreadableStoreIsLeftAlone() {
        QFETCH(const QString, closed);
        const bool linked = closed == "link";
        const bool damaged = closed.endsWith(".bak");
        const QString disk = folder_->filePath("disk");
        if (linked) {
            QVERIFY(QDir().mkdir(disk) && QFile::link(disk, folder_->filePath("link")));
        }
        const QString file = linked ? folder_->filePath("link/defaults.json") : file_;
        write(file, damaged ? "{" : R"({"password":"old"})");
        write(file + ".bak", R"({"password":"copy"})");
        const QByteArray path = QFile::encodeName(QDir::cleanPath(folder_->filePath(closed)));
        asOrdinaryUser(S_IRWXU, [&] {
            QVERIFY(linked ? QFile::rename(disk, disk + "2") : ::chmod(path.constData(), 0) == 0);
            UserDefaults defaults(file);
            const QSignalSpy told(&defaults, &UserDefaults::problemChanged);
            QVERIFY(!defaults.isRead());
            QVERIFY(defaults.problem().contains("cannot be read"));
            defaults.setObject("new", passwordKey);
            QVERIFY(!defaults.objectForKey(passwordKey).isValid());
            QVERIFY(defaults.synchronize() && !defaults.readAgain());
            QVERIFY(linked ? QFile::rename(disk + "2", disk)
                           : ::chmod(path.constData(), S_IRWXU) == 0);
            QVERIFY(defaults.readAgain() && !told.isEmpty());
            QCOMPARE(defaults.objectForKey(passwordKey), damaged ? "copy" : "old");
            defaults.setObject("new", passwordKey);
            QVERIFY(defaults.synchronize());
        });
        QCOMPARE(readStore(file).contents.value(passwordKey), "new");
    }

    void missingFileGivesWayToTheCopy() {
        write(file_ + ".bak", R"({"password":"copy"})");
        QVERIFY(UserDefaults(file_).problem().contains("were missing"));
        QCOMPARE(readStore(file_).contents.value(passwordKey), "copy");
        QCOMPARE(UserDefaults(file_).problem(), QString());
        // A copy that is no good is not lost either.
        QVERIFY(QFile::remove(file_));
        write(file_ + ".bak", "{");
        UserDefaults(file_).setObject("new", passwordKey);
        QCOMPARE(otherFiles().filter("defaults.json.bak.2").size(), 1);
    }

    void damagedFileThatCannotBeSetAsideIsNotReplaced() {
        const QByteArray damage = "{\"password\":";
        write(file_, damage);
        write(file_ + ".bak", R"({"password":"copy"})");
        std::unique_ptr<UserDefaults> defaults;
        asOrdinaryUser(S_IRUSR | S_IXUSR, [&] {
            defaults = std::make_unique<UserDefaults>(file_);
            QCOMPARE(defaults->objectForKey(passwordKey), "copy");
            QVERIFY(defaults->problem().contains(file_));
            defaults->setObject("new", passwordKey);
            QVERIFY(!defaults->synchronize());
        });
        QCOMPARE(read(file_), damage);
        QCOMPARE(otherFiles(), QStringList());
        // Possible again, it is made up for.
        defaults->setObject("newer", passwordKey);
        QVERIFY(defaults->synchronize());
        QCOMPARE(otherFiles().size(), 1);
        QCOMPARE(read(file_), R"({"password":"newer"})");
        // What is no ordinary file is not touched either.
        QFile::remove(file_);
        QVERIFY(::mkfifo(QFile::encodeName(file_).constData(), S_IRWXU) == 0);
        defaults = std::make_unique<UserDefaults>(file_);
        QVERIFY(!defaults->synchronize() && !defaults->problem().isEmpty());
        QVERIFY(!QFileInfo(file_).isFile());
    }

    void failedSaveLeavesTheOldFile() {
        UserDefaults defaults(file_);
        defaults.setItemList(listOf(100, "old"));
        QVERIFY(defaults.synchronize());
        const QByteArray before = read(file_);
        QVERIFY(!before.isEmpty());
        const QSignalSpy told(&defaults, &UserDefaults::problemChanged);
        const ItemList list = listOf(10'000, "new");
        rlim_t size = 0;
        encodeStore({{itemListKey, QVariant::fromValue(list)}},
                    [&size](const char*, std::size_t count) { return (size += count) > 0; });
        // The last write is taken in part, and no other comes that would fail.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{size - 100, RLIM_INFINITY};
        QVERIFY(::setrlimit(RLIMIT_FSIZE, &small) == 0);
        defaults.setItemList(list);
        QTRY_COMPARE(told.size(), 1);
        QVERIFY(!defaults.synchronize());
        const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
        QVERIFY(::setrlimit(RLIMIT_FSIZE, &none) == 0);
        QVERIFY(defaults.problem().startsWith("The settings could not be saved: "));
        QCOMPARE(defaults.itemList()->size(), 10'000);
        QCOMPARE(read(file_), before);
        QCOMPARE(read(file_ + ".bak"), before);
        QCOMPARE(otherFiles(), QStringList());
        // The next change tries again.
        defaults.setItemList(listOf(200, "next"));
        QTRY_COMPARE(told.size(), 2);
        QCOMPARE(defaults.problem(), QString());
        QCOMPARE(readStore(file_).contents.value(itemListKey).value<ItemList>().size(), 200);
    }

    void worksInMemoryWithoutAFolder() {
        write(folder_->filePath("file"), "");
        UserDefaults defaults(folder_->filePath("file/folder/defaults.json"));
        QVERIFY(!defaults.problem().isEmpty());
        defaults.setObject("x", passwordKey);
        QVERIFY(!defaults.synchronize());
        QCOMPARE(defaults.objectForKey(passwordKey), "x");
        // Now there may be one.
        QVERIFY(QFile::remove(folder_->filePath("file")));
        defaults.setObject("y", passwordKey);
        QVERIFY(defaults.synchronize());
        QCOMPARE(defaults.problem(), QString());
        QCOMPARE(modeOf(folder_->filePath("file/folder")), 0700U);
    }

    void linkStaysALink() {
        QVERIFY(QDir(folder_->path()).mkdir("elsewhere"));
        QVERIFY(QFile::link("elsewhere/mine.json", file_));
        for (const char* password : {"first", "second"}) {
            UserDefaults(file_).setObject(password, passwordKey);
            QCOMPARE(QFileInfo(file_).symLinkTarget(), folder_->filePath("elsewhere/mine.json"));
            QCOMPARE(UserDefaults(file_).objectForKey(passwordKey), password);
        }
        QVERIFY(!QFileInfo(folder_->filePath("elsewhere/mine.json")).isSymLink());
    }

    void deadTemporariesAreRemoved() {
        for (const char* name :
             {".new-Abc123", ".bak.new-Abc123", ".new-alive0", ".newer", ".2020"}) {
            write(file_ + name, "x");
        }
        const int alive = ::open(QFile::encodeName(file_ + ".new-alive0").constData(), O_RDWR);
        const auto close = qScopeGuard([alive] { ::close(alive); });
        QVERIFY(::flock(alive, LOCK_EX) == 0);
        const UserDefaults defaults(file_);
        QCOMPARE(otherFiles(), QStringList({"defaults.json.2020", "defaults.json.new-alive0",
                                            "defaults.json.newer"}));
    }

    void killedAnywhereTheFileIsWhole() {
        for (int round = 0; round < 30; ++round) {
            QProcess child;
            child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            child.start(QCoreApplication::applicationFilePath(), {"--save-forever", file_});
            const ino_t before = statusOf(file_).st_ino;
            QTRY_VERIFY(statusOf(file_).st_ino != before);
            ::usleep(QRandomGenerator::global()->bounded(40'000));
            child.kill();
            QVERIFY(child.waitForFinished());
            QCOMPARE(child.exitStatus(), QProcess::CrashExit);
            QVERIFY(isOneGeneration(readStore(file_)));
            const StoreReading copy = readStore(file_ + ".bak");
            QVERIFY(copy.state == StoreReading::State::Missing || isOneGeneration(copy));
            const UserDefaults defaults(file_);
            QCOMPARE(defaults.problem(), QString());
            QCOMPARE(otherFiles(), QStringList());
        }
    }
};

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == "--save-forever") {
        saveForever(arguments.at(2));
    }
    StoreTroubleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "store_trouble_test.moc"
