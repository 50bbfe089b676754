#pragma once

#include <QSharedDataPointer>
#include <QString>
#include <QVariant>

/// The three forms of the visibility flag that the program itself writes. They are deliberately
/// not uniform, and the store keeps them apart.
enum class VisibleForm { StringOne, StringZero, NumberOne };

/// One entry of the item list: a dictionary with the keys `filePath`, `fileTitle` and `visible`.
///
/// Entries that the program does not know, and known keys that hold an unexpected type, are kept
/// as they were read and written back unchanged. A value type; copies are cheap.
class ItemRecord {
public:
    ItemRecord() = default;

    /// A new record: the title is the last path component ("b" for "/a/b/").
    static ItemRecord forPath(const QString& path, VisibleForm visible);
    /// From a stored value. A value that is no dictionary is kept whole and has no path.
    static ItemRecord fromVariant(const QVariant& value);
    QVariant toVariant() const;

    /// Absolute path, the item's identity; a null string when the record has none.
    QString filePath() const;
    /// The text shown in the row and the key of the header sort; null when the record has none.
    QString fileTitle() const;
    /// The stored flag in whatever form it has; invalid when absent.
    QVariant visible() const;
    void setVisible(VisibleForm form);

    /// Equality of the whole dictionaries, types included.
    bool operator==(const ItemRecord& other) const;
};
