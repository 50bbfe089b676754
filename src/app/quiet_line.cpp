#include "app/quiet_line.h"

#include <QFileInfo>
#include <QLabel>

namespace {

QString reasonFor(Hiding::Obstacle obstacle) {
    switch (obstacle) {
        case Hiding::Obstacle::Apostrophe:
            return QuietLine::tr("its path holds an apostrophe, which the command cannot take.");
        case Hiding::Obstacle::LineBreak:
            return QuietLine::tr("its name holds a line break, which file managers cannot hide.");
        case Hiding::Obstacle::FolderReadOnly:
            return QuietLine::tr("its folder cannot be written.");
        default:
            return QuietLine::tr("the change was not carried out.");
    }
}

}  // namespace

QuietLine::QuietLine(QLabel* label, QObject* parent)
    : QObject(parent), label_(label), texts_(TopicCount) {
    label_->setTextFormat(Qt::PlainText);
}

void QuietLine::say(Topic topic, const QString& text) {
    if (texts_.at(topic) == text) {
        return;
    }
    texts_[topic] = text;
    QStringList said = texts_;
    said.removeAll(QString());
    label_->setText(said.join(u'\n'));
    label_->setAccessibleName(label_->text());
    label_->setVisible(!said.isEmpty());
}

void QuietLine::saySwitched(const QString& path, bool askedVisible, Hiding::Obstacle obstacle) {
    QString name = QFileInfo(path).fileName();
    name.replace(u'\n', u' ');
    if (obstacle == Hiding::Obstacle::None) {
        say(Item, {});
    } else if (obstacle == Hiding::Obstacle::Gone) {
        say(Item, tr("“%1” no longer exists.").arg(name));
    } else {
        const QString message =
            askedVisible ? tr("“%1” is still hidden: %2") : tr("“%1” is still visible: %2");
        say(Item, message.arg(name, reasonFor(obstacle)));
    }
}

void QuietLine::sayUnreached(const QList<FileManagerRefresh::Unreached>& managers) {
    QStringList sentences;
    for (const FileManagerRefresh::Unreached& manager : managers) {
        sentences << tr("Press %1 in %2 to see the change.").arg(manager.keys, manager.manager);
    }
    say(Refresh, sentences.join(u' '));
}
