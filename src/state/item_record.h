#pragma once

#include <memory>
#include <optional>

#include <QExplicitlySharedDataPointer>
#include <QLatin1StringView>
#include <QSharedData>
#include <QString>
#include <QVariant>

/// The three forms of the visibility flag that the program itself writes. They are deliberately
/// not uniform, and the store keeps them apart.
enum class VisibleForm : quint8 { StringOne, StringZero, NumberOne };

/// "b" for "/a/b" and "/a/b/", "/" for "/"; a view into the path.
QStringView lastPathComponent(QStringView path);

/// One entry of the item list: a dictionary with the keys `filePath`, `fileTitle` and `visible`.
///
/// Entries that the program does not know, and known keys that hold an unexpected type, are kept
/// as they were read and written back unchanged. A value type; copies are cheap.
class ItemRecord {
public:
    static constexpr QLatin1StringView filePathKey{"filePath"};
    static constexpr QLatin1StringView fileTitleKey{"fileTitle"};
    static constexpr QLatin1StringView visibleKey{"visible"};

    /// An empty dictionary.
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
    /// The same without a copy; valid as long as this record is neither changed nor destroyed.
    QStringView fileTitleView() const;
    /// The stored flag in whatever form it has; invalid when absent.
    QVariant visible() const;
    /// Without effect on a value that is no dictionary.
    void setVisible(VisibleForm form);

    /// The flag of a record that equals forPath(filePath(), flag); no value for any other.
    std::optional<VisibleForm> ordinaryForm() const;

    /// Equality of the whole dictionaries, types included.
    bool operator==(const ItemRecord& other) const;

private:
    /// A stored value with anything beyond the path, its last component and a known flag.
    struct Odd {
        QVariant value;
        QString title;
    };
    struct Entry : QSharedData {
        QString path;
        VisibleForm form = VisibleForm::StringOne;
        std::unique_ptr<const Odd> odd;  // null in an ordinary record
    };

    explicit ItemRecord(const Entry* entry) : entry_(entry) {}
    bool isOrdinary() const { return entry_ && !entry_->odd; }

    // One pointer, so that a long list is copied in a moment; null for an empty dictionary.
    QExplicitlySharedDataPointer<const Entry> entry_;
};

Q_DECLARE_TYPEINFO(ItemRecord, Q_RELOCATABLE_TYPE);
