#pragma once

#include <memory>
#include <optional>

#include <QObject>
#include <QString>
#include <QVariant>

#include "state/item_list.h"

class Store;

/// Everything that the program remembers between runs: a flat set of keys with values of the
/// types string, boolean, integer, real, array and dictionary, which the store keeps distinct.
///
/// All calls on the main thread. Reads see writes at once. A save starts within one turn of the
/// event loop after a change; several changes share one save; the window does not wait for it.
/// The instance made last is the standard one while it lives (as with QCoreApplication).
class UserDefaults final : public QObject {
    Q_OBJECT

public:
    /// `file`: absolute path of the store. It is read here; a file that cannot be parsed is set
    /// aside beside itself with the date in its name and the last good copy (`<file>.bak`) is used
    /// when there is one, as it is when the file is missing; problem() then says so.
    explicit UserDefaults(const QString& file, QObject* parent = nullptr);
    /// Waits for the last save.
    ~UserDefaults() override;

    /// The instance in use; one must exist.
    static UserDefaults& standardUserDefaults();
    /// `$XDG_CONFIG_HOME/velmora/defaults.json`, by default below `~/.config`.
    static QString standardFile();
    /// A file of that name in the store's folder, for what stands beside the store.
    static QString fileBeside(const QString& name);

    /// The stored value, or an invalid QVariant when the key is absent. Arrays and dictionaries
    /// come as QVariantList and QVariantMap, the item list as an ItemList.
    QVariant objectForKey(const QString& key) const;
    /// Replaces what was there. An invalid value leaves the store as it is: nothing is removed.
    void setObject(const QVariant& value, const QString& key);

    /// The stored item list; no value when it is absent (which is not the same as empty) or holds
    /// something that is no array.
    std::optional<ItemList> itemList() const;
    /// Replaces the stored list; no value leaves it as it is.
    void setItemList(const std::optional<ItemList>& list);

    /// Saves what is unsaved and waits for it. False when the save failed; problem() says why.
    bool synchronize();

    /// False while what is stored may be there and cannot be read (no right to it, a disk that is
    /// not there yet): every key then reads as absent, and nothing is taken or saved.
    bool isRead() const;
    /// Tries again to read; whether what is stored is read now.
    bool readAgain();

    /// A sentence for the user on what is wrong with the store now (or, after the start, on what
    /// was found), translated; empty when all is well.
    QString problem() const;

signals:
    /// problem() has changed: a save failed, or one succeeded again.
    void problemChanged();

private:
    const std::unique_ptr<Store> store_;
};
