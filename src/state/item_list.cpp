#include "state/item_list.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "platform/exceptions.h"

namespace {

/// A change copies one block and the table of blocks: at 100,000 records some hundred each.
constexpr qsizetype blockSize = 256;

/// What a sort compares. The first characters in which titles of the list differ lie in the key
/// itself, so that few comparisons have to fetch the strings.
struct SortKey {
    quint64 lead;
    const QStringView* title;

    bool operator<(const SortKey& other) const {
        return lead != other.lead ? lead < other.lead : *title < *other.title;
    }
};

qsizetype commonPrefixLength(QStringView left, QStringView right) {
    return std::mismatch(left.cbegin(), left.cend(), right.cbegin(), right.cend()).first -
           left.cbegin();
}

/// The characters from there on as one number that sorts like them: eight, or four where they
/// need more than a byte each.
quint64 leadFrom(qsizetype start, QStringView title, bool narrow) {
    const int bits = narrow ? 8 : 16;
    quint64 lead = 0;
    for (qsizetype i = start; i < start + 64 / bits; ++i)
        lead = lead << bits | (i < title.size() ? title.at(i).unicode() : 0U);
    return lead;
}

std::vector<SortKey> sortKeys(const std::vector<QStringView>& titles) {
    QStringView prefix = titles.empty() ? QStringView() : titles.front();
    char16_t allBits = 0;
    for (const QStringView title : titles) {
        prefix.truncate(commonPrefixLength(prefix, title));
        for (const QChar character : title)
            allBits |= character.unicode();
    }
    std::vector<SortKey> keys;
    keys.reserve(titles.size());
    for (const QStringView& title : titles)
        keys.push_back({leadFrom(prefix.size(), title, allBits < 0x100), &title});
    return keys;
}

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
        const QList<ItemRecord>& records = block.records;
        const auto firstRemoved = std::find_if(records.cbegin(), records.cend(), predicate);
        // A block that keeps all its records stays shared.
        if (firstRemoved == records.cend()) {
            kept.blocks_.append(block);
            continue;
        }
        QList<ItemRecord> rest(records.cbegin(), firstRemoved);
        std::remove_copy_if(firstRemoved + 1, records.cend(), std::back_inserter(rest), predicate);
        if (!rest.isEmpty())
            kept.blocks_.append({0, std::move(rest)});
    }
    kept.renumber();
    *this = std::move(kept);
}

void ItemList::sortByTitle(bool ascending) {
    std::vector<QStringView> titles;
    std::vector<const ItemRecord*> records;
    titles.reserve(static_cast<std::size_t>(size()));
    records.reserve(static_cast<std::size_t>(size()));
    for (const Block& block : std::as_const(blocks_)) {
        for (const ItemRecord& record : block.records) {
            titles.push_back(record.fileTitleView());
            records.push_back(&record);
        }
    }
    std::vector<SortKey> keys = sortKeys(titles);
    if (ascending)
        std::sort(keys.begin(), keys.end());
    else
        std::sort(keys.rbegin(), keys.rend());
    ItemList sorted;
    for (const SortKey& key : keys)
        sorted.append(*records[static_cast<std::size_t>(key.title - titles.data())]);
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
    const bool sameBlocks =
        std::equal(blocks_.cbegin(), blocks_.cend(), other.blocks_.cbegin(), other.blocks_.cend(),
                   [](const Block& left, const Block& right) { return left.start == right.start; });
    if (sameBlocks) {
        // A block that both lists share is not looked into.
        return std::equal(
            blocks_.cbegin(), blocks_.cend(), other.blocks_.cbegin(),
            [](const Block& left, const Block& right) { return left.records == right.records; });
    }
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
