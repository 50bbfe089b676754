#include "state/mac_store.h"

#include <QDataStream>
#include <QTemporaryDir>
#include <QTest>

#include "state/item_list.h"
#include "state/preference_keys.h"
#include "state/stored_value.h"

namespace {

/// Settings that keep the types of a property list apart, where the system has none such.
QSettings::Format typed() {
    static const QSettings::Format format = QSettings::registerFormat(
        QStringLiteral("typed"),
        [](QIODevice& file, QSettings::SettingsMap& values) {
            QDataStream stream(&file);
            stream >> values;
            return stream.status() == QDataStream::Ok;
        },
        [](QIODevice& file, const QSettings::SettingsMap& values) {
            QDataStream stream(&file);
            stream << values;
            return stream.status() == QDataStream::Ok;
        });
    return format;
}

}  // namespace

class MacStoreTest final : public QObject {
    Q_OBJECT

private slots:
    void init() { QVERIFY(folder_.isValid()); }
    void everyTypeStaysItself();
    void readsWhatTheSystemKeeps();
    void tellsWhetherItCouldSave();

private:
    MacStore open(const QString& name) const {
        return MacStore(std::make_unique<QSettings>(folder_.filePath(name), typed()));
    }

    const QTemporaryDir folder_;
};

void MacStoreTest::everyTypeStaysItself() {
    const QVariantMap values{{"text", "@home"},
                             {"true", true},
                             {"one", 1},
                             {"real one", 1.0},
                             {"null", QVariant::fromValue(nullptr)},
                             {"array", QVariantList{1, true, 1.0, "1", QVariantMap{{"1", "0"}}}},
                             {"empty array", QVariantList()}};
    ItemList list;
    list.append(ItemRecord::forPath("/a/b", VisibleForm::StringOne));
    {
        MacStore store = open("types");
        for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
            store.setValue(entry.key(), storedForm(entry.value()));
        }
        store.setValue(itemListKey, QVariant::fromValue(list));
        QVERIFY(store.value(itemListKey).value<ItemList>() == list);
        QVERIFY(store.synchronize());
    }
    const MacStore store = open("types");
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
        QVERIFY2(sameStoredValue(store.value(entry.key()), storedForm(entry.value())),
                 qPrintable(entry.key()));
    }
    QVERIFY(store.value(itemListKey).value<ItemList>() == list);
    QVERIFY(!store.value("absent").isValid());
}

void MacStoreTest::readsWhatTheSystemKeeps() {
    const QVariantList records{QVariantMap{{"filePath", "/a/b"}, {"visible", 1}}, "text"};
    {
        QSettings system(folder_.filePath("system"), typed());
        system.setValue("texts", QStringList{"a", "b"});
        system.setValue(itemListKey, records);
    }
    const MacStore store = open("system");
    QVERIFY(sameStoredValue(store.value("texts"), QVariantList{"a", "b"}));
    QVERIFY(sameStoredValue(store.value(itemListKey).value<ItemList>().toVariantList(),
                            storedForm(records)));
}

void MacStoreTest::tellsWhetherItCouldSave() {
    QVERIFY(QFile(folder_.filePath("file")).open(QIODevice::WriteOnly));
    MacStore store = open("file/below");
    store.setValue("key", true);
    QVERIFY(!store.synchronize());
}

QTEST_GUILESS_MAIN(MacStoreTest)
#include "mac_store_test.moc"
