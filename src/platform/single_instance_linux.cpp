#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include "platform/file_addresses.h"
#include "platform/file_attributes.h"
#include "platform/single_instance.h"

namespace {

const QString serviceName = QStringLiteral("com.velmora.Velmora");
const QString objectPath = QStringLiteral("/com/velmora/Velmora");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");
const QString requestsPath = QStringLiteral("/com/velmora/Velmora/Requests");
const QString requestsInterface = QStringLiteral("com.velmora.Velmora.Requests");
const QString tokenKey = QStringLiteral("activation-token");
constexpr int answerTimeout = 3000;         // milliseconds
constexpr int requestTimeout = 600 * 1000;  // a dialog of the user's may have to end first

FileRequest requestFor(FileRequest::Kind kind, const QStringList& addresses,
                       const QVariantMap& platformData) {
    const FileAddresses files = filesAt(QUrl::fromStringList(addresses));
    return {.kind = kind,
            .paths = files.paths,
            .someAreNoFiles = files.someUnreadable,
            .token = platformData.value(tokenKey).toString().toUtf8(),
            .answer = {}};
}

/// The desktop's own interface for bringing a running program forward and giving it files.
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
    void Open(const QStringList& addresses, const QVariantMap& platformData) {
        Activate(platformData);
        emit instance_->filesGiven(requestFor(FileRequest::Kind::Add, addresses, platformData));
    }
    void ActivateAction(const QString& name, const QVariantList& /*parameter*/,
                        const QVariantMap& platformData) {
        if (name == QLatin1String("show-all")) {
            emit instance_->filesGiven(requestFor(FileRequest::Kind::ShowAll, {}, platformData));
        }
    }

private:
    SingleInstance* instance_;
};

/// What the program's own options ask of the one that runs.
class RequestService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.velmora.Velmora.Requests")

public:
    explicit RequestService(SingleInstance* instance) : QObject(instance), instance_(instance) {}

public slots:
    QStringList Hide(const QStringList& addresses, const QVariantMap& platformData) {
        return pass(requestFor(FileRequest::Kind::Hide, addresses, platformData));
    }
    QStringList Show(const QStringList& addresses, const QVariantMap& platformData) {
        return pass(requestFor(FileRequest::Kind::Show, addresses, platformData));
    }
    QStringList ShowAll(const QStringList& /*addresses*/, const QVariantMap& platformData) {
        return pass(requestFor(FileRequest::Kind::ShowAll, {}, platformData));
    }

private:
    QStringList pass(FileRequest request) {
        setDelayedReply(true);
        request.answer = [asked = message(), bus = connection()](const QStringList& sentences) {
            bus.send(asked.createReply(sentences));
        };
        emit instance_->filesGiven(request);
        return {};
    }

    SingleInstance* instance_;
};

QVariantMap platformDataOf(const FileRequest& request) {
    QByteArray token = request.token;
    for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        if (token.isEmpty()) {
            token = qgetenv(name);
        }
    }
    return {{tokenKey, QString::fromUtf8(token)}};
}

QStringList addressesOf(const FileRequest& request) {
    QStringList addresses;
    for (const QString& path : request.paths) {
        addresses << QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    }
    if (request.someAreNoFiles) {
        addresses << QString();  // which is no file there either
    }
    return addresses;
}

}  // namespace

SingleInstance::SingleInstance(const QString& lockFile, QObject* parent)
    : QObject(parent), lockFile_(lockFile) {
    makePrivateFolder(QFileInfo(lockFile).path());
    lock_ = open(QFile::encodeName(lockFile).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    first_ = tryLock();
}

SingleInstance::~SingleInstance() {
    if (lock_ >= 0) {
        close(lock_);
    }
}

bool SingleInstance::tryLock() {
    if (lock_ < 0) {
        return true;
    }
    if (flock(lock_, LOCK_EX | LOCK_NB) != 0) {
        return errno != EWOULDBLOCK;
    }
    // The address of one that has ended is nobody's any more.
    [[maybe_unused]] const int emptied = ftruncate(lock_, 0);
    return true;
}

bool SingleInstance::waitForTurn(std::chrono::milliseconds longest) {
    constexpr std::chrono::milliseconds step{30};
    const QDeadlineTimer deadline(longest);
    while (!first_ && addressOfFirst().isEmpty()) {
        if (deadline.hasExpired()) {
            return false;
        }
        std::this_thread::sleep_for(step);
        first_ = tryLock();
    }
    return true;
}

QString SingleInstance::addressOfFirst() const {
    QFile file(lockFile_);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QString address = QString::fromUtf8(file.readAll());
    return address.startsWith(u':') ? address : QString();
}

void SingleInstance::listen() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || lock_ < 0) {
        return;
    }
    bus.registerObject(objectPath, new ApplicationService(this), QDBusConnection::ExportAllSlots);
    bus.registerObject(requestsPath, new RequestService(this), QDBusConnection::ExportAllSlots);
    // Desktops know the program by its name; a second start finds it by its address on the bus,
    // which is right also when two stores are in use.
    bus.registerService(serviceName);
    const QByteArray address = bus.baseService().toUtf8();
    if (ftruncate(lock_, 0) == 0) {
        [[maybe_unused]] const ssize_t written =
            pwrite(lock_, address.constData(), static_cast<size_t>(address.size()), 0);
    }
}

bool SingleInstance::activateFirst(const FileRequest& request) {
    const bool hasFiles = !request.paths.isEmpty() || request.someAreNoFiles;
    QDBusMessage message = QDBusMessage::createMethodCall(
        addressOfFirst(), objectPath, interfaceName,
        hasFiles ? QStringLiteral("Open") : QStringLiteral("Activate"));
    if (hasFiles) {
        message << addressesOf(request);
    }
    message << platformDataOf(request);
    return QDBusConnection::sessionBus().call(message, QDBus::Block, answerTimeout).type() ==
           QDBusMessage::ReplyMessage;
}

std::optional<QStringList> SingleInstance::askFirst(const FileRequest& request) {
    const QString method = request.kind == FileRequest::Kind::Hide   ? QStringLiteral("Hide")
                           : request.kind == FileRequest::Kind::Show ? QStringLiteral("Show")
                                                                     : QStringLiteral("ShowAll");
    QDBusMessage message =
        QDBusMessage::createMethodCall(addressOfFirst(), requestsPath, requestsInterface, method);
    message << addressesOf(request) << platformDataOf(request);
    const QDBusMessage reply =
        QDBusConnection::sessionBus().call(message, QDBus::Block, requestTimeout);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return std::nullopt;
    }
    return reply.arguments().value(0).toStringList();
}

#include "single_instance_linux.moc"
