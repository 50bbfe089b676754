#include "app/quiet_line.h"

#include <QLabel>

#include "controls/accessible_events.h"
#include "hiding/unmet_marks.h"
#include "platform/shown_text.h"

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
    label_->setVisible(!said.isEmpty());
    announce(label_, text);
}

void QuietLine::saySwitched(const QString& path, bool askedVisible, Hiding::Obstacle obstacle) {
    sayHappened({});
    say(Item, Hiding::sentence(path, askedVisible, obstacle));
}

void QuietLine::sayUnmet(const UnmetMarks& unmet) {
    if (unmet.stillHidden > 0) {
        sayHappened(tr("%n listed item(s) could not be made visible.", nullptr, unmet.stillHidden));
    } else if (unmet.stillVisible > 0) {
        sayHappened(tr("%n listed item(s) could not be hidden when Velmora last quit.", nullptr,
                       unmet.stillVisible));
    }
}

void QuietLine::sayUnreached(const QList<FileManagerRefresh::Unreached>& managers) {
    QStringList sentences;
    for (const FileManagerRefresh::Unreached& manager : managers) {
        sentences << tr("Press %1 in %2 to see the change.").arg(manager.keys, manager.manager);
    }
    say(Refresh, sentences.join(u' '));
}
