#include "state/item_list.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "platform/exceptions.h"

namespace {

/// A change copies one block and the table of blocks: at 100,000 records some hundred each.
constexpr qsizetype blockSize = 256;
constexpr std::size_t fetchedAhead = 12;

struct SortEntry {
    QStringView title;
    const ItemRecord* record;
};

/// What a sort compares. The first characters in which titles of the list differ lie in the key
/// itself, so that few comparisons have to fetch the strings.
struct SortKey {
    quint64 lead;
    const SortEntry* entry;

    bool operator<(const SortKey& other) const {
        return lead != other.lead ? lead < other.lead : entry->title < other.entry->title;
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

/// The keys of a list, read in one walk: titles lie all over the memory, and to fetch them is most
/// of the work. What they have in common is known after the first few; these are done again.
class SortKeys {
public:
    explicit SortKeys(std::size_t size) {
        entries_.reserve(size);
        keys_.reserve(size);
    }

    void append(const ItemRecord& record) {
        const QStringView title = record.fileTitleView();
        learn(title);
        entries_.push_back({title, &record});
        keys_.push_back({leadFrom(prefix_.size(), title, narrow_), &entries_.back()});
    }
    std::vector<SortKey>& finish() {
        for (std::size_t i = 0; i < settled_; ++i)
            keys_[i].lead = leadFrom(prefix_.size(), entries_[i].title, narrow_);
        return keys_;
    }

private:
    void learn(QStringView title) {
        char16_t bits = 0;
        for (const QChar character : title)
            bits |= character.unicode();
        const qsizetype common =
            entries_.empty() ? title.size() : commonPrefixLength(prefix_, title);
        if (common == prefix_.size() && (!narrow_ || bits < 0x100))
            return;
        prefix_ = title.first(common);
        narrow_ = narrow_ && bits < 0x100;
        settled_ = entries_.size();
    }

    std::vector<SortEntry> entries_;
    std::vector<SortKey> keys_;
    QStringView prefix_;
    bool narrow_ = true;
    std::size_t settled_ = 0;  // keys before this one need another lead
};

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
    roomForOne().append(record);
}

void ItemList::append(ItemRecord&& record) {
    roomForOne().append(std::move(record));
}

QList<ItemRecord>& ItemList::roomForOne() {
    if (isEmpty() || blocks_.last().records.size() >= blockSize) {
        Block block{size(), {}};
        // Grown step by step, a block would end up with far more room than it needs.
        block.records.reserve(blockSize);
        blocks_.append(std::move(block));
    }
    return blocks_.last().records;
}

bool ItemList::isShared() const {
    return !blocks_.isDetached() ||
           !std::all_of(blocks_.cbegin(), blocks_.cend(),
                        [](const Block& block) { return block.records.isDetached(); });
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
    const bool shared = isShared();
    std::vector<const ItemRecord*> records;
    records.reserve(static_cast<std::size_t>(size()));
    for (const Block& block : std::as_const(blocks_)) {
        for (const ItemRecord& record : block.records)
            records.push_back(&record);
    }
    SortKeys all(records.size());
    for (std::size_t i = 0; i < records.size(); ++i) {
        records[std::min(i + fetchedAhead, records.size() - 1)]->fetchTitle();
        all.append(*records[i]);
    }
    std::vector<SortKey>& keys = all.finish();
    if (ascending)
        std::sort(keys.begin(), keys.end());
    else
        std::sort(keys.rbegin(), keys.rend());
    ItemList sorted;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        __builtin_prefetch(keys[std::min(i + 2 * fetchedAhead, keys.size() - 1)].entry->record);
        const ItemRecord& record = *keys[i].entry->record;
        if (shared) {
            keys[std::min(i + fetchedAhead, keys.size() - 1)].entry->record->fetchForCopy();
            sorted.append(record);
        } else {
            // Nobody else has the list: its records need not be touched any further.
            sorted.append(std::move(const_cast<ItemRecord&>(record)));
        }
    }
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
