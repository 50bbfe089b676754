#include "state/missing_items.h"

#include <QSet>

#include "platform/file_finder.h"
#include "state/preference_keys.h"
#include "state/user_defaults.h"

namespace {

ItemList takeMissing(ItemList& list) {
    ItemList missing;
    FileFinder files(list.size());
    list.removeIf([&](const ItemRecord& record) {
        const bool gone = !files.exists(record.filePath());
        if (gone) {
            missing.append(record);
        }
        return gone;
    });
    return missing;
}

// Records without a path have nothing to be found by again; they are kept as they are.
void removePathsOf(const ItemList& records, ItemList& from) {
    QSet<QString> paths;
    records.forEach([&](const ItemRecord& record) { paths.insert(record.filePath()); });
    from.removeIf([&](const ItemRecord& record) {
        return !record.filePath().isNull() && paths.contains(record.filePath());
    });
}

}  // namespace

void removeMissingItems(UserDefaults& defaults) {
    std::optional<ItemList> list = defaults.itemList();
    if (list) {
        const QVariant stored = defaults.objectForKey(missingItemsKey);
        ItemList kept = ItemList::fromVariantList(stored.toList());
        const ItemList missing = takeMissing(*list);
        removePathsOf(*list, kept);
        removePathsOf(missing, kept);
        missing.forEach([&](const ItemRecord& record) { kept.append(record); });
        if (stored.typeId() == QMetaType::QVariantList || !kept.isEmpty()) {
            defaults.setObject(kept.toVariantList(), missingItemsKey);
        }
    }
    defaults.setItemList(list);
}
