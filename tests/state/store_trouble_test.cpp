#include "store_test.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include "state/preference_keys.h"
#include "state/store_file.h"
#include "state/user_defaults.h"

void StoreTest::damagedFileIsSetAside_data() {
    QTest::addColumn<QByteArray>("damage");
    const QByteArray good = R"({"password":"old"})";
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("blank") << QByteArray(" \n");
    QTest::newRow("zero bytes") << QByteArray(4096, '\0');
    QTest::newRow("zero bytes behind") << good + QByteArray(10, '\0');
    QTest::newRow("truncated") << good.chopped(1);
    QTest::newRow("truncated in a text") << good.chopped(4);
    QTest::newRow("two objects") << good + good;
    QTest::newRow("array") << QByteArray("[" + good + "]");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("text") << QByteArray("\"password\"");
    QTest::newRow("number") << QByteArray("1");
    QTest::newRow("no UTF-8") << QByteArray("{\"password\":\"\xfc\"}");
    QTest::newRow("half a character") << QByteArray("{\"password\":\"\xf4");
    QTest::newRow("encoded surrogate") << QByteArray("{\"password\":\"\xed\xa0\x80\"}");
    QTest::newRow("half an escape") << QByteArray(R"({"password":"\ud800"})");
    QTest::newRow("comma") << QByteArray(R"({"password":"old",})");
    QTest::newRow("another format") << QByteArray("<?xml version=\"1.0\"?><plist/>");
    QTest::newRow("deep") << QByteArray("{\"a\":" + QByteArray(1'000'000, '['));
    QTest::newRow("deep and closed")
        << QByteArray("{\"a\":" + QByteArray(300'000, '[') + QByteArray(300'000, ']') + '}');
    QTest::newRow("beyond all numbers") << QByteArray("{\"a\":1.7976931348623159e308}");
}

void StoreTest::damagedFileIsSetAside() {
    QFETCH(const QByteArray, damage);
    // Often enough for two in one second.
    for (int round = 1; round <= 3; ++round) {
        const bool withCopy = round > 1;
        write(file_, damage);
        if (withCopy)
            write(file_ + ".bak", R"({"password":"copy"})");
        {
            const UserDefaults defaults(file_);
            QCOMPARE(defaults.objectForKey(passwordKey).toString(), withCopy ? "copy" : "");
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
        QCOMPARE(next.objectForKey(passwordKey).toString(), withCopy ? "copy" : "");
    }
    write(file_, damage);
    write(file_ + ".bak", damage);
    QCOMPARE(UserDefaults(file_).objectForKey(passwordKey), QVariant());
    QCOMPARE(otherFiles().filter("defaults.json.bak.2").size(), 1);
}

void StoreTest::unreadableStoreIsLeftAlone_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("file") << "defaults.json";
    QTest::newRow("copy of a damaged file") << "defaults.json.bak";
    QTest::newRow("folder") << ".";
    QTest::newRow("folder that is a link to a disk that is not there") << "link";
}

void StoreTest::unreadableStoreIsLeftAlone() {
    QFETCH(QString, path);
    const QString disk = folder_->filePath("disk");
    const bool linked = path == "link";
    const QString file = linked ? folder_->filePath("link/defaults.json") : file_;
    const QString away = folder_->filePath("away");
    if (linked) {
        QVERIFY(QDir().mkdir(disk) && QFile::link(disk, folder_->filePath("link")));
    }
    write(file, path.endsWith(".bak") ? "{" : R"({"password":"old"})");
    write(file + ".bak", R"({"password":"copy"})");
    const QByteArray closed =
        QFile::encodeName(path == "." ? folder_->path() : folder_->filePath(path));
    const auto close = [&] {
        QVERIFY(linked ? QFile::rename(disk, away) : ::chmod(closed.constData(), 0) == 0);
    };
    const auto open = [&] {
        QVERIFY(linked ? QFile::rename(away, disk) : ::chmod(closed.constData(), 0700) == 0);
    };
    const auto use = [&] {
        UserDefaults defaults(file);
        QSignalSpy told(&defaults, &UserDefaults::problemChanged);
        QVERIFY(!defaults.isRead());
        QVERIFY(defaults.problem().contains("cannot be read"));
        defaults.setObject("new", passwordKey);
        QVERIFY(!defaults.objectForKey(passwordKey).isValid());
        QVERIFY(defaults.synchronize() && !defaults.readAgain());
        open();
        QVERIFY(defaults.readAgain() && !told.isEmpty());
        QCOMPARE(defaults.objectForKey(passwordKey), path.endsWith(".bak") ? "copy" : "old");
        defaults.setObject("new", passwordKey);
        QVERIFY(defaults.synchronize());
    };
    if (linked) {
        close();
        use();
    } else {
        asOrdinaryUser(S_IRWXU, {file, file + ".bak"}, [&] {
            close();
            use();
        });
    }
    QCOMPARE(readStore(file).contents.value(passwordKey), "new");
}

void StoreTest::missingFileGivesWayToTheCopy() {
    write(file_ + ".bak", R"({"password":"copy"})");
    {
        const UserDefaults defaults(file_);
        QCOMPARE(defaults.objectForKey(passwordKey), "copy");
        QVERIFY(defaults.problem().contains("were missing"));
    }
    QCOMPARE(readStore(file_).contents.value(passwordKey), "copy");
    QCOMPARE(UserDefaults(file_).problem(), QString());
}

void StoreTest::damagedFileThatCannotBeSetAsideIsNotReplaced() {
    const QByteArray damage = "{\"password\":";
    write(file_, damage);
    write(file_ + ".bak", R"({"password":"copy"})");
    std::unique_ptr<UserDefaults> defaults;
    asOrdinaryUser(S_IRUSR | S_IXUSR, {file_, file_ + ".bak"}, [&] {
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
    QVERIFY(!defaults->synchronize());
    QVERIFY(!defaults->problem().isEmpty());
    QVERIFY(!QFileInfo(file_).isFile());
}

void StoreTest::failedSaveLeavesTheOldFile_data() {
    QTest::addColumn<QString>("obstacle");
    for (const char* obstacle : {"size limit", "full disk", "read-only folder"})
        QTest::newRow(obstacle) << obstacle;
}

void StoreTest::failedSaveLeavesTheOldFile() {
    QFETCH(const QString, obstacle);
    const QByteArray path = QFile::encodeName(folder_->path());
    const bool fullDisk = obstacle == "full disk";
    if (fullDisk && ::mount("tmpfs", path.constData(), "tmpfs", 0, "size=256k") != 0)
        QSKIP("Only the superuser may mount a small disk.");
    const auto unmount = qScopeGuard([&] {
        if (fullDisk)
            ::umount2(path.constData(), MNT_DETACH);
    });
    UserDefaults defaults(file_);
    defaults.setItemList(listOf(100, "old"));
    QVERIFY(defaults.synchronize());
    const QByteArray before = read(file_);
    const QByteArray copyBefore = read(file_ + ".bak");
    QCOMPARE(copyBefore, before);

    QSignalSpy told(&defaults, &UserDefaults::problemChanged);
    const ItemList list = listOf(10'000, "new");
    const auto fail = [&] {
        defaults.setItemList(list);
        QTRY_COMPARE(told.size(), 1);
        QVERIFY(!defaults.synchronize());
        QVERIFY(defaults.problem().startsWith("The settings could not be saved: "));
        QCOMPARE(defaults.itemList()->size(), 10'000);
    };
    if (obstacle == "read-only folder") {
        asOrdinaryUser(S_IRUSR | S_IXUSR, {file_, file_ + ".bak"}, fail);
    } else if (fullDisk) {
        fail();
    } else {
        std::signal(SIGXFSZ, SIG_IGN);
        rlim_t size = 0;
        encodeStore({{itemListKey, QVariant::fromValue(list)}},
                    [&size](const char*, std::size_t count) { return (size += count) > 0; });
        // The last write is taken in part, and no other comes that would fail.
        const rlimit small{size - 100, RLIM_INFINITY};
        QVERIFY(::setrlimit(RLIMIT_FSIZE, &small) == 0);
        fail();
        const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
        QVERIFY(::setrlimit(RLIMIT_FSIZE, &none) == 0);
    }
    QCOMPARE(read(file_), before);
    QCOMPARE(read(file_ + ".bak"), copyBefore);
    QCOMPARE(otherFiles(), QStringList());

    // The next change tries again.
    defaults.setItemList(listOf(200, "next"));
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(defaults.problem(), QString());
    QCOMPARE(readStore(file_).contents.value(itemListKey).value<ItemList>().size(), 200);
}

void StoreTest::worksInMemoryWithoutAFolder() {
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

void StoreTest::linkStaysALink() {
    QVERIFY(QDir(folder_->path()).mkdir("elsewhere"));
    QVERIFY(QFile::link("elsewhere/mine.json", file_));
    for (const char* password : {"first", "second"}) {
        UserDefaults(file_).setObject(password, passwordKey);
        QCOMPARE(QFileInfo(file_).symLinkTarget(), folder_->filePath("elsewhere/mine.json"));
        QCOMPARE(UserDefaults(file_).objectForKey(passwordKey), password);
    }
    QVERIFY(!QFileInfo(folder_->filePath("elsewhere/mine.json")).isSymLink());
}

void StoreTest::deadTemporariesAreRemoved() {
    for (const char* name : {".new-Abc123", ".bak.new-Abc123", ".new-alive0", ".newer", ".2020"})
        write(file_ + name, "x");
    const int alive = ::open(QFile::encodeName(file_ + ".new-alive0").constData(), O_RDWR);
    const auto close = qScopeGuard([alive] { ::close(alive); });
    QVERIFY(::flock(alive, LOCK_EX) == 0);
    const UserDefaults defaults(file_);
    QCOMPARE(otherFiles(), QStringList({"defaults.json.2020", "defaults.json.new-alive0",
                                        "defaults.json.newer"}));
}

void StoreTest::killedAnywhereTheFileIsWhole() {
    for (int round = 0; round < 30; ++round) {
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(), {"--save-forever", file_});
        const ino_t before = inodeOf(file_);
        QTRY_VERIFY(inodeOf(file_) != before);
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
