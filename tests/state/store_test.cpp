#include "store_test.h"

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "state/preference_keys.h"
#include "state/stored_value.h"
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

}  // namespace

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

void StoreTest::isForItsOwnerAlone() {
    const QString wide = folder_->filePath("wide");
    const QString file = wide + "/defaults.json";
    QVERIFY(QDir().mkdir(wide));
    write(file, "{}");
    write(file + ".bak", "{}");
    for (const QString& path : {wide, file, file + ".bak"}) {
        QVERIFY(::chmod(QFile::encodeName(path).constData(), 0777) == 0);
    }
    UserDefaults defaults(file);
    QCOMPARE(modeOf(file) | modeOf(file + ".bak"), 0700U);
    defaults.setObject("x", passwordKey);
    QVERIFY(defaults.synchronize());
    QCOMPARE(modeOf(wide), 0700U);
    const mode_t before = ::umask(0);
    const QString made = folder_->filePath("made");
    const UserDefaults other(made + "/defaults.json");
    ::umask(before);
    QCOMPARE(modeOf(made), 0700U);
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

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == "--save-forever")
        saveForever(arguments.at(2));
    StoreTest test;
    return QTest::qExec(&test, argc, argv);
}
