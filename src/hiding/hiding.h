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
/// Every command goes through the shell and blocks until it has ended; its exit status is never
/// looked at, and a record always says what was last asked for. A line whose path could make the
/// shell do anything but call `chflags` is only parsed by it, not run. A pass ends early, after the
/// item at hand, when the program is asked to end from outside.
class Hiding final : public QObject {
    Q_OBJECT

public:
    /// Why an item is not in the state that the switch asked for.
    enum class Obstacle { None, Gone, Apostrophe, LineBreak, TimeUp, FolderReadOnly, Unknown };

    explicit Hiding(QObject* parent = nullptr);

    /// The translated sentence that tells the user of an obstacle; empty for Obstacle::None.
    static QString sentence(const QString& path, bool askedVisible, Obstacle obstacle);

    /// The file manager's show-all setting as `defaults` printed it; no value when that was no
    /// valid text. Throws LaunchException when the shell cannot be started, as does resetShowAll().
    std::optional<QString> showAllSetting() const;
    /// The first step of every press of the switch and of every request to hide or show: when the
    /// show-all setting says yes, turns it off and has the file managers' open windows follow.
    void resetShowAll() const;

    /// What the switch, and a request from outside, do to one item: runs its command, with the path
    /// in single quotes, and marks the record "1" or "0". Unlike the passes, it then looks at what
    /// became of the item and emits switched().
    void switchItem(ItemRecord& record, bool visible);
    /// Whether the window of a pass that takes long may tell the names of the items.
    enum class Names { Shown, Withheld };
    /// The launch pass: shows every item, from the last to the first, paths in single quotes.
    void showAtLaunch(ItemList& list, Names names = Names::Withheld);
    /// The quit pass: hides every item, from the first to the last, paths as they are; the missing
    /// quotes are deliberate. False when the user has stopped it: what was done stays done, the
    /// rest is as it was. `above` is the X11 identifier of the main window, or 0.
    bool hideAtQuit(ItemList& list, Names names = Names::Withheld, quintptr above = 0);

    /// File managers with open windows that could not be told.
    const QList<FileManagerRefresh::Unreached>& unreached() const { return refresh_.unreached(); }

signals:
    /// What became of the item of a switchItem(); emitted before that returns.
    void switched(const QString& path, bool askedVisible, Hiding::Obstacle obstacle);
    /// unreached() has changed.
    void unreachedChanged();

private:
    Shell::Ending change(const QString& path, const QString& commandLine,
                         command_lines::Quoting quoting);

    FileManagerRefresh refresh_;
};
