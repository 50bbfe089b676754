#include <fcntl.h>
#include <sys/file.h>
#include <sys/inotify.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "state/preference_keys.h"
#include "state/store_file.h"
#include "state/stored_value.h"
#include "state/user_defaults.h"

namespace {

ItemList listOf(int count, const QString& name) {
    ItemList list;
    for (int i = 0; i < count; ++i) {
        list.append(ItemRecord::forPath(QStringLiteral("/some/where/%1/%2").arg(i).arg(name),
                                        VisibleForm::StringOne));
    }
    return list;
}

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
    if (reading.state != StoreReading::State::Good)
        return false;
    const QString name = reading.contents.value("generation").toString();
    const auto list = reading.contents.value(itemListKey).value<ItemList>();
    return list == listOf(3000, name);
}

ino_t inodeOf(const QString& file) {
    struct stat status {};
    return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_ino : 0;
}

mode_t modeOf(const QString& file) {
    struct stat status {};
    return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_mode & 0777U : 0;
}

QByteArray read(const QString& file) {
    QFile input(file);
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
}

void write(const QString& file, const QByteArray& bytes) {
    QFile output(file);
    QVERIFY(output.open(QIODevice::WriteOnly) && output.write(bytes) == bytes.size());
}

}  // namespace

class StoreTest final : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { folder_.reset(); }

    void everyTypeStaysItself();
    void readsSeeWritesAtOnce();
    void changesShareOneSaveThatNobodyWaitsFor();
    void unchangedContentIsNotWritten();
    void oddContentIsKept();
    void listOfAnotherTypeIsSetAsideBeforeItIsReplaced();
    void damagedFileIsSetAside_data();
    void damagedFileIsSetAside();
    void unreadableFileIsSetAside();
    void damagedFileThatCannotBeSetAsideIsNotReplaced();
    void failedSaveLeavesTheOldFile_data();
    void failedSaveLeavesTheOldFile();
    void worksInMemoryWithoutAFolder();
    void linkStaysALink();
    void deadTemporariesAreRemoved();
    void killedAnywhereTheFileIsWhole();

private:
    /// Names in the folder other than the file and its backup.
    QStringList otherFiles() const {
        QStringList names =
            QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeAll("defaults.json");
        names.removeAll("defaults.json.bak");
        return names;
    }
    void asOrdinaryUser(mode_t folderMode, const QStringList& ownFiles,
                        const std::function<void()>& action) const;

    std::unique_ptr<QTemporaryDir> folder_;
    QString file_;
};

void StoreTest::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
    file_ = folder_->filePath("defaults.json");
}

void StoreTest::asOrdinaryUser(mode_t folderMode, const QStringList& ownFiles,
                               const std::function<void()>& action) const {
    constexpr uid_t nobody = 65534;
    const QByteArray path = QFile::encodeName(folder_->path());
    const bool root = ::geteuid() == 0;
    if (root) {
        QVERIFY(::chown(path.constData(), nobody, nobody) == 0);
        for (const QString& file : ownFiles)
            QVERIFY(::chown(QFile::encodeName(file).constData(), nobody, nobody) == 0);
        QVERIFY(::seteuid(nobody) == 0);
    }
    QVERIFY(::chmod(path.constData(), folderMode) == 0);
    action();
    QVERIFY(::chmod(path.constData(), S_IRWXU) == 0);
    if (root)
        QVERIFY(::seteuid(0) == 0);
}

