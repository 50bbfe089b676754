#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QFileInfo>

#include "platform/file_attributes.h"
#include "platform/single_instance.h"

namespace {

const QString serviceName = QStringLiteral("com.velmora.Velmora");
const QString objectPath = QStringLiteral("/com/velmora/Velmora");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");
const QString tokenKey = QStringLiteral("activation-token");
constexpr int answerTimeout = 3000;  // milliseconds

/// The desktop's own interface for bringing a running program forward.
class ApplicationService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationService(SingleInstance* instance)
        : QObject(instance), instance_(instance) {}

public slots:
    void Activate(const QVariantMap& platformData) {
        emit instance_->activationRequested(platformData.value(tokenKey).toString().toUtf8());
    }
    void Open(const QStringList& /*addresses*/, const QVariantMap& platformData) {
        Activate(platformData);
    }
    void ActivateAction(const QString& /*name*/, const QVariantList& /*parameter*/,
                        const QVariantMap& platformData) {
        Activate(platformData);
    }

private:
    SingleInstance* instance_;
};

}  // namespace

SingleInstance::SingleInstance(const QString& lockFile, QObject* parent)
    : QObject(parent), lockFile_(lockFile) {
    makePrivateFolder(QFileInfo(lockFile).path());
    lock_ = open(QFile::encodeName(lockFile).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (lock_ >= 0 && flock(lock_, LOCK_EX | LOCK_NB) != 0) {
        first_ = errno != EWOULDBLOCK;
    }
}

SingleInstance::~SingleInstance() {
    if (lock_ >= 0) {
        close(lock_);
    }
}

void SingleInstance::listen() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || lock_ < 0) {
        return;
    }
    bus.registerObject(objectPath, new ApplicationService(this), QDBusConnection::ExportAllSlots);
    // Desktops know the program by its name; a second start finds it by its address on the bus,
    // which is right also when two stores are in use.
    bus.registerService(serviceName);
    const QByteArray address = bus.baseService().toUtf8();
    if (ftruncate(lock_, 0) == 0) {
        [[maybe_unused]] const ssize_t written =
            pwrite(lock_, address.constData(), static_cast<size_t>(address.size()), 0);
    }
}

bool SingleInstance::activateFirst() {
    QFile file(lockFile_);
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!file.open(QIODevice::ReadOnly) || !bus.isConnected()) {
        return false;
    }
    const QString address = QString::fromUtf8(file.readAll());
    if (!address.startsWith(u':')) {
        return false;
    }
    QDBusMessage message = QDBusMessage::createMethodCall(address, objectPath, interfaceName,
                                                          QStringLiteral("Activate"));
    QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    if (token.isEmpty()) {
        token = qgetenv("DESKTOP_STARTUP_ID");
    }
    message << QVariantMap{{tokenKey, QString::fromUtf8(token)}};
    return bus.call(message, QDBus::Block, answerTimeout).type() == QDBusMessage::ReplyMessage;
}

#include "single_instance_linux.moc"
