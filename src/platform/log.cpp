#include "platform/log.h"

#include <cstdio>

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QFileInfo>
#include <QStringList>

namespace {

void writeLine(const QString& text) {
    // QCoreApplication may not exist yet, or no longer, when a message comes.
    static const QString process = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
    const QString name =
        process.isEmpty() ? QStringLiteral("velmora") : QFileInfo(process).fileName();
    const QString line =
        QStringLiteral("%1 %2[%3] ")
            .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")),
                 name)
            .arg(QCoreApplication::applicationPid()) +
        text + u'\n';
    const QByteArray bytes = line.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

void handleMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                   const QString& message) {
    writeLine(message);
}

}  // namespace

void Log::install() {
    qInstallMessageHandler(handleMessage);
}

void Log::line(const QString& text) {
    QMessageLogger().info().noquote() << text;
}

QString Log::describe(const QVariant& value) {
    if (!value.isValid() || value.isNull()) {
        // An empty text is a text; only the absence of a value is nothing.
        const bool emptyText = value.typeId() == QMetaType::QString && !value.toString().isNull();
        return emptyText ? QString() : QStringLiteral("(null)");
    }
    switch (value.typeId()) {
        case QMetaType::QStringList:
        case QMetaType::QVariantList: {
            QStringList parts;
            for (const QVariant& entry : value.toList()) {
                parts << describe(entry);
            }
            return u'(' + parts.join(QStringLiteral(", ")) + u')';
        }
        case QMetaType::QVariantMap: {
            QString text = QStringLiteral("{");
            const QVariantMap map = value.toMap();
            for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
                text += entry.key() + QStringLiteral(" = ") + describe(entry.value()) +
                        QStringLiteral("; ");
            }
            return text + u'}';
        }
        case QMetaType::Bool:
            return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
        default:
            return value.toString();
    }
}