void StoreTest::everyTypeStaysItself() {
    const QVariant null = QVariant::fromValue(nullptr);
    QVariantMap values{{"empty text", ""},
                       {"text", QString::fromUtf8("ü \"quoted\" \\ \n \u0001 \U0001F600")},
                       {"zero byte", QString(QChar(0))},
                       {"one", 1},
                       {"true", true},
                       {"real one", 1.0},
                       {"third", 1.0 / 3},
                       {"tiny", 4.9406564584124654e-324},
                       {"huge", 1.7976931348623157e308},
                       {"least", std::numeric_limits<qlonglong>::min()},
                       {"most", std::numeric_limits<qulonglong>::max()},
                       {"null", null},
                       {"empty array", QVariantList()},
                       {"empty dictionary", QVariantMap()},
                       {"", QVariantList{1, true, 1.0, "1", null, QVariantMap{{"1", "0"}}}}};
    const QVariantList records{
        QVariantMap{{"filePath", "/a/b"}, {"fileTitle", "b"}, {"visible", 1}},
        QVariantMap{{"filePath", "/a/c"}, {"fileTitle", "c"}, {"visible", "0"}},
        QVariantMap{{"filePath", "/a/c"}, {"fileTitle", "c"}, {"visible", true}},
        QVariantMap{{"fileTitle", "x"}, {"more", QVariantMap{{"a", QVariantList{2}}}}},
        "text",
        null,
        QVariantList{QVariantList{}}};
    {
        UserDefaults defaults(file_);
        for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
            defaults.setObject(entry.value(), entry.key());
        defaults.setObject(records, itemListKey);
        defaults.setObject(QVariant(), "text");
    }
    const UserDefaults defaults(file_);
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
        QVERIFY2(sameStoredValue(defaults.objectForKey(entry.key()), storedForm(entry.value())),
                 qPrintable(entry.key()));
    }
    QVERIFY(sameStoredValue(defaults.itemList()->toVariantList(), storedForm(records)));
    QVERIFY(!defaults.objectForKey("absent").isValid());
    QCOMPARE(modeOf(file_), 0600U);
}

void StoreTest::readsSeeWritesAtOnce() {
    UserDefaults defaults(file_);
    QVERIFY(!defaults.itemList());
    defaults.setItemList(std::nullopt);
    QVERIFY(!defaults.objectForKey(itemListKey).isValid());
    defaults.setItemList(ItemList());
    QVERIFY(defaults.itemList() && defaults.itemList()->isEmpty());
    defaults.setObject("secret", passwordKey);
    QCOMPARE(defaults.objectForKey(passwordKey), "secret");
    QVERIFY(!preference(Preference::OpenOnDoubleClick));
    setPreference(Preference::OpenOnDoubleClick, true);
    QVERIFY(preference(Preference::OpenOnDoubleClick));
}

