#pragma once

#include <QObject>
#include <QStringList>

#include "hiding/hiding.h"

class QLabel;

/// The quiet line at the bottom of the window: what a user must know and no more, without a
/// dialog. It takes no room while there is nothing to say. A later message on the same matter
/// replaces the earlier one, and one that is empty withdraws it.
class QuietLine final : public QObject {
    Q_OBJECT

public:
    /// `label` must outlive the line.
    explicit QuietLine(QLabel* label, QObject* parent = nullptr);

    /// What is wrong with the settings' store.
    void sayStore(const QString& problem) { say(Store, problem); }
    /// Why some of a drop was not taken.
    void sayDrop(const QString& reason) { say(Drop, reason); }
    /// What became of the item that the switch was pressed for.
    void saySwitched(const QString& path, bool askedVisible, Hiding::Obstacle obstacle);
    /// What to press in file managers that could not be told.
    void sayUnreached(const QList<FileManagerRefresh::Unreached>& managers);

private:
    enum Topic { Store, Item, Drop, Refresh, TopicCount };

    void say(Topic topic, const QString& text);

    QLabel* label_;
    QStringList texts_;
};
