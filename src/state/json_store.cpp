#include "state/json_store.h"

#include <utility>

#include <QDebug>

#include "platform/file_attributes.h"
#include "state/item_list.h"
#include "state/preference_keys.h"
#include "state/stored_value.h"
#include "state/user_defaults.h"

namespace {

/// On the thread of the save. Null on success, or else the reason.
/// An empty name of the backup leaves it as it is.
QString saveSnapshot(const QString& file, const QString& backup, const StoreContents& snapshot) {
    QString reason = replaceStore(file, snapshot);
    // Only after the file itself, so that one of the two is good whatever happens to the other.
    if (reason.isNull() && !backup.isEmpty()) {
        replaceStore(backup, snapshot);
    }
    return reason;
}

QString noGoodCopy() {
    return UserDefaults::tr(
        "The settings could not be read. They were kept as “%1”, and there "
        "was no good copy to use instead.");
}

bool isItemList(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<ItemList>();
}

}  // namespace

std::unique_ptr<Store> Store::open(const QString& file) {
    return std::make_unique<JsonStore>(file);
}

JsonStore::JsonStore(const QString& file) : file_(file), backup_(file + QStringLiteral(".bak")) {
    connect(this, &JsonStore::changed, this, &JsonStore::saveChanges, Qt::QueuedConnection);
    connect(this, &JsonStore::saveEnded, this, &JsonStore::takeResult, Qt::QueuedConnection);
    load();
}

JsonStore::~JsonStore() {
    if (!JsonStore::synchronize()) {
        qWarning().noquote() << problem();
    }
}

QVariant JsonStore::value(const QString& key) const {
    return contents_.value(key);
}

void JsonStore::setValue(const QString& key, const QVariant& value) {
    if (!isRead_) {
        return;
    }
    QVariant& current = contents_[key];
    // The start of the program stores what it has just read; that is no reason to write.
    if (!unsaved_ && sameStoredValue(current, value)) {
        return;
    }
    if (key == itemListKey && current.isValid() && !isItemList(current)) {
        noticeOnceAside_ = UserDefaults::tr(
            "The settings held no proper item list. They were kept as “%1” before the new list "
            "was saved.");
    }
    current = value;
    unsaved_ = true;
    scheduleSave();
}

bool JsonStore::synchronize() {
    if (save_.valid()) {
        finishSave();
    }
    if (unsaved_) {
        startSave();
    }
    if (save_.valid()) {
        finishSave();
    }
    return !unsaved_;
}

QString JsonStore::problem() const {
    return saveProblem_.isEmpty() ? notice_ : saveProblem_;
}

bool JsonStore::readAgain() {
    if (!isRead_) {
        const QString before = problem();
        saveProblem_.clear();
        load();
        if (problem() != before) {
            emit problemChanged();
        }
    }
    return isRead_;
}

void JsonStore::load() {
    removeStaleTemporaries(file_);
    removeStaleTemporaries(backup_);
    // Of an earlier version, or copied here: it holds the password.
    makePrivate(file_);
    makePrivate(backup_);
    using State = StoreReading::State;
    StoreReading reading = readStore(file_);
    StoreReading copy = reading.state == State::Good ? StoreReading() : readStore(backup_);
    for (const StoreReading& each : {reading, copy}) {
        isRead_ = each.state != State::OutOfReach;
        if (!isRead_) {
            saveProblem_ =
                UserDefaults::tr("The settings cannot be read, so the list is closed for now: %1")
                    .arg(each.reason);
            return;
        }
    }
    if (reading.state == State::Good || copy.state == State::Missing) {
        contents_ = std::move(reading.contents);
    } else {
        contents_ = std::move(copy.contents);
    }
    backupIsDamaged_ = copy.state == State::Damaged;
    if (reading.state == State::Missing) {
        const QString reason = makeFolderOf(file_);
        if (!reason.isNull()) {
            saveProblem_ = UserDefaults::tr("The settings could not be saved: %1").arg(reason);
        } else if (copy.state == State::Good) {
            notice_ = UserDefaults::tr("The settings were missing; the last good copy is used.");
            unsaved_ = true;
            scheduleSave();
        } else if (backupIsDamaged_) {
            const std::optional<QString> aside = setAside(backup_);
            backupIsDamaged_ = !aside;
            notice_ = noGoodCopy().arg(aside.value_or(backup_));
            unsaved_ = true;
            scheduleSave();
        }
    } else if (reading.state == State::Damaged) {
        replaceDamaged(copy.state);
    }
}

void JsonStore::replaceDamaged(StoreReading::State copy) {
    noticeOnceAside_ = copy == StoreReading::State::Good
                           ? UserDefaults::tr(
                                 "The settings could not be read. They were kept as “%1”, and the "
                                 "last good copy is used.")
                           : noGoodCopy();
    // At once, for the next start must find the file good again.
    unsaved_ = true;
    if (keepOldFile()) {
        scheduleSave();
    }
}

/// False, with the problem told, when the file must be set aside and cannot be.
bool JsonStore::keepOldFile() {
    if (noticeOnceAside_.isEmpty()) {
        return true;
    }
    if (readStore(file_).state == StoreReading::State::Missing) {
        noticeOnceAside_.clear();
        return true;
    }
    const std::optional<QString> aside = setAside(file_);
    if (!aside) {
        tell(saveProblem_,
             UserDefaults::tr("The settings file “%1” could not be used and could not be kept "
                              "under another name, so changes are not saved.")
                 .arg(file_));
        return false;
    }
    tell(notice_, std::exchange(noticeOnceAside_, QString()).arg(*aside));
    return true;
}

void JsonStore::scheduleSave() {
    if (!std::exchange(scheduled_, true)) {
        emit changed();
    }
}

void JsonStore::saveChanges() {
    scheduled_ = false;
    // What a save in progress does not take along goes into the next one.
    if (unsaved_ && !save_.valid()) {
        startSave();
    }
}

void JsonStore::startSave() {
    if (!keepOldFile()) {
        return;
    }
    unsaved_ = false;
    if (backupIsDamaged_) {
        backupIsDamaged_ = !setAside(backup_);
    }
    const auto save = [this, number = ++saveNumber_, file = file_,
                       backup = backupIsDamaged_ ? QString() : backup_, snapshot = contents_] {
        QString reason = saveSnapshot(file, backup, snapshot);
        emit saveEnded(number);
        return reason;
    };
    // Where no thread can be had now, the window has to wait after all.
    save_ = std::async(std::launch::async | std::launch::deferred, save);
    if (save_.wait_for(std::chrono::seconds(0)) == std::future_status::deferred) {
        finishSave();
    }
}

void JsonStore::takeResult(int number) {
    // synchronize() may have been quicker.
    if (save_.valid() && number == saveNumber_) {
        finishSave();
    }
}

void JsonStore::finishSave() {
    const QString reason = save_.get();
    if (reason.isNull()) {
        tell(saveProblem_, QString());
        if (unsaved_) {
            scheduleSave();
        }
    } else {
        // Not tried again by itself, the disk may be full for long: with the next change.
        const bool changedMeanwhile = std::exchange(unsaved_, true);
        tell(saveProblem_, UserDefaults::tr("The settings could not be saved: %1").arg(reason));
        if (changedMeanwhile) {
            scheduleSave();
        }
    }
}

/// Changes one of the texts behind problem().
void JsonStore::tell(QString& place, const QString& text) {
    const QString before = problem();
    place = text;
    if (problem() != before) {
        emit problemChanged();
    }
}