void StoreTest::changesShareOneSaveThatNobodyWaitsFor() {
    UserDefaults defaults(file_);
    const ItemList list = listOf(100'000, "item");
    QElapsedTimer timer;
    timer.start();
    defaults.setItemList(list);
    QVERIFY(defaults.synchronize());
    const qint64 wholeSave = timer.nsecsElapsed();

    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    const auto closeWatch = qScopeGuard([watch] { ::close(watch); });
    QVERIFY(::inotify_add_watch(watch, QFile::encodeName(folder_->path()).constData(),
                                IN_MOVED_TO) >= 0);
    qint64 longestTurn = 0;
    const auto turn = [&timer, &longestTurn] {
        timer.start();
        QCoreApplication::processEvents();
        longestTurn = qMax(longestTurn, timer.nsecsElapsed());
    };
    for (int i = 0; i < 100; ++i) {
        ItemList changed = *defaults.itemList();
        changed.replace(i * 1000, ItemRecord());
        defaults.setItemList(changed);
        defaults.setObject(i, "count");
    }
    turn();
    QTRY_VERIFY((turn(), read(file_ + ".bak").contains("\"count\":99")));
    std::array<char, 4096> events{};
    QString names;
    for (ssize_t at = 0, end = ::read(watch, events.data(), events.size()); at < end;) {
        const auto* event = reinterpret_cast<const inotify_event*>(events.data() + at);
        names += QString::fromUtf8(event->name) + u' ';
        at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
    }
    QCOMPARE(names, "defaults.json defaults.json.bak ");
    QVERIFY2(longestTurn < wholeSave / 3,
             qPrintable(QStringLiteral("%1 of %2 ns").arg(longestTurn).arg(wholeSave)));
}

void StoreTest::unchangedContentIsNotWritten() {
    {
        UserDefaults defaults(file_);
        defaults.setItemList(listOf(1000, "item"));
        defaults.setObject(1, "one");
    }
    const ino_t before = inodeOf(file_);
    {
        UserDefaults defaults(file_);
        ItemList list = *defaults.itemList();
        list.removeIf([](const ItemRecord&) { return false; });
        defaults.setItemList(list);
        defaults.setItemList(listOf(1000, "item"));
        defaults.setObject(1, "one");
        QCoreApplication::processEvents();
    }
    QCOMPARE(inodeOf(file_), before);
    UserDefaults(file_).setObject(true, "one");
    QVERIFY(inodeOf(file_) != before);
}

void StoreTest::oddContentIsKept() {
    write(file_,
          " {\"password\": 5, \"later\": [null, {\"a\": 1e2, \"b\": 18446744073709551615901.0}], "
          "\"twice\": 1, \"twice\": 2,"
          "\"fileListView_List\": \"no\", \"fileListView_List\": ["
          "{\"filePath\": \"/a\", \"visible\": [], \"visible\": \"1\", \"filePath\": 3},"
          "{\"visible\": \"0\", \"fileTitle\": \"z\", \"filePath\": \"/y\\/z\"}, [{}], 7]}\n");
    {
        UserDefaults defaults(file_);
        QCOMPARE(defaults.problem(), QString());
        QCOMPARE(defaults.itemList()->at(0).filePath(), QString());
        QCOMPARE(defaults.itemList()->at(1).ordinaryForm(), VisibleForm::StringZero);
        defaults.setObject("1", requirePasswordKey);
    }
    QCOMPARE(read(file_),
             "{\"fileListView_List\":[{\"filePath\":3,\"visible\":\"1\"},"
             "{\"filePath\":\"/y/z\",\"fileTitle\":\"z\",\"visible\":\"0\"},[{}],7],"
             "\"later\":[null,{\"a\":100.0,\"b\":1.8446744073709552e22}],\"password\":5,"
             "\"requirePassword\":\"1\",\"twice\":2}");
}

void StoreTest::listOfAnotherTypeIsSetAsideBeforeItIsReplaced() {
    const QByteArray odd = R"({"fileListView_List":{"filePath":"/a"}})";
    write(file_, odd);
    UserDefaults defaults(file_);
    QVERIFY(!defaults.itemList());
    defaults.setObject("x", "other");
    QVERIFY(defaults.synchronize());
    QCOMPARE(otherFiles(), QStringList());
    const QSignalSpy told(&defaults, &UserDefaults::problemChanged);
    defaults.setItemList(listOf(1, "item"));
    QVERIFY(defaults.synchronize());
    QCOMPARE(otherFiles().size(), 1);
    QVERIFY(read(folder_->filePath(otherFiles().first())).startsWith(odd.chopped(1)));
    QCOMPARE(told.size(), 1);
    QVERIFY(defaults.problem().contains(otherFiles().first()));
    QCOMPARE(UserDefaults(file_).itemList()->size(), 1);
}

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

void StoreTest::unreadableFileIsSetAside() {
    write(file_, R"({"password":"old"})");
    write(file_ + ".bak", R"({"password":"copy"})");
    QVERIFY(::chmod(QFile::encodeName(file_).constData(), 0) == 0);
    // For the superuser, the file of somebody else: one that takes no second link.
    asOrdinaryUser(S_IRWXU, {file_ + ".bak"}, [&] {
        const UserDefaults defaults(file_);
        QCOMPARE(defaults.objectForKey(passwordKey), "copy");
        QVERIFY(defaults.problem().contains(file_ + ".2"));
    });
    QCOMPARE(otherFiles().size(), 1);
    QCOMPARE(modeOf(folder_->filePath(otherFiles().first())), 0U);
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

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == "--save-forever")
        saveForever(arguments.at(2));
    StoreTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "store_test.moc"
