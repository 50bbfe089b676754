#pragma once

#include <optional>

#include <QObject>
#include <QString>

#include "platform/file_manager_refresh.h"
#include "state/item_list.h"

/// The one owner of hiding: the command line of each place, what the record says afterwards,
/// telling the file managers' open windows, and finding out what became of the item. Nothing else
/// in the program runs a command on an item.
///
/// Every command goes through the shell and is waited for; its result is never looked at, and a
/// record always says what was last asked for.
class Hiding final : public QObject {
    Q_OBJECT

public:
    /// Why an item is not in the state that the switch asked for.
    enum class Obstacle { None, Gone, Apostrophe, LineBreak, FolderReadOnly, Unknown };

    explicit Hiding(QObject* parent = nullptr);

    /// The file manager's show-all setting as the shell printed it; no value when that was no text.
    std::optional<QString> showAllSetting() const;
    /// The first step of every press of the switch: turns the show-all setting off and has the
    /// file manager look again when the setting says yes.
    void resetShowAll() const;

    /// What the switch does to one item: runs its command, with the path in single quotes, and
    /// marks the record "1" or "0". Only the switch asks for what became of the item: switched()
    /// follows.
    void switchItem(ItemRecord& record, bool visible);
    /// The launch pass: shows every item, from the last to the first, paths in single quotes.
    void showAtLaunch(ItemList& list);
    /// The quit pass: hides every item, from the first to the last, paths as they are; the missing
    /// quotes are deliberate.
    void hideAtQuit(ItemList& list);

    /// File managers with open windows that could not be told.
    const QList<FileManagerRefresh::Unreached>& unreached() const { return refresh_.unreached(); }

signals:
    /// What became of an item that was asked to be visible or hidden.
    void switched(const QString& path, bool askedVisible, Hiding::Obstacle obstacle);
    /// unreached() has changed.
    void unreachedChanged();

private:
    void show(const QString& path);

    FileManagerRefresh refresh_;
};
