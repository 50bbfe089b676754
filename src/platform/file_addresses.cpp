#include "platform/file_addresses.h"

#include <QSysInfo>

#include "platform/file_attributes.h"

namespace {

bool isHere(const QUrl& url) {
    const QString host = url.host();
    return url.isLocalFile() &&
           (host.isEmpty() || host == QLatin1String("localhost") ||
            host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0);
}

}  // namespace

FileAddresses filesAt(const QList<QUrl>& addresses) {
    FileAddresses files;
    for (const QUrl& url : addresses) {
        const QString path = isHere(url) ? url.path(QUrl::FullyDecoded) : QString();
        if (!isAbsolutePath(path) || path.contains(QChar::ReplacementCharacter)) {
            files.someUnreadable = true;
        } else {
            files.paths << path;
        }
    }
    return files;
}
