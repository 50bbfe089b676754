#include "app/quiet_line.h"

#include <QLabel>

QuietLine::QuietLine(QLabel* label) : QObject(label), label_(label), texts_(TopicCount) {
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
