#include <QFile>
#include <QMimeData>

#include "fuzz.h"
#include "platform/file_addresses.h"

/// Whatever is dropped, a path from the root on comes of it that names the same file to the system.
void tryInput(const QByteArray& input) {
    QMimeData drag;
    drag.setData("text/uri-list", input);
    for (const QString& path : filesAt(drag.urls()).paths) {
        const QByteArray name = QFile::encodeName(path);
        demand(name.startsWith('/') && !name.contains('\0') && QFile::decodeName(name) == path);
        demand(!path.contains(QChar::ReplacementCharacter));
    }
}
