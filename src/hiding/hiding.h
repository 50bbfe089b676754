#pragma once

#include <optional>

#include <QObject>
#include <QString>

#include "hiding/command_lines.h"
#include "platform/file_manager_refresh.h"
#include "platform/shell.h"
#include "state/item_list.h"

/// The one owner of hiding: the command line of each place, what the record says afterwards,
/// telling the file managers' open windows, and finding out what became of the item. Nothing else
/// in the program runs a command on an item.
///
/// Every command goes through the shell and is waited for; its result is never looked at, and a
/// record always says what was last asked for. A path that could make the shell do anything but
/// call `chflags` is read by it, not run. A pass ends early, after the item at hand, when the
/// program is asked to end from outside.
class Hiding final : public QObject {
    Q_OBJECT

public:
    /// Why an item is not in the state that the switch asked for.
    enum class Obstacle { None, Gone, Apostrophe, LineBreak, TimeUp, FolderReadOnly, Unknown };

    explicit Hiding(QObject* parent = nullptr);

    /// The sentence that tells the user of an obstacle; none for no obstacle.
    static QString sentence(const QString& path, bool askedVisible, Obstacle obstacle);

    /// The file manager's show-all setting as the shell printed it; no value when that was no text.
    std::optional<QString> showAllSetting() const;
    /// The first step of every press of the switch: turns the show-all setting off and has the
    /// file manager look again when the setting says yes.
    void resetShowAll() const;

    /// What the switch does to one item: runs its command, with the path in single quotes, and
    /// marks the record "1" or "0". Only the switch asks for what became of the item: switched()
    /// follows.
    void switchItem(ItemRecord& record, bool visible);
    /// Whether the window of a pass that takes long may tell the names of the items.
    enum class Names { Told, Kept };
    /// The launch pass: shows every item, from the last to the first, paths in single quotes.
    void showAtLaunch(ItemList& list, Names names = Names::Kept);
    /// The quit pass: hides every item, from the first to the last, paths as they are; the missing
    /// quotes are deliberate. False when the user has stopped it: what was done stays done, the
    /// rest is as it was. `above` is the window system's number of the window that is left, or 0.
    bool hideAtQuit(ItemList& list, Names names = Names::Kept, quintptr above = 0);

    /// File managers with open windows that could not be told.
    const QList<FileManagerRefresh::Unreached>& unreached() const { return refresh_.unreached(); }

signals:
    /// What became of an item that was asked to be visible or hidden.
    void switched(const QString& path, bool askedVisible, Hiding::Obstacle obstacle);
    /// unreached() has changed.
    void unreachedChanged();

private:
    Shell::Ending change(const QString& path, const QString& commandLine,
                         command_lines::Quoting quoting);

    FileManagerRefresh refresh_;
};
