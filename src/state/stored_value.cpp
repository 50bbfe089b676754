#include "state/stored_value.h"

#include <algorithm>
#include <limits>

#include "state/item_list.h"

namespace {

QVariant storedInteger(qulonglong number) {
    if (number > static_cast<qulonglong>(std::numeric_limits<qlonglong>::max())) {
        return QVariant::fromValue(number);
    }
    return QVariant::fromValue(static_cast<qlonglong>(number));
}

/// What cannot be stored still keeps its place among the others, as null.
QVariant storedElement(const QVariant& value) {
    const QVariant stored = storedForm(value);
    return stored.isValid() ? stored : QVariant::fromValue(nullptr);
}

QVariant storedArray(const QVariantList& array) {
    QVariantList stored;
    stored.reserve(array.size());
    for (const QVariant& value : array) {
        stored.append(storedElement(value));
    }
    return stored;
}

QVariant storedDictionary(const QVariantMap& dictionary) {
    QVariantMap stored;
    for (auto entry = dictionary.cbegin(); entry != dictionary.cend(); ++entry) {
        stored.insert(entry.key(), storedElement(entry.value()));
    }
    return stored;
}

}  // namespace

QVariant storedForm(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Nullptr:
        case QMetaType::Double:
            return value;
        case QMetaType::Float:
            return value.toDouble();
        case QMetaType::Short:
        case QMetaType::Int:
        case QMetaType::Long:
        case QMetaType::LongLong:
            return QVariant::fromValue(value.toLongLong());
        case QMetaType::UShort:
        case QMetaType::UInt:
        case QMetaType::ULong:
        case QMetaType::ULongLong:
            return storedInteger(value.toULongLong());
        case QMetaType::QString:
            // A null string would read as "none" later, which a stored string never is.
            return value.toString().isNull() ? QVariant(QLatin1String("")) : value;
        case QMetaType::QStringList:
        case QMetaType::QVariantList:
            return storedArray(value.toList());
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash:
            return storedDictionary(value.toMap());
        default:
            return value.metaType() == QMetaType::fromType<ItemList>() ? value : QVariant();
    }
}

bool sameStoredValue(const QVariant& left, const QVariant& right) {
    if (left.metaType() != right.metaType()) {
        return false;
    }
    switch (left.typeId()) {
        case QMetaType::Nullptr:
            return true;
        case QMetaType::QVariantList: {
            const QVariantList a = left.toList();
            const QVariantList b = right.toList();
            return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), sameStoredValue);
        }
        case QMetaType::QVariantMap: {
            const QVariantMap a = left.toMap();
            const QVariantMap b = right.toMap();
            return a.size() == b.size() &&
                   std::equal(a.constKeyValueBegin(), a.constKeyValueEnd(), b.constKeyValueBegin(),
                              [](const auto& one, const auto& other) {
                                  return one.first == other.first &&
                                         sameStoredValue(one.second, other.second);
                              });
        }
        default:
            return left == right;
    }
}
