#include "platform/log.h"

#include <algorithm>

#include <poll.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QFileInfo>
#include <QStringList>

namespace {

// Whoever reads the log may have stopped reading, or be gone. What cannot be written is lost: once
// the reader has been waited for a little, not at all until it reads again.
void writeToStandardError(QByteArrayView bytes) {
    constexpr int patience = 50;     // milliseconds
    constexpr qsizetype most = 512;  // a pipe that is ready takes as much
    static bool readerIsSlow = false;
    while (!bytes.isEmpty()) {
        pollfd output{STDERR_FILENO, POLLOUT, 0};
        if (poll(&output, 1, readerIsSlow ? 0 : patience) <= 0) {
            readerIsSlow = true;
            return;
        }
        readerIsSlow = false;
        const ssize_t count =
            write(STDERR_FILENO, bytes.data(), static_cast<size_t>(std::min(bytes.size(), most)));
        if (count <= 0) {
            return;
        }
        bytes = bytes.sliced(count);
    }
}

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
    writeToStandardError(line.toUtf8());
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
