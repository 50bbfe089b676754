#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <limits>
#include <memory>

#include <QDir>
#include <QScopeGuard>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "../support/files.h"
#include "lists.h"
#include "state/preference_keys.h"
#include "state/store_file.h"
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

class StoreTest final : public QObject {
    Q_OBJECT

private:
    /// Names in the folder other than the file and its backup.
    QStringList otherFiles() const {
        QStringList names =
            QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeAll("defaults.json");
        names.removeAll("defaults.json.bak");
        return names;
    }

    std::unique_ptr<QTemporaryDir> folder_;
    QString file_;

private slots:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        file_ = folder_->filePath("defaults.json");
    }
    void cleanup() { folder_.reset(); }

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
            QVariantMap{{"filePath", "/a/c"}, {"fileTitle", "x"}, {"visible", "0"}}, "text"};
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
        // The save is under way now, and everything goes on beside it; its file stays.
        const UserDefaults beside(file_);
        for (int i = 0; i < 100; ++i) {
            defaults.setObject(i, "count");
            QCoreApplication::processEvents();
        }
        QCOMPARE(syncs, 1);
        QVERIFY(!QFile::exists(file_));
        letGo();
        QTRY_VERIFY(contentOf(file_ + ".bak").contains("\"count\":99"));
        QTRY_COMPARE(syncs, 8);
    }

    void unchangedContentIsNotWritten() {
        const QList<std::pair<QVariant, int>> steps{{1, 4}, {1, 0}, {true, 4}};
        for (const auto& [one, wanted] : steps) {
            syncs = 0;
            {
                UserDefaults defaults(file_);
                defaults.setItemList(listOf(1000, "item"));
                defaults.setObject(one, "one");
            }
            QCOMPARE(syncs, wanted);
        }
    }

    void oddContentIsKept() {
        write(file_, R"( {"password": 5, "big": [null, 1e2, 18446744073709551615901.0],
            "fileListView_List": "no", "fileListView_List": [
            {"visible": [], "fileTitle": "z", "filePath": "/y\/z", "visible": "0"}, [{}], 7]})");
        {
            UserDefaults defaults(file_);
            QVERIFY(defaults.problem().isEmpty() && defaults.itemList()->at(0).ordinaryForm());
            defaults.setObject("1", requirePasswordKey);
        }
        QCOMPARE(contentOf(file_),
                 R"({"big":[null,100.0,1.8446744073709552e22],"fileListView_List":[)"
                 R"({"filePath":"/y/z","fileTitle":"z","visible":"0"},[{}],7],)"
                 R"("password":5,"requirePassword":"1"})");
    }

    void listOfAnotherTypeIsSetAsideBeforeItIsReplaced() {
        const QByteArray odd = R"({"fileListView_List":{"filePath":"/a"}})";
        write(file_, odd);
        UserDefaults defaults(file_);
        defaults.setObject("x", "other");
        QVERIFY(!defaults.itemList() && defaults.synchronize() && otherFiles().isEmpty());
        const QSignalSpy told(&defaults, &UserDefaults::problemChanged);
        defaults.setItemList(listOf(1, "item"));
        QVERIFY(defaults.synchronize());
        QCOMPARE(otherFiles().size(), 1);
        QVERIFY(contentOf(folder_->filePath(otherFiles().first())).startsWith(odd.chopped(1)));
        QVERIFY(told.size() == 1 && defaults.problem().contains(otherFiles().first()));
    }

    void unreadableStoreIsLeftAlone() {
        const bool root = ::geteuid() == 0;  // to whom nothing is closed
        QVERIFY(!root || ::seteuid(65534) == 0);
        const auto back = qScopeGuard([root] { QVERIFY(!root || ::seteuid(0) == 0); });
        // The link is one to a disk that is not there.
        for (const QString closed : {"defaults.json", "defaults.json.bak", ".", "link"}) {
            const bool linked = closed == "link";
            const bool damaged = closed.endsWith(".bak");
            const QTemporaryDir folder;
            const QString disk = folder.filePath("disk");
            QVERIFY(QDir().mkdir(disk) && QFile::link(disk, folder.filePath("link")));
            const QString file = folder.filePath(linked ? "link/defaults.json" : "defaults.json");
            write(file, damaged ? "{" : R"({"password":"old"})");
            write(file + ".bak", R"({"password":"copy"})");
            const QByteArray path = QFile::encodeName(QDir::cleanPath(folder.filePath(closed)));
            QVERIFY(linked ? QFile::rename(disk, disk + "2") : ::chmod(path.constData(), 0) == 0);
            UserDefaults defaults(file);
            const QSignalSpy told(&defaults, &UserDefaults::problemChanged);
            QVERIFY(!defaults.isRead() && defaults.problem().contains("cannot be read"));
            defaults.setObject("new", passwordKey);
            QVERIFY(!defaults.objectForKey(passwordKey).isValid());
            QVERIFY(defaults.synchronize() && !defaults.readAgain());
            QVERIFY(linked ? QFile::rename(disk + "2", disk)
                           : ::chmod(path.constData(), 0700) == 0);
            QVERIFY(defaults.readAgain() && !told.isEmpty());
            QCOMPARE(defaults.objectForKey(passwordKey), damaged ? "copy" : "old");
            defaults.setObject("new", passwordKey);
            QVERIFY(defaults.synchronize());
            QCOMPARE(readStore(file).contents.value(passwordKey), "new");
        }
    }

    void whatIsNoOrdinaryFileIsNotTouched() {
        QVERIFY(::mkfifo(QFile::encodeName(file_).constData(), S_IRWXU) == 0);
        UserDefaults defaults(file_);
        QVERIFY(!defaults.synchronize() && !defaults.problem().isEmpty());
        QVERIFY(!QFileInfo(file_).isFile());
    }
};

QTEST_GUILESS_MAIN(StoreTest)
#include "store_test.moc"
