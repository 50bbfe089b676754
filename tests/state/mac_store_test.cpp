#include "state/mac_store.h"

#include <QDataStream>
#include <QTemporaryDir>
#include <QTest>

#include "state/item_list.h"
#include "state/preference_keys.h"
#include "state/stored_value.h"

class MacStoreTest final : public QObject {
    Q_OBJECT

private slots:
    void keepsValuesAsTheSystemDoes() {
        // Settings that keep the types of a property list apart, where the system has none such.
        const auto typed = QSettings::registerFormat(
            "typed",
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
        const QTemporaryDir folder;
        const auto open = [&](const QString& name) {
            return std::make_unique<QSettings>(folder.filePath(name), typed);
        };
        const QVariant values = storedForm(
            QVariantList{true, 1, 1.0, "@1", QVariant::fromValue(nullptr), QVariantMap{{"1", 0}}});
        const QVariantList records{QVariantMap{{"filePath", "/a/b"}, {"visible", 1}}, "text"};
        open("file")->setValue("texts", QStringList{"a", "b"});
        {
            MacStore store(open("file"));
            store.setValue("values", values);
            store.setValue(itemListKey, QVariant::fromValue(ItemList::fromVariantList(records)));
            QVERIFY(store.synchronize());
        }
        const MacStore store(open("file"));
        QVERIFY(sameStoredValue(store.value("values"), values));
        QVERIFY(sameStoredValue(store.value("texts"), QVariantList{"a", "b"}));
        QVERIFY(sameStoredValue(store.value(itemListKey).value<ItemList>().toVariantList(),
                                storedForm(records)));
        QVERIFY(!store.value("absent").isValid());
        MacStore nowhere(open("file/below"));
        nowhere.setValue("key", true);
        QVERIFY(!nowhere.synchronize());
    }
};

QTEST_GUILESS_MAIN(MacStoreTest)
#include "mac_store_test.moc"
