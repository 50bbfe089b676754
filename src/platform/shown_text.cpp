#include "platform/shown_text.h"

#include <QRegularExpression>

namespace {

bool turnsDirection(QChar character) {
    const ushort code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) ||  // embeddings and overrides
           (code >= 0x2066 && code <= 0x2069);    // isolates
}

}  // namespace

QString shownName(const QString& name) {
    QString shown;
    shown.reserve(name.size());
    for (const QChar character : name) {
        if (turnsDirection(character)) {
            shown +=
                QStringLiteral("<U+%1>").arg(QString::number(character.unicode(), 16).toUpper());
        } else {
            shown += character;
        }
    }
    return shown;
}

QString shownInLine(const QString& name) {
    return shownName(name).replace(u'\n', u' ');
}

QString withoutMnemonic(const QString& text) {
    static const QRegularExpression inBrackets(QStringLiteral("\\(&.\\)"));
    static const QRegularExpression marked(QStringLiteral("&(.)"));
    return QString(text).remove(inBrackets).replace(marked, QStringLiteral("\\1"));
}
