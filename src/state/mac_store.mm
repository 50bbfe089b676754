#import <Foundation/Foundation.h>

#include "state/item_list.h"
#include "state/preference_keys.h"
#include "state/store.h"

namespace {

QVariant fromNumber(NSNumber* number) {
    const auto reference = (__bridge CFNumberRef)number;
    if (CFGetTypeID(reference) == CFBooleanGetTypeID())
        return static_cast<bool>(number.boolValue);
    if (CFNumberIsFloatType(reference))
        return number.doubleValue;
    return QVariant::fromValue<qlonglong>(number.longLongValue);
}

QVariant fromObject(id object) {
    if ([object isKindOfClass:NSString.class])
        return QString::fromNSString(object);
    if ([object isKindOfClass:NSNumber.class])
        return fromNumber(object);
    if ([object isKindOfClass:NSArray.class]) {
        QVariantList list;
        for (id element in static_cast<NSArray*>(object))
            list.append(fromObject(element));
        return list;
    }
    if ([object isKindOfClass:NSDictionary.class]) {
        NSDictionary* dictionary = object;
        QVariantMap map;
        for (NSString* key in dictionary)
            map.insert(QString::fromNSString(key), fromObject(dictionary[key]));
        return map;
    }
    return {};
}

/// Nil for null, which property lists do not know.
id toObject(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::QString:
            return value.toString().toNSString();
        case QMetaType::Bool:
            return @(value.toBool());
        case QMetaType::LongLong:
            return @(value.toLongLong());
        case QMetaType::ULongLong:
            return @(value.toULongLong());
        case QMetaType::Double:
            return @(value.toDouble());
        case QMetaType::QVariantMap: {
            NSMutableDictionary* dictionary = [NSMutableDictionary dictionary];
            const QVariantMap map = value.toMap();
            for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
                dictionary[entry.key().toNSString()] = toObject(entry.value());
            return dictionary;
        }
        case QMetaType::QVariantList: {
            NSMutableArray* array = [NSMutableArray array];
            const QVariantList list = value.toList();
            for (const QVariant& element : list) {
                if (id object = toObject(element))
                    [array addObject:object];
            }
            return array;
        }
        default:
            return nil;
    }
}

/// The system's own defaults database, which keeps all the promises by itself.
class MacStore final : public Store {
public:
    QVariant value(const QString& key) const override {
        @autoreleasepool {
            const QVariant value =
                fromObject([NSUserDefaults.standardUserDefaults objectForKey:key.toNSString()]);
            if (key == itemListKey && value.typeId() == QMetaType::QVariantList)
                return QVariant::fromValue(ItemList::fromVariantList(value.toList()));
            return value;
        }
    }

    void setValue(const QString& key, const QVariant& value) override {
        @autoreleasepool {
            const bool isList = value.metaType() == QMetaType::fromType<ItemList>();
            id object = toObject(isList ? value.value<ItemList>().toVariantList() : value);
            if (object)
                [NSUserDefaults.standardUserDefaults setObject:object forKey:key.toNSString()];
        }
    }

    bool synchronize() override { return [NSUserDefaults.standardUserDefaults synchronize]; }
    QString problem() const override { return {}; }
};

}  // namespace

std::unique_ptr<Store> Store::open(const QString& /*file*/) {
    return std::make_unique<MacStore>();
}
