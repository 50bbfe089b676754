#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include <QTest>

#include "lists.h"
#include "platform/exceptions.h"
#include "state/readings.h"
#include "state/stored_value.h"

namespace {

QVariant null() {
    return QVariant::fromValue(nullptr);
}

}  // namespace

class ValuesTest final : public QObject {
    Q_OBJECT

private slots:
    void readings() {
        using Limits = std::numeric_limits<qlonglong>;
        const auto check = [](const QVariantList& values, bool truth, qlonglong integer) {
            for (const QVariant& value : values) {
                const QByteArray name = value.typeName() + (' ' + value.toByteArray());
                QVERIFY2(truthReading(value) == truth, name.constData());
                QVERIFY2(integerReading(value) == integer, name.constData());
            }
        };
        check({QVariant(), null(), false, QVariant(QVariantList{1}), QVariantMap{{"1", 1}}, "", "0",
               "no", "on", "+-1", "0 1", "0.9", "0x10"},
              false, 0);
        check({0.5, std::nan(""), "yes", "Y", "true", "Table", QString::fromUtf8("\u00a0+00y")},
              true, 0);
        check({true, 1, "1"}, true, 1);
        check({-2.9}, true, -2);
        check({-3, "-3"}, true, -3);
        check({"12abc", " \t 0012 apples"}, true, 12);
        check({std::numeric_limits<qulonglong>::max(), 1e300, "9223372036854775807",
               "9223372036854775808"},
              true, Limits::max());
        check({-9223372036854775808.0, -1e300, "-9223372036854775808", "-99999999999999999999"},
              true, Limits::min());
    }

    void titleIsTheLastPathComponent() {
        const std::vector<std::pair<QString, QString>> titles{
            {"/a/b", "b"}, {"/a/b//", "b"}, {"/a", "a"}, {"/", "/"},
            {"", ""},      {"b", "b"},      {"//", "/"}, {"/a/ü\n'", "ü\n'"}};
        for (const auto& [path, title] : titles) {
            const auto record = ItemRecord::forPath(path, VisibleForm::NumberOne);
            const QVariantMap dictionary{{"filePath", path}, {"fileTitle", title}, {"visible", 1}};
            QVERIFY(sameStoredValue(record.toVariant(), storedForm(dictionary)));
            QVERIFY(ItemRecord::fromVariant(dictionary) == record);
            QVERIFY(ItemRecord::fromVariant(dictionary).ordinaryForm() == VisibleForm::NumberOne);
        }
    }

    void oddRecordsStayAsTheyWere() {
        const QVariantMap usual{{"filePath", "/a/b"}, {"fileTitle", "b"}, {"visible", "1"}};
        const auto with = [&usual](const QString& key, const QVariant& value) {
            QVariantMap dictionary = usual;
            dictionary.insert(key, value);
            return dictionary;
        };
        const auto values = QVariantList()
                            << null() << "text" << 5 << true << QVariant(QVariantList{usual})
                            << QVariantMap{} << with("visible", true) << with("visible", 1.0)
                            << with("visible", 0) << with("visible", "0") << with("visible", "yes")
                            << with("visible", null()) << with("fileTitle", "c")
                            << with("fileTitle", 7) << with("filePath", usual)
                            << with("note", QVariantList{1, "x", 0.5, null()})
                            << QVariantMap{{"filePath", "/a/b"}};
        std::vector<ItemRecord> records{ItemRecord::fromVariant(usual)};
        for (const QVariant& value : values) {
            ItemRecord record = ItemRecord::fromVariant(value);
            QVERIFY2(sameStoredValue(record.toVariant(), storedForm(value)), value.typeName());
            QVERIFY(std::find(records.cbegin(), records.cend(), record) == records.cend());
            records.push_back(record);
            // A mark goes into any dictionary, and changes nothing else.
            QVariantMap marked = value.toMap();
            marked.insert("visible", "0");
            record.setVisible(VisibleForm::StringZero);
            const bool takesMarks = value.typeId() == QMetaType::QVariantMap;
            QVERIFY(sameStoredValue(record.toVariant(),
                                    storedForm(takesMarks ? QVariant(marked) : value)));
        }
        const auto odd = ItemRecord::fromVariant(with("fileTitle", "c"));
        QVERIFY(odd.fileTitle() == "c" && odd.visible() == "1" && !odd.ordinaryForm());
    }

    void listsShareUntilOneIsChanged() {
        ItemList list = listOf(1100, "item");
        const ItemList held = list;
        const QVariantList before = held.toVariantList();
        QVERIFY(ItemList::fromVariantList(before) == held);
        list.replace(700, ItemRecord());
        QVERIFY(!(list == held));
        list.replace(700, held.at(700));
        QVERIFY(list == held);
        list.removeAt(0);
        list.removeIf([&held](const ItemRecord& record) {
            return record == held.at(1) || record == held.at(600) || record == held.at(1099);
        });
        QVariantList left = before;
        for (const int index : {1099, 600, 1, 0}) {
            left.removeAt(index);
        }
        for (; list.size() > 500; left.removeAt(500)) {
            list.removeAt(500);
        }
        // A walk goes on over what the list was.
        QVariantList walked;
        list.forEach([&](const ItemRecord& record) {
            walked.append(record.toVariant());
            list = ItemList();
        });
        QCOMPARE(walked, left);
        QVERIFY(held.toVariantList() == before);
        list.append(ItemRecord());
        QVERIFY_THROWS_EXCEPTION(RangeException, list.at(-1));
        QVERIFY_THROWS_EXCEPTION(RangeException, list.replace(1, ItemRecord()));
        QVERIFY_THROWS_EXCEPTION(RangeException, list.removeAt(1));
    }
};

QTEST_GUILESS_MAIN(ValuesTest)
#include "values_test.moc"
