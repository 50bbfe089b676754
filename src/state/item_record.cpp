#include "state/item_record.h"

#include "state/stored_value.h"

namespace {

QVariant flagValue(VisibleForm form) {
    switch (form) {
        case VisibleForm::StringOne:
            return QStringLiteral("1");
        case VisibleForm::StringZero:
            return QStringLiteral("0");
        case VisibleForm::NumberOne:
            return QVariant::fromValue<qlonglong>(1);
    }
    Q_UNREACHABLE();
}

std::optional<VisibleForm> knownForm(const QVariant& value) {
    for (const VisibleForm form :
         {VisibleForm::StringOne, VisibleForm::StringZero, VisibleForm::NumberOne}) {
        if (sameStoredValue(value, flagValue(form))) {
            return form;
        }
    }
    return std::nullopt;
}

/// The entry's text; null when it is missing or no string.
QString textEntry(const QVariantMap& dictionary, QLatin1StringView key) {
    const QVariant value = dictionary.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

}  // namespace

QStringView lastPathComponent(QStringView path) {
    while (path.size() > 1 && path.back() == u'/') {
        path.chop(1);
    }
    return path.size() > 1 ? path.sliced(path.lastIndexOf(u'/') + 1) : path;
}

ItemRecord ItemRecord::forPath(const QString& path, VisibleForm visible) {
    auto* entry = new Entry;
    entry->path = path.isNull() ? QStringLiteral("") : path;
    entry->form = visible;
    return ItemRecord(entry);
}

ItemRecord ItemRecord::fromVariant(const QVariant& value) {
    const QVariant stored = storedForm(value);
    const QVariantMap entries = stored.toMap();
    if (stored.typeId() == QMetaType::QVariantMap && entries.isEmpty()) {
        return {};
    }
    const QString path = textEntry(entries, filePathKey);
    const QString title = textEntry(entries, fileTitleKey);
    const std::optional<VisibleForm> form = knownForm(entries.value(visibleKey));
    if (entries.size() == 3 && form && !path.isNull() && !title.isNull() &&
        title == lastPathComponent(path)) {
        return forPath(path, *form);
    }
    auto* entry = new Entry;
    entry->path = path;
    entry->odd = std::make_unique<const Odd>(
        Odd{stored.isValid() ? stored : QVariant::fromValue(nullptr), title});
    return ItemRecord(entry);
}

QVariant ItemRecord::toVariant() const {
    if (!entry_) {
        return QVariantMap();
    }
    if (entry_->odd) {
        return entry_->odd->value;
    }
    return QVariantMap{{filePathKey, filePath()},
                       {fileTitleKey, fileTitle()},
                       {visibleKey, flagValue(entry_->form)}};
}

QString ItemRecord::filePath() const {
    return entry_ ? entry_->path : QString();
}

QString ItemRecord::fileTitle() const {
    return isOrdinary() ? fileTitleView().toString() : entry_ ? entry_->odd->title : QString();
}

QStringView ItemRecord::fileTitleView() const {
    if (!entry_) {
        return {};
    }
    return entry_->odd ? QStringView(entry_->odd->title) : lastPathComponent(entry_->path);
}

QVariant ItemRecord::visible() const {
    if (!entry_) {
        return {};
    }
    return entry_->odd ? entry_->odd->value.toMap().value(visibleKey) : flagValue(entry_->form);
}

void ItemRecord::setVisible(VisibleForm form) {
    const QVariant value = toVariant();
    if (value.typeId() == QMetaType::QVariantMap) {
        QVariantMap dictionary = value.toMap();
        dictionary.insert(visibleKey, flagValue(form));
        *this = fromVariant(dictionary);
    }
}

std::optional<VisibleForm> ItemRecord::ordinaryForm() const {
    return isOrdinary() ? std::optional(entry_->form) : std::nullopt;
}

bool ItemRecord::operator==(const ItemRecord& other) const {
    if (entry_ == other.entry_) {
        return true;
    }
    if (!isOrdinary() || !other.isOrdinary()) {
        return sameStoredValue(toVariant(), other.toVariant());
    }
    return entry_->path == other.entry_->path && entry_->form == other.entry_->form;
}
