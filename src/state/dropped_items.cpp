#include "state/dropped_items.h"

#include <QSet>

#include "state/preference_keys.h"
#include "state/store_file.h"

namespace {

// Records without a path have nothing to be found by again; they are kept as they are.
ItemList without(const ItemList& records, const QSet<QString>& paths) {
    ItemList rest = records;
    rest.removeIf([&](const ItemRecord& record) {
        return !record.filePath().isNull() && paths.contains(record.filePath());
    });
    return rest;
}

}  // namespace

void DroppedItems::keep(const ItemList& records) const {
    if (records.isEmpty()) {
        return;
    }
    QSet<QString> paths;
    records.forEach([&](const ItemRecord& record) { paths.insert(record.filePath()); });
    ItemList all = without(this->records(), paths);
    records.forEach([&](const ItemRecord& record) { all.append(record); });
    write(all);
}

void DroppedItems::forget(const QStringList& paths) const {
    const ItemList kept = records();
    if (kept.isEmpty()) {
        return;
    }
    const ItemList rest = without(kept, QSet<QString>(paths.cbegin(), paths.cend()));
    if (rest.size() != kept.size()) {
        write(rest);
    }
}

ItemList DroppedItems::records() const {
    const StoreReading reading = readStore(file_);
    if (reading.state == StoreReading::State::Damaged) {
        setAside(file_);
    }
    return reading.contents.value(itemListKey).value<ItemList>();
}

void DroppedItems::write(const ItemList& records) const {
    replaceStore(file_, {{itemListKey, QVariant::fromValue(records)}});
}
