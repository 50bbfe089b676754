#include "state/user_defaults.h"

#include <future>
#include <vector>

#include <QStandardPaths>

#include "state/preference_keys.h"
#include "state/store_file.h"
#include "state/stored_value.h"

namespace {

std::vector<UserDefaults*>& instances() {
    static std::vector<UserDefaults*> all;
    return all;
}

}  // namespace

struct UserDefaults::Store {
    QString file;
    StoreContents contents;
    /// Changes that no save has taken up, or that the last one failed to keep.
    bool unsaved = false;
    bool saveScheduled = false;
    /// The file holds something that must not be lost under the next save.
    bool asideNeeded = false;
    /// The save in progress.
    std::future<QString> save;
    int saveNumber = 0;
    QString foundAtStart;
    QString saveProblem;
};

UserDefaults::UserDefaults(const QString& file, QObject* parent)
    : QObject(parent), store_(std::make_unique<Store>()) {
    store_->file = file;
    instances().push_back(this);
    load();
}

UserDefaults::~UserDefaults() {
    synchronize();
    std::erase(instances(), this);
}

UserDefaults& UserDefaults::standardUserDefaults() {
    if (instances().empty())
        qFatal("There are no user defaults yet.");
    return *instances().back();
}

QString UserDefaults::standardFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/velmora/defaults.json");
}

QVariant UserDefaults::objectForKey(const QString& key) const {
    return store_->contents.value(key);
}

void UserDefaults::setObject(const QVariant& value, const QString& key) {
    QVariant stored = storedForm(value);
    if (!stored.isValid())
        return;
    if (key == itemListKey && stored.typeId() == QMetaType::QVariantList)
        stored = QVariant::fromValue(ItemList::fromVariantList(stored.toList()));
    QVariant& current = store_->contents[key];
    if (!store_->unsaved && sameStoredValue(current, stored))
        return;
    if (key == itemListKey && current.isValid() && !itemList())
        store_->asideNeeded = true;
    current = stored;
    changed();
}

std::optional<ItemList> UserDefaults::itemList() const {
    const QVariant list = objectForKey(itemListKey);
    if (list.metaType() != QMetaType::fromType<ItemList>())
        return std::nullopt;
    return list.value<ItemList>();
}

void UserDefaults::setItemList(const std::optional<ItemList>& list) {
    if (list)
        setObject(QVariant::fromValue(*list), itemListKey);
}

bool UserDefaults::synchronize() {
    if (store_->save.valid())
        finishSave(store_->save.get());
    if (store_->unsaved)
        startSave();
    if (store_->save.valid())
        finishSave(store_->save.get());
    return !store_->unsaved;
}

QString UserDefaults::problem() const {
    return store_->saveProblem.isEmpty() ? store_->foundAtStart : store_->saveProblem;
}

void UserDefaults::load() {
    using State = StoreReading::State;
    const QString backup = backupFile();
    removeStaleTemporaries(store_->file);
    removeStaleTemporaries(backup);
    if (!makeFolderOf(store_->file)) {
        store_->saveProblem =
            tr("The settings folder could not be made. Changes are kept only "
               "until the program ends.");
        return;
    }
    StoreReading reading = readStore(store_->file);
    store_->contents = std::move(reading.contents);
    if (reading.state == State::Missing || reading.state == State::Good)
        return;

    StoreReading copy = readStore(backup);
    store_->contents = std::move(copy.contents);
    store_->asideNeeded = true;
    const QString found = copy.state == State::Good
                              ? tr("The settings could not be read; the last good copy is used.")
                              : tr("The settings could not be read; the program starts anew.");
    if (protectOldFile()) {
        store_->foundAtStart = found + u' ' + store_->foundAtStart;
        changed();
    }
}

/// Sets the file aside when the next save must not replace its content for good. False, with the
/// problem told, when that failed.
bool UserDefaults::protectOldFile() {
    if (!store_->asideNeeded)
        return true;
    const std::optional<QString> aside = setAside(store_->file);
    if (!aside) {
        setSaveProblem(
            tr("The settings file could neither be used nor set aside. It is left as it is, and "
               "changes are kept only until the program ends."));
        return false;
    }
    store_->asideNeeded = false;
    store_->foundAtStart = tr("The old settings file was kept as “%1”.").arg(*aside);
    return true;
}

void UserDefaults::changed() {
    store_->unsaved = true;
    if (std::exchange(store_->saveScheduled, true))
        return;
    const auto save = [this] {
        store_->saveScheduled = false;
        if (store_->unsaved && !store_->save.valid())
            startSave();
    };
    QMetaObject::invokeMethod(this, save, Qt::QueuedConnection);
}

void UserDefaults::startSave() {
    if (!protectOldFile())
        return;
    store_->unsaved = false;
    const int number = ++store_->saveNumber;
    const auto save = [this, number, file = store_->file, backup = backupFile(),
                       snapshot = store_->contents] {
        const QString reason = replaceStore(file, snapshot);
        // Second, so that one of the two is whole whatever happens to the other.
        if (reason.isNull())
            replaceStore(backup, snapshot);
        const auto finish = [this, number] {
            if (store_->save.valid() && number == store_->saveNumber)
                finishSave(store_->save.get());
        };
        QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
        return reason;
    };
    store_->save = std::async(std::launch::async, save);
}

void UserDefaults::finishSave(const QString& reason) {
    const bool changedMeanwhile = store_->unsaved;
    if (!reason.isNull())
        store_->unsaved = true;
    else if (changedMeanwhile)
        changed();
    setSaveProblem(reason.isNull() ? QString()
                                   : tr("The settings could not be saved: %1").arg(reason));
}

void UserDefaults::setSaveProblem(const QString& problem) {
    if (std::exchange(store_->saveProblem, problem) != problem)
        emit problemChanged();
}

QString UserDefaults::backupFile() const {
    return store_->file + QStringLiteral(".bak");
}
