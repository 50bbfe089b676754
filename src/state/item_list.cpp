#include "state/item_list.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/exceptions.h"

ItemList ItemList::fromVariantList(const QVariantList& values) {
    ItemList list;
    for (const QVariant& value : values) {
        list.append(ItemRecord::fromVariant(value));
    }
    return list;
}

QVariantList ItemList::toVariantList() const {
    QVariantList values;
    values.reserve(size());
    for (const ItemRecord& record : records_) {
        values.append(record.toVariant());
    }
    return values;
}

const ItemRecord& ItemList::at(qsizetype index) const {
    requireIndex(index);
    return records_.at(index);
}

void ItemList::replace(qsizetype index, const ItemRecord& record) {
    requireIndex(index);
    records_.replace(index, record);
}

void ItemList::removeAt(qsizetype index) {
    requireIndex(index);
    records_.removeAt(index);
}

void ItemList::removeIf(const std::function<bool(const ItemRecord&)>& predicate) {
    records_.removeIf(predicate);
}

void ItemList::sortByTitle(bool ascending) {
    // A title has to be looked for in its path: once for each record, not at each comparison.
    struct Entry {
        QStringView title;
        const ItemRecord* record;
    };
    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(size()));
    for (const ItemRecord& record : std::as_const(records_)) {
        entries.push_back({record.fileTitleView(), &record});
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [ascending](const Entry& left, const Entry& right) {
                         return ascending ? left.title < right.title : right.title < left.title;
                     });
    QList<ItemRecord> sorted;
    sorted.reserve(size());
    for (const Entry& entry : entries) {
        sorted.append(*entry.record);
    }
    records_ = std::move(sorted);
}

void ItemList::forEach(const std::function<void(const ItemRecord&)>& visitor) const {
    // The visitor may change this list; the walk goes on over what it was.
    const QList<ItemRecord> records = records_;
    for (const ItemRecord& record : records) {
        visitor(record);
    }
}

void ItemList::requireIndex(qsizetype index) const {
    if (index < 0 || index >= size()) {
        throw RangeException("index " + std::to_string(index) + " beyond a list of " +
                             std::to_string(size()));
    }
}
