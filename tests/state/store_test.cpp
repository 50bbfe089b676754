#include "store_test.h"

#include <unistd.h>

#include <atomic>
#include <limits>

#include <QScopeGuard>
#include <QSemaphore>
#include <QSignalSpy>

#include "state/preference_keys.h"
#include "state/stored_value.h"
#include "state/user_defaults.h"

namespace {

std::atomic<int> syncs;        // a save makes four: of both files, each with its folder
std::atomic<bool> saveIsHeld;  // until the gate is opened
QSemaphore gate;
constexpr int longestHold = 10'000;  // milliseconds, for a save that the caller waits for

}  // namespace

/// In place of the system's, so that a save can be held as by a slow disk.
extern "C" int fsync(int) {
    ++syncs;
    if (saveIsHeld && !gate.tryAcquire(1, longestHold)) {
        saveIsHeld = false;
    }
    return 0;
}

class StoreTest final : public StoreFolder {
    Q_OBJECT

private slots:
    void everyTypeStaysItself() {
        const QVariant null = QVariant::fromValue(nullptr);
        const auto values = QVariantList()
                            << "" << QString::fromUtf8("ü \"quoted\" \\ \n \u0001 \U0001F600")
                            << QString(QChar(0)) << 1 << true << 1.0 << 1.0 / 3
                            << 4.9406564584124654e-324 << 1.7976931348623157e308
                            << std::numeric_limits<qlonglong>::min()
                            << std::numeric_limits<qulonglong>::max() << null
                            << QVariant(QVariantList()) << QVariantMap()
                            << QVariantMap{{"", QVariantList{false, "1", null}}};
        const QVariantList records{
            QVariantMap{{"filePath", "/a/b"}, {"fileTitle", "b"}, {"visible", 1}},
            QVariantMap{{"filePath", "/a/c"}, {"fileTitle", "c"}, {"visible", "0"}},
            QVariantMap{{"filePath", "/a/c"}, {"fileTitle", "x"}, {"visible", "0"}},
            QVariantMap{{"filePath", "/a/c"}, {"fileTitle", "c"}, {"visible", true}},
            QVariantMap{{"fileTitle", "x"}, {"more", QVariantMap{{"a", QVariantList{2}}}}},
            "text"};
        {
            UserDefaults defaults(file_);
            defaults.setItemList(std::nullopt);
            QVERIFY(!defaults.objectForKey(itemListKey).isValid() && !defaults.itemList());
            defaults.setItemList(ItemList());
            QVERIFY(defaults.itemList() && defaults.itemList()->isEmpty());
            defaults.setObject(values, "values");
            defaults.setObject(QVariant(), "values");
            QCOMPARE(defaults.objectForKey("values").toList().size(), values.size());
            defaults.setObject(records, itemListKey);
        }
        const UserDefaults defaults(file_);
        QVERIFY(sameStoredValue(defaults.objectForKey("values"), storedForm(values)));
        QVERIFY(sameStoredValue(defaults.itemList()->toVariantList(), storedForm(records)));
    }

    void isForItsOwnerAlone() {
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
        QCOMPARE(modeOf(file), 0600U);
        const mode_t before = ::umask(0);
        const QString made = folder_->filePath("made");
        const UserDefaults other(made + "/defaults.json");
        ::umask(before);
        QCOMPARE(modeOf(made), 0700U);
    }

    void changesShareOneSaveThatNobodyWaitsFor() {
        UserDefaults defaults(file_);
        const auto letGo = [] {
            saveIsHeld = false;
            gate.release();
        };
        const auto atEnd = qScopeGuard(letGo);
        syncs = 0;
        saveIsHeld = true;
        defaults.setItemList(listOf(1, "item"));
        defaults.setObject(1, "count");
        QCoreApplication::processEvents();
        QTRY_COMPARE(syncs, 1);
        // The save is under way now, and everything goes on beside it.
        for (int i = 0; i < 100; ++i) {
            defaults.setObject(i, "count");
            QCoreApplication::processEvents();
        }
        QCOMPARE(syncs, 1);
        QVERIFY(!QFile::exists(file_));
        letGo();
        QTRY_VERIFY(read(file_ + ".bak").contains("\"count\":99"));
        QTRY_COMPARE(syncs, 8);
    }

    void unchangedContentIsNotWritten() {
        {
            UserDefaults defaults(file_);
            defaults.setItemList(listOf(1000, "item"));
            defaults.setObject(1, "one");
        }
        syncs = 0;
        {
            UserDefaults defaults(file_);
            defaults.setItemList(listOf(1000, "item"));
            defaults.setObject(1, "one");
        }
        QCOMPARE(syncs, 0);
        UserDefaults(file_).setObject(true, "one");
        QCOMPARE(syncs, 4);
    }

    void oddContentIsKept() {
        write(
            file_,
            " {\"password\": 5, \"later\": [null, {\"a\": 1e2, \"b\": 18446744073709551615901.0}],"
            " \"twice\": 1, \"twice\": 2,"
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

    void listOfAnotherTypeIsSetAsideBeforeItIsReplaced() {
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
};

QTEST_GUILESS_MAIN(StoreTest)
#include "store_test.moc"
