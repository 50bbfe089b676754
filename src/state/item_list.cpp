#include "state/item_list.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/exceptions.h"

namespace {

/// A change copies one block and the table of blocks: at 100,000 records some hundred each.
constexpr qsizetype blockSize = 256;

}  // namespace

ItemList ItemList::fromVariantList(const QVariantList& values) {
    ItemList list;
    for (const QVariant& value : values)
        list.append(ItemRecord::fromVariant(value));
    return list;
}

QVariantList ItemList::toVariantList() const {
    QVariantList values;
    values.reserve(size());
    forEach([&values](const ItemRecord& record) { values.append(record.toVariant()); });
    return values;
}

qsizetype ItemList::size() const {
    return isEmpty() ? 0 : blocks_.last().start + blocks_.last().records.size();
}

bool ItemList::isEmpty() const {
    return blocks_.isEmpty();
}

const ItemRecord& ItemList::at(qsizetype index) const {
    const Block& block = blocks_.at(blockOf(index));
    return block.records.at(index - block.start);
}

void ItemList::append(const ItemRecord& record) {
    if (isEmpty() || blocks_.last().records.size() >= blockSize) {
        Block block{size(), {}};
        // Grown step by step, a block would end up with far more room than it needs.
        block.records.reserve(blockSize);
        blocks_.append(std::move(block));
    }
    blocks_.last().records.append(record);
}

void ItemList::replace(qsizetype index, const ItemRecord& record) {
    Block& block = blocks_[blockOf(index)];
    block.records.replace(index - block.start, record);
}

void ItemList::removeAt(qsizetype index) {
    const qsizetype number = blockOf(index);
    Block& block = blocks_[number];
    block.records.removeAt(index - block.start);
    if (block.records.isEmpty())
        blocks_.removeAt(number);
    renumber();
}

void ItemList::removeIf(const std::function<bool(const ItemRecord&)>& predicate) {
    ItemList kept;
    for (const Block& block : blocks_) {
        QList<ItemRecord> rest;
        rest.reserve(block.records.size());
        for (const ItemRecord& record : block.records) {
            if (!predicate(record))
                rest.append(record);
        }
        // A block that keeps all its records stays shared.
        if (rest.size() == block.records.size())
            kept.blocks_.append(block);
        else if (!rest.isEmpty())
            kept.blocks_.append({0, std::move(rest)});
    }
    kept.renumber();
    *this = std::move(kept);
}

void ItemList::sortByTitle(bool ascending) {
    struct Key {
        QStringView title;
        const ItemRecord* record;
    };
    std::vector<Key> keys;
    keys.reserve(static_cast<std::size_t>(size()));
    forEach([&keys](const ItemRecord& record) {
        keys.push_back({record.fileTitleView(), &record});
    });
    std::sort(keys.begin(), keys.end(), [ascending](const Key& left, const Key& right) {
        return ascending ? left.title < right.title : right.title < left.title;
    });
    ItemList sorted;
    for (const Key& key : keys)
        sorted.append(*key.record);
    *this = std::move(sorted);
}

void ItemList::forEach(const std::function<void(const ItemRecord&)>& visitor) const {
    // The visitor may change this list; the walk goes on over what it was.
    const QList<Block> blocks = blocks_;
    for (const Block& block : blocks) {
        for (const ItemRecord& record : block.records)
            visitor(record);
    }
}

bool ItemList::operator==(const ItemList& other) const {
    if (size() != other.size())
        return false;
    const auto sameBlock = [](const Block& left, const Block& right) {
        return left.start == right.start && left.records == right.records;
    };
    if (blocks_.constData() == other.blocks_.constData() ||
        std::equal(blocks_.cbegin(), blocks_.cend(), other.blocks_.cbegin(), other.blocks_.cend(),
                   sameBlock))
        return true;
    for (qsizetype i = 0; i < size(); ++i) {
        if (!(at(i) == other.at(i)))
            return false;
    }
    return true;
}

/// The number of the block with the record of that index.
qsizetype ItemList::blockOf(qsizetype index) const {
    if (index < 0 || index >= size()) {
        throw RangeException("index " + std::to_string(index) + " beyond a list of " +
                             std::to_string(size()));
    }
    const auto next =
        std::upper_bound(blocks_.cbegin(), blocks_.cend(), index,
                         [](qsizetype wanted, const Block& block) { return wanted < block.start; });
    return next - blocks_.cbegin() - 1;
}

void ItemList::renumber() {
    qsizetype start = 0;
    for (Block& block : blocks_) {
        block.start = start;
        start += block.records.size();
    }
}
