#include <algorithm>
#include <limits>
#include <vector>

#include <QRandomGenerator>
#include <QTest>
#include <QTranslator>

#include "platform/exceptions.h"
#include "state/item_list.h"
#include "state/preference_keys.h"
#include "state/readings.h"
#include "state/stored_value.h"

namespace {

QVariant null() {
    return QVariant::fromValue(nullptr);
}

/// A record whose title tells it apart from the others.
ItemRecord numbered(quint32 number) {
    return ItemRecord::forPath(QStringLiteral("/some/where/%1").arg(number),
                               VisibleForm::StringOne);
}

/// Has other words for some of the preference names.
class Table final : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override {
        const QByteArray entry = QByteArray(context) + '/' + source;
        return entry == "Main/Makevisibleallthelisteditemsatlaunch" ? QStringLiteral("launch")
                                                                    : QString();
    }
    bool isEmpty() const override { return false; }
};

}  // namespace

class ValuesTest final : public QObject {
    Q_OBJECT

private slots:
    void readings_data();
    void readings();
    void preferenceKeysGoThroughTheNamedTable();
    void titleIsTheLastPathComponent();
    void oddRecordsStayAsTheyWere();
    void flagIsSetInAnyDictionary();
    void listsShareUntilOneIsChanged();
    void listSortsByTitle();
    void indexOutsideTheListThrows();
};

void ValuesTest::readings_data() {
    using Limits = std::numeric_limits<qlonglong>;
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("truth");
    QTest::addColumn<qlonglong>("integer");
    const auto row = [](const QVariant& value, bool truth, qlonglong integer) {
        const QByteArray name = value.isValid() ? value.toString().toUtf8() : "missing";
        QTest::addRow("%s %s", value.typeName(), name.constData()) << value << truth << integer;
    };
    row({}, false, 0);
    row(null(), false, 0);
    row(true, true, 1);
    row(false, false, 0);
    row(1, true, 1);
    row(-3, true, -3);
    row(QVariant::fromValue(std::numeric_limits<qulonglong>::max()), true, Limits::max());
    row(0.5, true, 0);
    row(-2.9, true, -2);
    row(1e300, true, Limits::max());
    row(-9223372036854775808.0, true, Limits::min());
    row(QVariantList{1}, false, 0);
    row(QVariantMap{{"1", 1}}, false, 0);
    const auto text = [&row](const char* value, bool truth, qlonglong integer) {
        row(QString::fromUtf8(value), truth, integer);
    };
    text("", false, 0);
    text("1", true, 1);
    text("0", false, 0);
    text("yes", true, 0);
    text("Y", true, 0);
    text("true", true, 0);
    text("Table", true, 0);
    text("no", false, 0);
    text("on", false, 0);
    text(" \t -0007 apples", true, -7);
    text("\u00a0+00y", true, 0);
    text("+-1", false, 0);
    text("0 1", false, 0);
    text("0.9", false, 0);
    text("12abc", true, 12);
    text("0x10", false, 0);
    text("9223372036854775807", true, Limits::max());
    text("9223372036854775808", true, Limits::max());
    text("-9223372036854775808", true, Limits::min());
    text("-99999999999999999999", true, Limits::min());
}

void ValuesTest::readings() {
    QFETCH(const QVariant, value);
    QTEST(truthReading(value), "truth");
    QTEST(integerReading(value), "integer");
}

void ValuesTest::preferenceKeysGoThroughTheNamedTable() {
    const auto launch = Preference::MakeVisibleAtLaunch;
    QCOMPARE(resolvedPreferenceKey(launch, "Main"), "Makevisibleallthelisteditemsatlaunch");
    QCOMPARE(resolvedPreferenceKey(Preference::MakeInvisibleOnQuit),
             "Makeinvisibleallthelisteditemsonquit");
    QCOMPARE(resolvedPreferenceKey(Preference::OpenOnDoubleClick),
             "Makevisibleandopenhiddenitemsondoubleclick");
    QCOMPARE(resolvedPreferenceKey(Preference::AlternatingRowColors),
             "UseAlternatingColorsFortheItemsListRows");
    Table table;
    QCoreApplication::installTranslator(&table);
    QCOMPARE(resolvedPreferenceKey(launch, "Main"), "launch");
    QCOMPARE(resolvedPreferenceKey(launch), "Makevisibleallthelisteditemsatlaunch");
}

void ValuesTest::titleIsTheLastPathComponent() {
    const std::vector<std::pair<QString, QString>> titles{
        {"/a/b", "b"}, {"/a/b/", "b"}, {"/a/b//", "b"}, {"/a", "a"},        {"/", "/"},
        {"", ""},      {"b", "b"},     {"//", "/"},     {"/a/ü\n'", "ü\n'"}};
    for (const auto& [path, title] : titles) {
        const auto record = ItemRecord::forPath(path, VisibleForm::NumberOne);
        QCOMPARE(record.fileTitle(), title);
        QVERIFY(!record.filePath().isNull() && !record.fileTitle().isNull());
        const QVariantMap dictionary{{"filePath", path}, {"fileTitle", title}, {"visible", 1}};
        QVERIFY(sameStoredValue(record.toVariant(), storedForm(dictionary)));
        QVERIFY(ItemRecord::fromVariant(dictionary) == record);
    }
}

