#include "state/mac_store.h"

#include "state/item_list.h"
#include "state/preference_keys.h"
#include "state/stored_value.h"

std::unique_ptr<Store> Store::open(const QString& /*file*/) {
    // Together these are the application's identifier, which names its domain.
    return std::make_unique<MacStore>(
        std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                    QStringLiteral("velmora.com"), QStringLiteral("Velmora")));
}

MacStore::MacStore(std::unique_ptr<QSettings> settings) : settings_(std::move(settings)) {
    settings_->setFallbacksEnabled(false);  // keys of the system's and of other programs' domains
}

QVariant MacStore::value(const QString& key) const {
    // Small integers come back as int, lists of texts as QStringList.
    QVariant value = storedForm(settings_->value(key));
    if (key == itemListKey && value.typeId() == QMetaType::QVariantList) {
        return QVariant::fromValue(ItemList::fromVariantList(value.toList()));
    }
    return value;
}

void MacStore::setValue(const QString& key, const QVariant& value) {
    const bool isList = value.metaType() == QMetaType::fromType<ItemList>();
    settings_->setValue(key, isList ? value.value<ItemList>().toVariantList() : value);
}

bool MacStore::synchronize() {
    settings_->sync();
    return settings_->status() == QSettings::NoError;
}
