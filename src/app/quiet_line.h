#pragma once

#include <QObject>
#include <QStringList>

#include "hiding/hiding.h"

class QLabel;
struct UnmetMarks;

/// The quiet line at the bottom of the window: what a user must know and no more, without a
/// dialog. It takes no room while there is nothing to say. Each function below has a matter of its
/// own: a later message on it replaces the earlier one, and an empty one withdraws it. Messages are
/// translated plain text, and are announced to assistive technology.
class QuietLine final : public QObject {
    Q_OBJECT

public:
    /// `label` must outlive the line.
    explicit QuietLine(QLabel* label, QObject* parent = nullptr);

    /// What is wrong with the settings' store.
    void sayStore(const QString& problem) { say(Store, problem); }
    /// Why the list that is shown takes no drops.
    void sayClosed(const QString& reason) { say(Closed, reason); }
    /// What the user's last action, or the start, did that cannot be seen. Every action calls this,
    /// if only with an empty text, and so withdraws the message of the action before.
    void sayHappened(const QString& text) { say(Happened, text); }
    /// How many items are marked otherwise than a pass over the whole list has left them: marked
    /// visible and still hidden, or marked hidden and still visible.
    void sayUnmet(const UnmetMarks& unmet);
    /// What became of an item that was switched; nothing is shown for Obstacle::None.
    void saySwitched(const QString& path, bool askedVisible, Hiding::Obstacle obstacle);
    /// What to press in file managers that could not be told.
    void sayUnreached(const QList<FileManagerRefresh::Unreached>& managers);

private:
    enum Topic { Store, Closed, Happened, Item, Refresh, TopicCount };

    void say(Topic topic, const QString& text);

    QLabel* label_;
    QStringList texts_;
};
