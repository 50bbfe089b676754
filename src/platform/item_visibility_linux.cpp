#include <QFile>
#include <QFileInfo>

#include "platform/item_visibility.h"

bool isHiddenInFileManagers(const QString& path) {
    const QFileInfo info(path);
    QFile list(info.path() + QStringLiteral("/.hidden"));
    if (!list.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray names = '\n' + list.readAll() + '\n';
    return names.contains('\n' + QFile::encodeName(info.fileName()) + '\n');
}
