#pragma once

#include <QObject>
#include <QStringList>

class QLabel;

/// The quiet line at the bottom of the window: what a user must know and no more, without a
/// dialog. It takes no room while there is nothing to say.
class QuietLine final : public QObject {
    Q_OBJECT

public:
    /// What a message is about; a later message of the same topic replaces the earlier one.
    enum Topic { Store, Item, Drop, Refresh, TopicCount };

    explicit QuietLine(QLabel* label);

    /// An empty text withdraws the topic's message.
    void say(Topic topic, const QString& text);

private:
    QLabel* label_;
    QStringList texts_;
};
