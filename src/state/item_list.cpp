#include "state/item_list.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/exceptions.h"

namespace {

constexpr qsizetype partSize = 512;

}  // namespace

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
    forEach([&values](const ItemRecord& record) { values.append(record.toVariant()); });
    return values;
}

qsizetype ItemList::size() const {
    return isEmpty() ? 0 : (parts_.size() - 1) * partSize + parts_.constLast().size();
}

const ItemRecord& ItemList::at(qsizetype index) const {
    requireIndex(index);
    return parts_.at(index / partSize).at(index % partSize);
}

void ItemList::append(const ItemRecord& record) {
    if (isEmpty() || parts_.constLast().size() == partSize) {
        parts_.append(QList<ItemRecord>());
    }
    parts_.last().append(record);
}

void ItemList::replace(qsizetype index, const ItemRecord& record) {
    requireIndex(index);
    parts_[index / partSize].replace(index % partSize, record);
}

void ItemList::removeAt(qsizetype index) {
    requireIndex(index);
    qsizetype number = index / partSize;
    parts_[number].removeAt(index % partSize);
    // Each part that follows gives its first record to the one before it.
    for (; number + 1 < parts_.size(); ++number) {
        parts_[number].append(parts_[number + 1].takeFirst());
    }
    if (parts_.constLast().isEmpty()) {
        parts_.removeLast();
    }
}

void ItemList::removeIf(const std::function<bool(const ItemRecord&)>& predicate) {
    ItemList kept;
    forEach([&](const ItemRecord& record) {
        if (!predicate(record)) {
            kept.append(record);
        }
    });
    *this = kept;
}

void ItemList::sortByTitle(bool ascending) {
    // A title has to be looked for in its path: once for each record, not at each comparison.
    struct Entry {
        QStringView title;
        const ItemRecord* record;
    };
    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(size()));
    const ItemList before = *this;
    before.forEach([&entries](const ItemRecord& record) {
        entries.push_back({record.fileTitleView(), &record});
    });
    std::stable_sort(entries.begin(), entries.end(),
                     [ascending](const Entry& left, const Entry& right) {
                         return ascending ? left.title < right.title : right.title < left.title;
                     });
    *this = ItemList();
    for (const Entry& entry : entries) {
        append(*entry.record);
    }
}

void ItemList::forEach(const std::function<void(const ItemRecord&)>& visitor) const {
    const QList<QList<ItemRecord>> parts = parts_;
    for (const QList<ItemRecord>& part : parts) {
        for (const ItemRecord& record : part) {
            visitor(record);
        }
    }
}

void ItemList::requireIndex(qsizetype index) const {
    if (index < 0 || index >= size()) {
        throw RangeException("index " + std::to_string(index) + " beyond a list of " +
                             std::to_string(size()));
    }
}
