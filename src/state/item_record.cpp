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
        if (sameStoredValue(value, flagValue(form)))
            return form;
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
    while (path.size() > 1 && path.back() == u'/')
        path.chop(1);
    return path.size() > 1 ? path.sliced(path.lastIndexOf(u'/') + 1) : path;
}

ItemRecord ItemRecord::forPath(const QString& path, VisibleForm visible) {
    ItemRecord record;
    record.path_ = path.isNull() ? QStringLiteral("") : path;
    record.form_ = visible;
    return record;
}

ItemRecord ItemRecord::fromVariant(const QVariant& value) {
    const QVariant stored = storedForm(value);
    ItemRecord record;
    const bool dictionary = stored.typeId() == QMetaType::QVariantMap;
    const QVariantMap entries = stored.toMap();
    if (dictionary && entries.isEmpty())
        return record;

    record.path_ = textEntry(entries, filePathKey);
    const QString title = textEntry(entries, fileTitleKey);
    const std::optional<VisibleForm> form = knownForm(entries.value(visibleKey));
    if (entries.size() == 3 && form && !record.path_.isNull() && !title.isNull() &&
        title == lastPathComponent(record.path_)) {
        record.form_ = *form;
        return record;
    }
    auto* odd = new Odd;
    record.odd_ = QExplicitlySharedDataPointer<const Odd>(odd);
    odd->value = stored.isValid() ? stored : QVariant::fromValue(nullptr);
    odd->title = title;
    return record;
}

QVariant ItemRecord::toVariant() const {
    if (odd_)
        return odd_->value;
    if (!isOrdinary())
        return QVariantMap();
    return QVariantMap{
        {filePathKey, path_}, {fileTitleKey, fileTitle()}, {visibleKey, flagValue(form_)}};
}

QString ItemRecord::filePath() const {
    return path_;
}

QString ItemRecord::fileTitle() const {
    return odd_ ? odd_->title : fileTitleView().toString();
}

QStringView ItemRecord::fileTitleView() const {
    return odd_ ? QStringView(odd_->title) : lastPathComponent(path_);
}

QVariant ItemRecord::visible() const {
    if (odd_)
        return odd_->value.toMap().value(visibleKey);
    return isOrdinary() ? flagValue(form_) : QVariant();
}

void ItemRecord::setVisible(VisibleForm form) {
    if (isOrdinary()) {
        form_ = form;
        return;
    }
    const QVariant value = toVariant();
    if (value.typeId() != QMetaType::QVariantMap)
        return;
    QVariantMap dictionary = value.toMap();
    dictionary.insert(visibleKey, flagValue(form));
    *this = fromVariant(dictionary);
}

std::optional<VisibleForm> ItemRecord::ordinaryForm() const {
    return isOrdinary() ? std::optional(form_) : std::nullopt;
}

bool ItemRecord::operator==(const ItemRecord& other) const {
    if (odd_ && other.odd_)
        return odd_ == other.odd_ || sameStoredValue(odd_->value, other.odd_->value);
    if (odd_ || other.odd_ || path_.isNull() != other.path_.isNull())
        return false;
    return path_ == other.path_ && (form_ == other.form_ || path_.isNull());
}
