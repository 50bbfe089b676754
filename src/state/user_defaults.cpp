#include "state/user_defaults.h"

#include <vector>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "state/preference_keys.h"
#include "state/store.h"
#include "state/stored_value.h"

namespace {

std::vector<UserDefaults*>& instances() {
    static std::vector<UserDefaults*> all;
    return all;
}

}  // namespace

UserDefaults::UserDefaults(const QString& file, QObject* parent)
    : QObject(parent), store_(Store::open(file)) {
    connect(store_.get(), &Store::problemChanged, this, &UserDefaults::problemChanged);
    instances().push_back(this);
}

UserDefaults::~UserDefaults() {
    // The last save may fail while the store is destroyed; its problem can no longer be asked for.
    store_->disconnect(this);
    std::erase(instances(), this);
}

UserDefaults& UserDefaults::standardUserDefaults() {
    if (instances().empty()) {
        qFatal("There are no user defaults yet.");
    }
    return *instances().back();
}

QString UserDefaults::standardFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/velmora/defaults.json");
}

QString UserDefaults::fileBeside(const QString& name) {
    return QFileInfo(standardFile()).dir().filePath(name);
}

QVariant UserDefaults::objectForKey(const QString& key) const {
    return store_->value(key);
}

void UserDefaults::setObject(const QVariant& value, const QString& key) {
    const QVariant stored = storedForm(value);
    if (key == itemListKey && stored.typeId() == QMetaType::QVariantList) {
        setItemList(ItemList::fromVariantList(stored.toList()));
    } else if (stored.isValid()) {
        store_->setValue(key, stored);
    }
}

std::optional<ItemList> UserDefaults::itemList() const {
    const QVariant list = objectForKey(itemListKey);
    if (list.metaType() != QMetaType::fromType<ItemList>()) {
        return std::nullopt;
    }
    return list.value<ItemList>();
}

void UserDefaults::setItemList(const std::optional<ItemList>& list) {
    if (list) {
        store_->setValue(itemListKey, QVariant::fromValue(*list));
    }
}

bool UserDefaults::synchronize() {
    return store_->synchronize();
}

bool UserDefaults::isRead() const {
    return store_->isRead();
}

bool UserDefaults::readAgain() {
    return store_->readAgain();
}

QString UserDefaults::problem() const {
    return store_->problem();
}
