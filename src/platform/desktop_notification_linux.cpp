#include "platform/desktop_notification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

void notifyDesktop(const QString& text) {
    constexpr int longest = 3000;  // milliseconds
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    // The body may hold markup.
    message << QStringLiteral("Velmora") << 0U << QStringLiteral("com.velmora.Velmora")
            << QStringLiteral("Velmora") << text.toHtmlEscaped() << QStringList() << QVariantMap()
            << -1;
    QDBusConnection::sessionBus().call(message, QDBus::Block, longest);
}
