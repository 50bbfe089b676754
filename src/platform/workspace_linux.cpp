#include <array>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include "platform/workspace.h"

namespace {

struct SelectCommand {
    const char* program;
    const char* option;
};

// For sessions in which no file manager answers on the bus.
constexpr std::array selectCommands = {
    SelectCommand{"nautilus", "--select"},
    SelectCommand{"dolphin", "--select"},
    SelectCommand{"caja", "--select"},
    SelectCommand{"nemo", nullptr},
};

void selectWithCommand(const QString& path) {
    for (const SelectCommand& command : selectCommands) {
        const QString program = QStandardPaths::findExecutable(QLatin1String(command.program));
        if (program.isEmpty()) {
            continue;
        }
        QStringList arguments;
        if (command.option != nullptr) {
            arguments << QLatin1String(command.option);
        }
        arguments << path;
        if (QProcess::startDetached(program, arguments)) {
            return;
        }
    }
    // The parent folder, never the item itself: opening a file could run something.
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).path()));
}

}  // namespace

void Workspace::selectFile(const QString& path) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QByteArray address = QUrl::fromLocalFile(path).toEncoded(QUrl::FullyEncoded);
    message << QStringList{QString::fromLatin1(address)} << QString();
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        selectWithCommand(path);
        return;
    }
    // Asynchronous: a manager that has to be started first takes its time.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, path] {
        const QDBusPendingReply<> reply = *watcher;
        if (reply.isError()) {
            selectWithCommand(path);
        }
        watcher->deleteLater();
    });
}
