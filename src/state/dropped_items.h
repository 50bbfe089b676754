#pragma once

#include <QString>

#include "state/item_list.h"

/// The small file beside the settings that keeps the records which a start has dropped because
/// nothing was at their paths (an unplugged disk, say): an item that was hidden there would be
/// forgotten otherwise. One record for each path, the latest; never more than was dropped.
class DroppedItems {
public:
    static inline const QString fileName = QStringLiteral("dropped-items.json");

    explicit DroppedItems(const QString& file) : file_(file) {}

    /// Adds the records. What cannot be written is not reported: the list itself is unharmed.
    void keep(const ItemList& records) const;
    /// Forgets the records of these paths: their items are in the list again.
    void forget(const QStringList& paths) const;
    /// All that is kept; empty when there is none.
    ItemList records() const;

private:
    void write(const ItemList& records) const;

    QString file_;
};
