#pragma once

#include <functional>

#include <QList>

#include "state/item_record.h"

/// The ordered array of item records. Display order is list order.
///
/// A value type that shares its content until it is changed, so that the working copy, the store
/// and a save in progress can hold the same list: changing one record of a large list copies a part
/// of it.
class ItemList {
public:
    ItemList() = default;
    static ItemList fromVariantList(const QVariantList& values);
    QVariantList toVariantList() const;

    qsizetype size() const;
    bool isEmpty() const { return parts_.isEmpty(); }
    /// Throws RangeException (platform/exceptions.h) when the index is outside the list; so do
    /// replace() and removeAt().
    const ItemRecord& at(qsizetype index) const;

    void append(const ItemRecord& record);
    void replace(qsizetype index, const ItemRecord& record);
    void removeAt(qsizetype index);
    /// Removes every record for which the predicate answers true; keeps the order of the rest.
    void removeIf(const std::function<bool(const ItemRecord&)>& predicate);
    /// Sorts by `fileTitle`, plain UTF-16 comparison; records of equal titles in any order.
    void sortByTitle(bool ascending);
    /// Calls the visitor for every record in order. It may change this list: the records visited
    /// are those that were there at the call.
    void forEach(const std::function<void(const ItemRecord&)>& visitor) const;

    /// Equality of the records in their order; quick for lists that share their content.
    bool operator==(const ItemList& other) const { return parts_ == other.parts_; }

private:
    void requireIndex(qsizetype index) const;

    // All full but the last, none empty.
    QList<QList<ItemRecord>> parts_;
};

Q_DECLARE_METATYPE(ItemList)