void ValuesTest::oddRecordsStayAsTheyWere() {
    const QVariantMap usual{{"filePath", "/a/b"}, {"fileTitle", "b"}, {"visible", "1"}};
    const auto with = [&usual](const QString& key, const QVariant& value) {
        QVariantMap dictionary = usual;
        dictionary.insert(key, value);
        return dictionary;
    };
    const QVariantList values{null(),
                              "text",
                              5,
                              true,
                              QVariantList{usual},
                              QVariantMap{},
                              with("visible", true),
                              with("visible", 1.0),
                              with("visible", 0),
                              with("visible", "yes"),
                              with("visible", null()),
                              with("fileTitle", "c"),
                              with("fileTitle", 7),
                              with("filePath", usual),
                              with("note", QVariantList{1, "x", 0.5, null()}),
                              QVariantMap{{"filePath", "/a/b"}}};
    std::vector<ItemRecord> records{ItemRecord::fromVariant(usual)};
    for (const QVariant& value : values) {
        const ItemRecord record = ItemRecord::fromVariant(value);
        QVERIFY2(sameStoredValue(record.toVariant(), storedForm(value)), value.typeName());
        QVERIFY(std::find(records.cbegin(), records.cend(), record) == records.cend());
        QVERIFY(record == ItemRecord::fromVariant(record.toVariant()));
        records.push_back(record);
    }
    QVERIFY(ItemRecord() == ItemRecord::fromVariant(QVariantMap()));
    QVERIFY(ItemRecord::fromVariant("text").filePath().isNull());
    QVERIFY(!ItemRecord::fromVariant("text").visible().isValid());
    QCOMPARE(ItemRecord::fromVariant(with("fileTitle", "c")).fileTitle(), "c");
    QVERIFY(ItemRecord::fromVariant(with("fileTitle", 7)).fileTitle().isNull());
    QCOMPARE(ItemRecord::fromVariant(with("visible", "yes")).visible(), "yes");
}

void ValuesTest::flagIsSetInAnyDictionary() {
    auto record = ItemRecord::fromVariant(QVariantMap{{"visible", QVariantList{}}, {"note", 1.5}});
    record.setVisible(VisibleForm::StringZero);
    const QVariantMap marked{{"visible", "0"}, {"note", 1.5}};
    QVERIFY(sameStoredValue(record.toVariant(), marked));
    auto mended = ItemRecord::fromVariant(
        QVariantMap{{"filePath", "/a"}, {"fileTitle", "a"}, {"visible", "yes"}});
    mended.setVisible(VisibleForm::StringOne);
    QVERIFY(mended == ItemRecord::forPath("/a", VisibleForm::StringOne));
    auto text = ItemRecord::fromVariant("text");
    text.setVisible(VisibleForm::StringOne);
    QCOMPARE(text.toVariant(), "text");
}

void ValuesTest::listsShareUntilOneIsChanged() {
    ItemList list;
    for (int i = 0; i < 20; ++i) {
        list.append(numbered(static_cast<quint32>(i)));
    }
    const ItemList held = list;
    const QVariantList before = held.toVariantList();
    QVERIFY(list == held);
    QVERIFY(ItemList::fromVariantList(before) == held);
    list.replace(3, ItemRecord());
    QVERIFY(!(list == held));
    list.replace(3, held.at(3));
    QVERIFY(list == held);
    list.removeAt(0);
    int asked = 0;
    list.removeIf([&asked, &held](const ItemRecord& record) {
        ++asked;
        return record == held.at(1) || record == held.at(5) || record == held.at(19);
    });
    QCOMPARE(asked, 19);
    QVariantList left = before;
    for (const int index : {19, 5, 1, 0}) {
        left.removeAt(index);
    }
    QCOMPARE(list.toVariantList(), left);
    // A walk goes on over what the list was.
    QVariantList walked;
    list.forEach([&](const ItemRecord& record) {
        walked.append(record.toVariant());
        list.replace(list.size() - 1, ItemRecord());
    });
    QCOMPARE(walked, left);
    QVERIFY(held.toVariantList() == before);
}

void ValuesTest::listSortsByTitle() {
    QRandomGenerator random(7);
    ItemList list;
    QStringList titles;
    for (int i = 0; i < 3000; ++i) {
        // Short alphabets with both ends of UTF-16, so that prefixes and whole titles repeat.
        QString title(QStringLiteral("pre"));
        for (quint32 length = random.bounded(7U); length > 0; --length)
            title += QStringView(u"aB\uffffé\u0001").at(random.bounded(5));
        titles.append(title);
        list.append(ItemRecord::forPath(u'/' + title, VisibleForm::StringOne));
    }
    list.append(ItemRecord());
    titles.append(QString());
    std::sort(titles.begin(), titles.end());
    // The second time round others hold the list, which must not notice.
    for (const auto& [ascending, shared] : {std::pair(true, false), std::pair(false, false),
                                            std::pair(true, true), std::pair(false, true)}) {
        const ItemList held = shared ? list : ItemList();
        const QVariantList before = held.toVariantList();
        list.sortByTitle(ascending);
        QVERIFY(held.toVariantList() == before);
        QStringList sorted;
        list.forEach([&sorted](const ItemRecord& record) { sorted.append(record.fileTitle()); });
        if (!ascending)
            std::reverse(sorted.begin(), sorted.end());
        QCOMPARE(sorted, titles);
    }
}

void ValuesTest::indexOutsideTheListThrows() {
    ItemList list;
    QVERIFY_THROWS_EXCEPTION(RangeException, list.at(0));
    list.append(numbered(1));
    QVERIFY_THROWS_EXCEPTION(RangeException, list.at(-1));
    QVERIFY_THROWS_EXCEPTION(RangeException, list.replace(1, numbered(2)));
    QVERIFY_THROWS_EXCEPTION(RangeException, list.removeAt(1));
    QCOMPARE(list.size(), 1);
}

QTEST_GUILESS_MAIN(ValuesTest)
#include "values_test.moc"
