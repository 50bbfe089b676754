#include "platform/workspace.h"

#include <QDesktopServices>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrl>

#include "platform/bundle.h"
#include "platform/file_attributes.h"
#include "platform/type_identifiers.h"

namespace {

Workspace* current = nullptr;

// The program's own picture for a kind of file, for a machine whose icon theme has none.
QString bundledIconName(const QMimeType& type) {
    const QString name = type.name();
    if (name == QLatin1String("inode/directory")) {
        return QStringLiteral("folder");
    }
    if (name == QLatin1String("application/pdf")) {
        return QStringLiteral("file-pdf");
    }
    const QString generic = type.genericIconName();
    if (generic.startsWith(QLatin1String("x-office-"))) {
        return QStringLiteral("file-document");
    }
    if (generic == QLatin1String("package-x-generic")) {
        return QStringLiteral("file-archive");
    }
    if (generic == QLatin1String("application-x-executable")) {
        return QStringLiteral("file-executable");
    }
    const QString family = name.section(u'/', 0, 0);
    if (family == QLatin1String("image") || family == QLatin1String("audio") ||
        family == QLatin1String("video")) {
        return QStringLiteral("file-") + family;
    }
    if (generic == QLatin1String("text-x-script") || name.startsWith(QLatin1String("text/x-"))) {
        return QStringLiteral("file-code");
    }
    return type.inherits(QStringLiteral("text/plain")) ? QStringLiteral("file-text")
                                                       : QStringLiteral("file");
}

}  // namespace

Workspace::Workspace() : previous_(current) {
    current = this;
}

Workspace::~Workspace() {
    current = previous_;
}

Workspace& Workspace::shared() {
    if (current == nullptr) {
        static Workspace standard;
    }
    return *current;
}

QIcon Workspace::iconForFile(const QString& path) {
    static const QMimeDatabase types;
    const QFileInfo info(path);
    const QMimeType type = types.mimeTypeForFile(info);
    for (const QString& name : {type.iconName(), type.genericIconName()}) {
        // A theme answers with less specific names by itself; ask only for what it really has.
        if (QIcon::hasThemeIcon(name)) {
            return QIcon::fromTheme(name);
        }
    }
    const QIcon bundled = Bundle::imageNamed(bundledIconName(type));
    return bundled.isNull() ? QFileIconProvider().icon(info) : bundled;
}

QString Workspace::typeOfFile(const QString& path) {
    const QFileInfo info(path);
    if (info.isSymLink()) {
        return QStringLiteral("public.symlink");
    }
    if (!info.exists()) {
        return {};
    }
    static const QMimeDatabase types;
    return typeIdentifier(types.mimeTypeForFile(info));
}

void Workspace::openFile(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void Workspace::openUrl(const QString& address) {
    QDesktopServices::openUrl(QUrl(address));
}
